#include "tests/support/scenario_statements.h"

#include <map>

namespace jxc::test {

namespace {

using Statements = std::map<std::string, std::string>;

std::string LinesIn(const std::string& book, const std::string& where = "") {
    return "select "
           "b.fRowID,b.fInv1,b.fInvInOut,b.fCkName,b.fKhID,c.fCpCode,b.fInvSL,b.fInvDJ,b.fInvDJ2,b.fInvJE,"
           "b.fInvTaxRate,b.fInvTax,b.fInvSL2 from " +
           book + "02 b Left Join tJXC_Cp c On b.fCpID=c.fCpID " + where +
           "Order By b.fInvID,b.fInv1,b.fRowID";
}

void AddBook(Statements& statements, const std::string& book, const std::string& of) {
    statements["approvals" + of] = "select fInvNo,fInvSHR from " + book + "01 Order By fInvID";
    statements["headers" + of] =
        "select "
        "fInvID,fInvType,fInvNo,fHtNo,fInvDate,fInvHb,fInvHbDl,fInvJE,fInvMemo,fInvDLR,fInvJbr,fInvSHR,"
        "fKhID,fKhAdd,fCkName,fCkName2,fFlag from " +
        book + "01 Order By fInvID";
    statements["lines" + of] = LinesIn(book);
}

Statements AllStatements() {
    Statements statements{
        {"stock",
         "select b.fCpCode,a.fCkName,a.fQcSl,a.fQcJe,a.fRkSl,a.fRkJe,a.fCkSl,a.fCkJe,a.fCkCb,a.fDkSl,"
         "a.fPdSl,a.fKcSL,a.fKcDj,a.fKcJE from tJXC_CkTj a Inner Join tJXC_Cp b On a.fCpID=b.fCpID "
         "Order By b.fCpCode,a.fCkName"},
        {"prices", "select b.fCpCode,a.fKcDj from tJXC_CkTj_tmp a Inner Join tJXC_Cp b On a.fCpID=b.fCpID "
                   "Order By b.fCpCode"},
        {"ledger",
         "select fAcntNo,fDate,fCompID,fType1,fType2,fMoneyA,fMoneyB,fInvID,fOrderID,fUser,fDoneman,"
         "fMoneyCode,fMoneyRate from tAccountDetail Order By fAcntNo"},
        {"suppliers", "select b.fCpCode,a.fKhID,a.fCpSl,a.fCpPrice,a.fInvDate,a.fInvNo from tJXC_CpGys a "
                      "Inner Join tJXC_Cp b On a.fCpID=b.fCpID Order By a.fInvNo,b.fCpCode"},
        {"balances", "select b.fInvNo,c.fCpCode,b.fInvSL,b.fInvSL2,b.fInvOther1 from tJXC_CkHt02 b "
                     "Inner Join tJXC_Cp c On b.fCpID=c.fCpID Order By b.fInvNo,c.fCpCode"}};
    AddBook(statements, "tJXC_CkDj", "");
    AddBook(statements, "tJXC_CkHt", " of orders");
    AddBook(statements, "tJXC_CkXjBj", " of enquiries");
    AddBook(statements, "tJXC_CkJh", " of plans");
    return statements;
}

const Statements& Known() {
    static const Statements statements = AllStatements();
    return statements;
}

} // namespace

std::vector<std::string> ScenarioStatementNames() {
    std::vector<std::string> names;
    for (const auto& [name, statement] : Known())
        names.push_back(name);
    return names;
}

std::string ScenarioStatement(const std::string& text) {
    if (const auto found = Known().find(text); found != Known().end())
        return found->second;
    const std::string document = "lines of document ";
    if (text.starts_with(document))
        return LinesIn("tJXC_CkDj", "Where b.fInvID=" + text.substr(document.size()) + " ");
    return text;
}

} // namespace jxc::test
