// The opening documents that a close leaves in the work tables: what each warehouse has is what it begins the next period
// with.

#include <algorithm>

#include "close/month_close.h"
#include "database/recordset.h"
#include "session/dialect.h"
#include "session/lookups/book.h"
#include "session/session.h"
#include "settings/document_numbers.h"
#include "settings/type_codes.h"

namespace jxc {

namespace {

constexpr const char* kBook = "tJXC_CkDj";
constexpr const char* kMadeByClose = "自动结转"; // fInvMemo

// Numbers that count up behind what the automatic number of the next opening document begins with.
class Counter {
  public:
    explicit Counter(const std::string& number) {
        const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
        const auto digits = std::find_if_not(number.rbegin(), number.rend(), isDigit).base();
        prefix_ = digits == number.end() ? "AutoQc" : std::string(number.begin(), digits);
        digits_ = digits == number.end() ? "001" : std::string(digits, number.end());
    }
    std::string Number() const { return prefix_ + digits_; }
    // Behind the largest of so many digits comes the smallest.
    void Next() {
        for (auto digit = digits_.rbegin(); digit != digits_.rend(); ++digit) {
            *digit = *digit == '9' ? '0' : static_cast<char>(*digit + 1);
            if (*digit != '0')
                return;
        }
    }

  private:
    std::string prefix_, digits_;
};

Counter FirstNumber(Date date) {
    const Recordset row(Conn(), "select fSetAutoNo from tJXC_InvSet where fSetNo=0");
    std::string rule = row.AtEnd() ? "" : row["fSetAutoNo"].AsText();
    return Counter(NextDocumentNo(date, rule, DocType::Opening));
}

std::string HomeCurrency() {
    const Recordset row(Conn(), "Select Top 1 MoneyCode from Moneys Order By MoneyType desc");
    return row.AtEnd() ? "" : row["MoneyCode"].AsText();
}

struct OpeningDocument {
    std::int32_t key;
    std::string number;
    Date date;
    std::string warehouse, currency;
};

void WriteHeader(const OpeningDocument& opening) {
    const std::string user = InQuotes(session.UserName);
    Conn().Execute("Insert Into tJXC_CkDj_Tmp01 "
                   "(fInvID,fInvType,fHtNo,fInvNo,fInvDate,fKhID,fCkName,fCkName2,fInvHb,fInvHbDl,"
                   "fInvMemo,fInvDLR,fInvJBR,fInvShr)  Values (" +
                   std::to_string(opening.key) + ",0,''," + InQuotes(opening.number) + "," +
                   DayValue(opening.date) + ",0," + InQuotes(opening.warehouse) + ",''," +
                   InQuotes(opening.currency) + ",1," + InQuotes(kMadeByClose) + "," + user + ",''," + user +
                   ")");
}

// A product without stock has its line too: the next period's cost begins with its price.
void WriteLines(const OpeningDocument& opening) {
    Conn().Execute(
        "Insert Into tJXC_CkDj_Tmp02 "
        "(fInvID,fInv1,fInvInOut,fInvNo,fInvDate,fKhID,fCkName,fCpID,fInvSL,fInvDJ,fInvJE,fInvHb,"
        "fInvHbDl,fInvTaxRate,fInvTax,fInvOther1,fInvOther2,fInvDJ2,fInvSL2)  Select " +
        std::to_string(opening.key) + ",0,1," + InQuotes(opening.number) + "," + DayValue(opening.date) +
        ",0," + InQuotes(opening.warehouse) + ", fCpID,fKcSl,fKcDj,fKcJe," + InQuotes(opening.currency) +
        ",1,0,0,'','',0,0 From tJXC_CkTj Where fCkName=" + InQuotes(opening.warehouse) + " Order By fCpID");
}

} // namespace

void BuildOpeningDocuments(Date periodEnd) {
    Transaction transaction(Conn());
    Conn().Execute("Delete From tJXC_CkDj_Tmp01");
    Conn().Execute("Delete From tJXC_CkDj_Tmp02");
    Recordset warehouses(Conn(), "Select distinct fCkName from tJXC_CkTj Order By fCkName");
    if (!warehouses.AtEnd()) {
        const Date date = AddDays(periodEnd, 1);
        OpeningDocument opening{.key = LargestKey(kBook) + 1,
                                .number = "",
                                .date = date,
                                .warehouse = "",
                                .currency = HomeCurrency()};
        Counter number = FirstNumber(date);
        for (; !warehouses.AtEnd(); warehouses.MoveNext(), number.Next()) {
            ++opening.key;
            opening.number = number.Number();
            opening.warehouse = warehouses["fCkName"].AsText();
            WriteHeader(opening);
            WriteLines(opening);
        }
    }
    transaction.Commit();
}

} // namespace jxc
