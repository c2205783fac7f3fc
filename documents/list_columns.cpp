#include "documents/list_columns.h"

#include <set>

#include "documents/document_list.h"
#include "session/database/recordset.h"
#include "session/grid_routines.h"
#include "session/session.h"
#include "settings/column_dictionary.h"

namespace jxc {

namespace {

constexpr ListColumn kDocumentColumns[] = {{"日期", "fInvDate", 10, Show::Day},
                                           {"单号", "fInvNo", 15},
                                           {"客户", "CompName", 24},
                                           {"仓库", "fCkName", 10},
                                           {"仓库2", "fCkName2", 10},
                                           {"订单号", "fHtNo", 15},
                                           {"摘要", "fInvMemo", 12},
                                           {"状态", "fFlag", 8, Show::Status},
                                           {"登录人", "fInvDLR", 8},
                                           {"经办人", "fInvJbr", 8},
                                           {"审核人", "fInvSHR", 8},
                                           {"fInvType", "fInvType", 0, Show::Hidden},
                                           {"fInvID", "fInvID", 0, Show::Hidden}};

constexpr int kMemo1 = 13;
constexpr int kMemo2 = 14;
constexpr ListColumn kLineColumns[] = {{"日期", "fInvDate", 10, Show::Day},
                                       {"单据类", "fSetName", 10},
                                       {"单号", "fInvNo", 15},
                                       {"客户", "CompName", 24},
                                       {"仓库", "fCkName", 10},
                                       {"编码", "fCpCode", 12},
                                       {"品名规格", "fCpName", 30, Show::Product},
                                       {"单位", "fCpUnit", 6},
                                       {"数量", "fInvSL", 9, Show::Quantity},
                                       {"单价", "fInvDJ", 10, Show::Price},
                                       {"金额", "fInvJE", 12, Show::Amount},
                                       {"税额", "fInvTax", 10, Show::Amount},
                                       {"", "fInvOther1", 14},
                                       {"", "fInvOther2", 14},
                                       {"登录人", "fInvDLR", 8},
                                       {"经办人", "fInvJbr", 8},
                                       {"审核人", "fInvSHR", 8},
                                       {"fInvType", "fInvType", 0, Show::Hidden},
                                       {"fInvID", "fInvID", 0, Show::Hidden}};

void SetUpGrid(Grid& grid, std::span<const ListColumn> columns, const Parameters& parameters) {
    std::vector<GridColumn> shown;
    for (const ListColumn& column : columns) {
        const bool number =
            column.show == Show::Quantity || column.show == Show::Price || column.show == Show::Amount;
        shown.push_back({.caption = column.caption,
                         .type = number ? CellType::Number : CellType::Text,
                         .decimals = column.show == Show::Quantity ? parameters.quantityDecimals
                                     : column.show == Show::Price  ? parameters.priceDecimals
                                                                   : 2,
                         .width = column.width,
                         .hidden = column.show == Show::Hidden,
                         .locked = true,
                         .alignment = number ? Alignment::Right : Alignment::Left});
    }
    grid.SetColumns(std::move(shown));
    grid.readOnly = true;
}

// A line memo that the company does not name is not used.
bool IsUsed(const GridColumn& column, const ListColumn& definition) {
    return definition.show != Show::Hidden && !column.caption.empty();
}

std::string DictionaryOf(bool lines) {
    return "select * from rptListDetail where ftable='" + ListKey(lines) + "' Order By fieldID";
}

void HideUnselected(frmDj01& s, bool lines) {
    std::set<std::string> unselected;
    for (Recordset row(Conn(), DictionaryOf(lines)); !row.AtEnd(); row.MoveNext())
        if (row["FieldSelected"].AsLong() == 0)
            unselected.insert(row["FieldName"].AsText());
    int place = 0;
    for (const ListColumn& definition : ColumnsOf(lines)) {
        GridColumn& column = GridOf(s, lines).Column(++place);
        column.hidden = !IsUsed(column, definition) || unselected.contains(definition.field);
    }
}

void AddToDictionary(Recordset& dictionary, const std::string& key, int place, const ListColumn& definition,
                     const GridColumn& column) {
    dictionary.AddNew();
    dictionary.Set("ftable", key);
    dictionary.Set("fieldID", place);
    dictionary.Set("FieldName", definition.field);
    dictionary.Set("FieldName_0", column.caption);
    dictionary.Set("FieldName_1", column.caption);
    dictionary.Set("FieldGridWidth", column.width);
    dictionary.Set("FieldDataType", column.type == CellType::Number ? kDictionaryNumber : kDictionaryText);
    dictionary.Set("FieldDataDeci", column.decimals);
    dictionary.Set("FieldHAlign", column.alignment == Alignment::Right ? kDictionaryRight : kDictionaryLeft);
    dictionary.Set("FieldSelected", 1);
    dictionary.Set("FieldBriefType", "");
    dictionary.Set("FEnabled", 1);
    dictionary.Update();
}

void CompleteDictionary(frmDj01& s, bool lines) {
    Transaction transaction(Conn());
    Recordset dictionary(Conn(), DictionaryOf(lines), Access::Write);
    std::set<std::string> known;
    for (; !dictionary.AtEnd(); dictionary.MoveNext())
        known.insert(dictionary["FieldName"].AsText());
    int place = 0;
    for (const ListColumn& definition : ColumnsOf(lines)) {
        const GridColumn& column = GridOf(s, lines).Column(++place);
        if (IsUsed(column, definition) && !known.contains(definition.field))
            AddToDictionary(dictionary, ListKey(lines), place, definition, column);
    }
    transaction.Commit();
}

} // namespace

std::span<const ListColumn> ColumnsOf(bool lines) {
    return lines ? std::span<const ListColumn>(kLineColumns) : std::span<const ListColumn>(kDocumentColumns);
}

std::string ListKey(bool lines) {
    return lines ? "lzJxc_Dj02" : "lzJxc_Dj01";
}

void SetUpListGrids(frmDj01& s, const Parameters& parameters) {
    SetUpGrid(s.Grid1, kDocumentColumns, parameters);
    SetUpGrid(s.Grid2, kLineColumns, parameters);
    const std::string* const memos[] = {&parameters.memo1, &parameters.memo2};
    for (const int column : {kMemo1, kMemo2})
        s.Grid2.Column(column).caption = *memos[column - kMemo1];
    for (const bool lines : {false, true})
        HideUnselected(s, lines);
}

void ChooseColumns(frmDj01& s) {
    const bool lines = s.SSTab1.index == kLineTab || (s.SSTab1.index == kFilterTab && !s.chkDj.value);
    ClearSortMark(GridOf(s, lines)); // no part of a caption
    CompleteDictionary(s, lines);
    if (!OpenBriefPicker(ListKey(lines), "", BriefKind::SelectColumns).empty())
        HideUnselected(s, lines);
}

} // namespace jxc
