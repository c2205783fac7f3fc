#include "bench/history.h"

#include "database/engine.h"

namespace jxc::bench {

namespace {

constexpr int kDocumentsADay = 100;

std::string Quoted(const std::string& text) {
    return "'" + text + "'";
}

// yyyymmdd
std::string Compact(Date date) {
    std::string text = IsoText(date);
    std::erase(text, '-');
    return text;
}

// Each working day with its date, the stems of its numbers, and the first document of its month.
std::string DaysScript(bool postgres, int documents) {
    const int days = (documents + kDocumentsADay - 1) / kDocumentsADay;
    std::string script = "create temporary table days (day integer, dated " +
                         std::string(postgres ? "timestamp" : "text") +
                         ", compact text, month text, monthStart integer);";
    int monthStart = 0;
    std::string monthBefore;
    for (int day = 0; day < days; ++day) {
        const Date date = AddDays(FirstDay(), day - days);
        const std::string compact = Compact(date), month = compact.substr(0, 6);
        if (month != monthBefore)
            monthStart = day * kDocumentsADay;
        monthBefore = month;
        script += "insert into days values (" + std::to_string(day) + ", " + Quoted(IsoText(date)) + ", " +
                  Quoted(compact) + ", " + Quoted(month) + ", " + std::to_string(monthStart) + ");";
    }
    return script;
}

// Keys begin at 2. A number's counter has three digits, an account number's five.
std::string DocumentsScript(int documents) {
    const std::string perDay = std::to_string(kDocumentsADay);
    return "create temporary table documents as "
           "with recursive counted(n) as (select 0 union all select n + 1 from counted where n < " +
           std::to_string(documents - 1) +
           ") select n, n + 2 as fInvID, dated, compact || 'RK' || substr(cast(1001 + n % " + perDay +
           " as text), 2) as fInvNo, month || 'WL' || substr(cast(100001 + n - monthStart as text), 2) as "
           "fAcntNo from counted join days on day = n / " +
           perDay + ";";
}

std::string LinesScript(const Trade& trade) {
    std::string script = "create temporary table places (place integer);";
    for (int place = 0; place < kLinesInADocument; ++place)
        script += "insert into places values (" + std::to_string(place) + ");";
    script += "create temporary table products as select fCpID as product, "
              "row_number() over (order by fCpID) - 1 as turn from tJXC_Cp where fCpFlag = 0;"
              "create temporary table lines as "
              "select fInvID, fInvNo, dated, place, product, 1 + (n + place) % 20 as quantity, "
              "(1005 + (n * 13 + place * 737) % 50000) / 100.0 as price "
              "from documents cross join places join products on turn = (n * 7 + place) % " +
              std::to_string(trade.products.size()) + ";";
    return script;
}

std::string BooksScript(const Trade& trade) {
    const std::string supplier = std::to_string(trade.supplier), warehouse = Quoted(trade.warehouse),
                      user = Quoted(trade.user), currency = Quoted(trade.currency);
    return "insert into tJXC_CkDj02 (fInvID, fInv1, fRowID, fInvInOut, fInvNo, fInvDate, fKhID, fCkName, "
           "fCpID, fInvSL, fInvDJ, fInvDJ2, fInvJE, fInvHb, fInvHbDl, fInvTaxRate, fInvTax, fInvOther1, "
           "fInvOther2) select fInvID, 0, place + 1, 1, fInvNo, dated, " +
           supplier + ", " + warehouse + ", product, quantity, price, 0, quantity * price, " + currency +
           ", 1, 0, 0, '', '' from lines order by fInvID, place;"
           "create temporary table totals as select fInvID as owner, sum(quantity * price) as total "
           "from lines group by fInvID;"
           "insert into tJXC_CkDj01 (fInvID, fInvType, fHtNo, fInvNo, fInvDate, fKhID, fKhAdd, fCkName, "
           "fCkName2, fInvHb, fInvHbDl, fInvJE, fInvMemo, fInvDLR, fInvJbr, fInvSHR, fFlag) "
           "select fInvID, 1, '', fInvNo, dated, " +
           supplier + ", " + Quoted(trade.address) + ", " + warehouse + ", '', " + currency +
           ", 1, total, '', " + user + ", '', " + user +
           ", 0 from documents join totals on owner = fInvID order by fInvID;"
           "insert into tJXC_CpGys (fCpID, fKhID, fCpSl, fCpPrice, fInvDate, fInvNo) select product, " +
           supplier +
           ", quantity, price, dated, fInvNo from lines order by fInvID, place;"
           "insert into tAccountDetail (fAcntNo, fDate, fCompID, fType1, fType2, fMoneyA, fMoneyB, fInit, "
           "fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) "
           "select fAcntNo, dated, " +
           supplier + ", 0, 2, total, 0, 0, '自动挂入', fInvNo, '', " + user + ", '', '', '0', " + currency +
           ", 1 from documents join totals on owner = fInvID order by fInvID;";
}

std::string StockScript(const Trade& trade) {
    return "create temporary table stock as select product, sum(quantity) as quantity, "
           "sum(quantity * price) as amount from lines group by product;"
           "insert into tJXC_CkTj (fCpID, fCkName, fQcSl, fQcJe, fRkSl, fRkJe, fCkSl, fCkJe, fCkCb, fDkSl, "
           "fPdSl, fKcSl, fKcDj, fKcJe) select product, " +
           Quoted(trade.warehouse) +
           ", 0, 0, quantity, amount, 0, 0, 0, 0, 0, quantity, amount / quantity, amount from stock;"
           "insert into tJXC_CkTj_tmp (fCpID, fKcDj) select product, amount / quantity from stock;";
}

} // namespace

void FillHistory(Connection& company, bool postgres, const Trade& trade, int documents) {
    Engine& engine = company.EngineInUse();
    engine.ExecuteScript("begin;" + DaysScript(postgres, documents) + DocumentsScript(documents) +
                         LinesScript(trade) + BooksScript(trade) + StockScript(trade));
    for (const char* table : {"days", "documents", "places", "products", "lines", "totals", "stock"})
        engine.ExecuteScript(std::string("drop table ") + table);
    engine.ExecuteScript("commit");
    engine.ExecuteScript(postgres ? "vacuum analyze" : "analyze");
}

} // namespace jxc::bench
