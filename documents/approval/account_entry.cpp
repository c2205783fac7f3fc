// The host's ledger: approval places one entry for the document, marked as such, reversal takes it away.
// Amounts are in document currency with their sign, so a return enters negative.

#include <optional>

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
std::string NextAccountNumber(const DocumentData& document, int series, std::optional<Recordset>& entry) {
    const auto rule = ReadTypeRow(series);
    std::string pattern = rule ? rule->fSetAutoNo : "";
    const std::string first = NextDocumentNo(document.date, pattern, series);
    std::string number = first;
    while (!entry.emplace(Conn(), EntryStatement(number), Access::Write).AtEnd()) {
        number = Incremented(number);
        if (number == first)
            throw DatabaseError("帐户单号已经用完：" + first);
    }
    return number;
}

void AddEntry(const DocumentData& document, AccountKind kind, int side, std::int64_t company) {
    std::optional<Recordset> opened;
    const std::string number = NextAccountNumber(
        document, kind == AccountKind::Customer ? kSeriesCustomerAccount : kSeriesMoneyAccount, opened);
    Recordset& entry = *opened;
    const bool isCustomers = kind == AccountKind::Customer;
    entry.AddNew();
    entry.Set("fAcntNo", number);
    entry.Set("fDate", IsoText(document.date));
    entry.Set("fCompID", company);
    entry.Set("fType1", static_cast<int>(kind));
    entry.Set("fType2", side);
    entry.Set("fInit", 0);
    entry.Set("fMoneyA", isCustomers ? document.total : 0);
    entry.Set("fMoneyB", isCustomers ? document.payment : document.total);
    entry.Set("fBrief", kPlacedByApproval);
    entry.Set("fInvID", document.number);
    entry.Set("fOrderID", document.order);
    entry.Set("fUser", session.UserName);
    entry.Set("fDoneman", document.handler);
    entry.Set("fChecker", "");
    entry.Set("fID2", "0");
    entry.Set("fMoneyCode", document.currency);
    entry.Set("fMoneyRate", document.rate);
    entry.Update();
}

void RemoveEntry(const DocumentData& document) {
    Conn().Execute("Delete From tAccountDetail Where fInvID=" + InQuotes(document.number) + " And " +
                   DayTest("fDate", "=", document.date));
}

} // namespace

int AccountSeries(const TypeRow& type) {
    if (type.MovesAccount())
        return kSeriesCustomerAccount;
    return type.MovesCash() ? kSeriesMoneyAccount : 0;
}

std::string AccountRule(const TypeRow& type) {
    const int series = AccountSeries(type);
    const auto row = series != 0 ? ReadTypeRow(series) : std::nullopt;
    return row ? row->fSetAutoNo : "";
}

void PostAccountEntry(const DocumentData& document, AccountKind kind, int side, std::int64_t company,
                      bool reversal) {
    if (reversal)
        RemoveEntry(document);
    else
        AddEntry(document, kind, side, company);
}

} // namespace jxc
