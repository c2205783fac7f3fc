// The host's ledger: approval places one entry for the document, marked as such, reversal takes it away.
// Amounts are in document currency with their sign, so a return enters negative.

#include <optional>

#include "base/text.h"
#include "database/recordset.h"
#include "documents/approval/stages.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"
#include "settings/document_numbers.h"
#include "settings/type_row.h"

namespace jxc {

namespace {

// The number after `number`, counting up its trailing digits.
std::string Incremented(std::string number) {
    for (size_t i = number.size(); i-- > 0 && number[i] >= '0' && number[i] <= '9';) {
        if (number[i] != '9') {
            ++number[i];
            return number;
        }
        number[i] = '0';
    }
    return number;
}

std::string EntryStatement(const std::string& number) {
    return "Select * From tAccountDetail Where fAcntNo=" + InQuotes(number);
}

// A free number of the series. One that is already taken, because the counter has wrapped, gives way to the
// next. `entry` is opened on it.
std::string NextAccountNumber(const frmDj02& s, int series, std::optional<Recordset>& entry) {
    const auto rule = ReadTypeRow(series);
    std::string pattern = rule ? rule->fSetAutoNo : "";
    const std::string first = NextDocumentNo(*s.dtpInvDate.date, pattern, series);
    std::string number = first;
    while (!entry.emplace(Conn(), EntryStatement(number), Access::Write).AtEnd()) {
        number = Incremented(number);
        if (number == first)
            throw DatabaseError("帐户单号已经用完：" + first);
    }
    return number;
}

void AddEntry(const frmDj02& s, int kind, int direction, std::int64_t company) {
    std::optional<Recordset> opened;
    const std::string number = NextAccountNumber(s, kSeriesCustomerAccount + kind, opened);
    Recordset& entry = *opened;
    const double total = Val(s.txtSum.text);
    entry.AddNew();
    entry.Set("fAcntNo", number);
    entry.Set("fDate", IsoText(*s.dtpInvDate.date));
    entry.Set("fCompID", company);
    entry.Set("fType1", kind);
    entry.Set("fType2", direction);
    entry.Set("fInit", 0);
    entry.Set("fMoneyA", kind == 0 ? total : 0);
    entry.Set("fMoneyB", kind == 0 ? Val(s.txtSsSf.text) : total);
    entry.Set("fBrief", kPlacedByApproval);
    entry.Set("fInvID", s.Number());
    entry.Set("fOrderID", s.txtHtNo.text);
    entry.Set("fUser", session.UserName);
    entry.Set("fDoneman", s.cboInvJbr.text);
    entry.Set("fChecker", "");
    entry.Set("fID2", "0");
    entry.Set("fMoneyCode", s.cboInvHb.Chosen());
    entry.Set("fMoneyRate", Val(s.txtInvHbDl.text));
    entry.Update();
}

void RemoveEntry(const frmDj02& s) {
    Conn().Execute("Delete From tAccountDetail Where fInvID=" + InQuotes(s.Number()) + " And " +
                   DayTest("fDate", "=", *s.dtpInvDate.date));
}

} // namespace

int AccountSeries(const TypeRow& type) {
    if (type.fSetWlType == 1 || type.fSetWlType == 2)
        return kSeriesCustomerAccount;
    return type.fSetZjType == 3 || type.fSetZjType == 4 ? kSeriesMoneyAccount : 0;
}

void PostAccountEntry(const frmDj02& s, int kind, int direction, std::int64_t company, bool reversal) {
    if (reversal)
        RemoveEntry(s);
    else
        AddEntry(s, kind, direction, company);
}

} // namespace jxc
