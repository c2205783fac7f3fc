// Documents of two warehouses: each line stands twice, in opposite directions; assembly and dismantling have one row
// of the finished product instead.

#include "documents/document_model.h"
#include "host/check/checked_company.h"

namespace jxc {

namespace {

void CheckPartners(const Book& book, Findings& findings) {
    std::string differs;
    for (const char* field : {"fCpID", "fInvSL", "fInvDJ", "fInvJE", "fInvTaxRate", "fInvTax"})
        differs += Differ("c." + std::string(field), "b." + std::string(field)) + "+";
    differs +=
        Differ("c.fInvInOut", "(case when b.fInvInOut=2 then 1 when b.fInvInOut=1 then 2 else -1 end)");
    Run({"Select a.fInvNo,min(b.fRowID),count(*) From (" + book.Headers() + " a Inner Join " + book.Lines() +
             " b On " + book.On("b", "a") + ") Left Join " + book.Lines() + " c On " + book.On("c", "b") +
             " And c.fInv1=1-b.fInv1 And c.fRowID=b.fRowID Where a.fCkName2<>'' And a.fInvType<>31 And "
             "a.fInvType<>32"
             " And (c.fInvID is null Or " +
             differs + ">0) Group By a.fInvID,a.fInvNo",
         "单据 {1}：出入仓明细不成对（第 {2} 行起 {3} 行）；请反审核后修改存盘。"},
        findings);
    Run({"Select fInvNo,fCkName From " + book.Headers() +
             " Where fCkName<>'' And fCkName=fCkName2 And fInvType<>31 And fInvType<>32",
         "单据 {1}：两个仓库相同（{2}）；请反审核后修改。"},
        findings);
}

void CheckFinishedProduct(const Book& book, Findings& findings) {
    const Rows rows = findings.Ask(
        "Select a.fInvNo,count(b.fInvID),min(b.fRowID),min(b.fInvSL),a.fInvJE,min(b.fInvJE) From " +
        book.Headers() + " a Left Join " + book.Lines() + " b On " + book.On("b", "a") +
        " And b.fInv1=1 Where a.fInvType=31 Or a.fInvType=32 Group By a.fInvID,a.fInvNo,a.fInvJE");
    for (size_t row = 0; row < rows.Count(); ++row) {
        const auto at = [&](size_t column) -> const Value& { return rows.At(row, column); };
        const bool amount = std::abs(at(4).AsDouble() - at(5).AsDouble()) <= 0.0051;
        if (at(1).AsLong() != 1 || at(2).AsLong() != 1 || at(3).AsDouble() == 0 || !amount)
            findings.Add("单据 " + at(0).AsText() +
                         "：成品行应有一行，数量不为 0，金额与单据一致；请反审核后修改存盘。");
    }
}

// A type's row may have been changed since: either direction of it is lawful then.
bool IsLawful(const CheckedTypes& types, int type, bool second, int direction) {
    if (type == DocType::Dismantling)
        return direction == Direction::In || direction == Direction::Out;
    TypeRow row;
    row.fSetNo = type;
    for (const int kind : ValuesOf(types, type, &TypeRow::fSetCrType1)) {
        row.fSetCrType1 = kind;
        if (direction == (second ? DirectionOfSecondRow(row) : DirectionOfFirstRow(row)))
            return true;
    }
    return false;
}

void CheckDirections(const Book& book, const CheckedTypes& types, Findings& findings) {
    const Rows rows = findings.Ask("Select a.fInvType,b.fInv1,b.fInvInOut,min(a.fInvNo),count(*) From " +
                                   book.Headers() + " a Inner Join " + book.Lines() + " b On " +
                                   book.On("b", "a") + " Group By a.fInvType,b.fInv1,b.fInvInOut");
    for (size_t row = 0; row < rows.Count(); ++row) {
        const auto at = [&](size_t column) -> const Value& { return rows.At(row, column); };
        const auto type = static_cast<int>(at(0).AsLong());
        if (types.contains(type) &&
            !IsLawful(types, type, at(1).AsLong() == 1, static_cast<int>(at(2).AsLong())))
            findings.Add("单据 " + at(3).AsText() + " 等 " + at(4).AsText() + " 行：明细的出入方向 " +
                         at(2).AsText() + " 与单据类型不符；请反审核后修改存盘。");
    }
    Run({"Select a.fInvNo From " + book.Headers() + " a Inner Join " + book.Lines() + " b On " +
             book.On("b", "a") +
             " Group By a.fInvID,a.fInvNo,b.fInv1 Having min(b.fInvInOut)<>max(b.fInvInOut)",
         "单据 {1}：同侧明细的出入方向不一致；请反审核后修改存盘。"},
        findings);
}

} // namespace

void CheckPairs(const CheckedCompany& company, Findings& findings) {
    for (const Book& book : AllBooks()) {
        CheckPartners(book, findings);
        if (!book.IsOfStock())
            continue;
        CheckFinishedProduct(book, findings);
        CheckDirections(book, company.types, findings);
    }
    Run({"Select a.fInvNo From (tJXC_CkDj01 a Inner Join tJXC_CkDj02 b On b.fInvID=a.fInvID And b.fInv1=0)"
         " Inner Join tJXC_CkDj02 c On c.fInvID=a.fInvID And c.fInv1=1 Where (a.fInvType=31 Or a.fInvType=32)"
         " And c.fInvInOut<>(case when b.fInvInOut=2 then 1 else 2 end) Group By a.fInvID,a.fInvNo",
         "单据 {1}：成品与散件的出入方向相同；请反审核后修改存盘。"},
        findings);
}

} // namespace jxc
