#include "documents/list_columns.h"

#include <algorithm>
#include <set>

#include "base/text.h"
#include "database/recordset.h"
#include "documents/document_list.h"
#include "session/dialect.h"
#include "session/session.h"
#include "settings/column_dictionary.h"

namespace jxc {

namespace {

const std::vector<ListColumn> kDocumentColumns = {{"日期", "fInvDate", 10, Show::Day},
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

const std::vector<ListColumn> kLineColumns = {{"日期", "fInvDate", 10, Show::Day},
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

// A line memo that the company does not name is not used.
bool IsUsed(const ListColumn& column) {
    return column.show != Show::Hidden && !column.caption.empty();
}

bool IsNumber(const ListColumn& column) {
    return column.show == Show::Quantity || column.show == Show::Price || column.show == Show::Amount;
}

int DecimalsOf(const ListColumn& column, const Parameters& parameters) {
    return column.show == Show::Quantity ? parameters.quantityDecimals
           : column.show == Show::Price  ? parameters.priceDecimals
                                         : 2;
}

void SetUpGrid(Grid& grid, const std::vector<ListColumn>& columns, const Parameters& parameters) {
    std::vector<GridColumn> shown;
    for (const ListColumn& column : columns) {
        const bool number = IsNumber(column);
        shown.push_back({.caption = column.caption,
                         .type = number ? CellType::Number : CellType::Text,
                         .decimals = DecimalsOf(column, parameters),
                         .width = column.width,
                         .hidden = column.unselected || !IsUsed(column),
                         .locked = true,
                         .alignment = number ? Alignment::Right : Alignment::Left});
    }
    grid.SetColumns(std::move(shown));
    grid.readOnly = true;
}

std::string DictionaryOf(bool lines) {
    return "select * from rptListDetail where ftable=" + InQuotes(ListKey(lines)) +
           " Order By fieldID,FieldName";
}

bool IsMemo(const std::string& field) {
    return field == "fInvOther1" || field == "fInvOther2";
}

// The columns as shipped, the memos called as the company calls them.
std::vector<ListColumn> ShippedColumns(bool lines, const Parameters& parameters) {
    std::vector<ListColumn> columns = lines ? kLineColumns : kDocumentColumns;
    for (ListColumn& column : columns)
        if (IsMemo(column.field))
            column.caption = column.field == "fInvOther1" ? parameters.memo1 : parameters.memo2;
    return columns;
}

// The same in the company's order, under its own captions: first those that its dictionary has, then the others;
// type and key stay last.
std::vector<ListColumn> CompanysColumns(bool lines, const Parameters& parameters) {
    std::vector<ListColumn> rest = ShippedColumns(lines, parameters);
    std::vector<ListColumn> ordered;
    const std::string captions = "FieldName_" + std::to_string(session.Language);
    for (Recordset row(Conn(), DictionaryOf(lines)); !row.AtEnd(); row.MoveNext()) {
        const auto found = std::find_if(rest.begin(), rest.end(), [&](const ListColumn& column) {
            return column.show != Show::Hidden && EqualsNoCase(column.field, row["FieldName"].AsText());
        });
        if (found == rest.end())
            continue;
        if (const std::string caption = row[captions].AsText(); !caption.empty() && !IsMemo(found->field))
            found->caption = caption;
        found->unselected = row["FieldSelected"].AsLong() == 0;
        ordered.push_back(*found);
        rest.erase(found);
    }
    ordered.insert(ordered.end(), rest.begin(), rest.end());
    return ordered;
}

void AddToDictionary(Recordset& dictionary, const std::string& key, int place, const ListColumn& column,
                     const Parameters& parameters) {
    const bool number = IsNumber(column);
    dictionary.AddNew();
    dictionary.Set("ftable", key);
    dictionary.Set("fieldID", place);
    dictionary.Set("FieldName", column.field);
    dictionary.Set("FieldName_0", column.caption);
    dictionary.Set("FieldName_1", column.caption);
    dictionary.Set("FieldGridWidth", column.width);
    dictionary.Set("FieldDataType", number ? kDictionaryNumber : kDictionaryText);
    dictionary.Set("FieldDataDeci", DecimalsOf(column, parameters));
    dictionary.Set("FieldHAlign", number ? kDictionaryRight : kDictionaryLeft);
    dictionary.Set("FieldSelected", 1);
    dictionary.Set("FieldBriefType", "");
    dictionary.Set("FEnabled", 1);
    dictionary.Update();
}

// Columns that the dictionary does not have yet go behind those that it has.
void CompleteDictionary(bool lines, const Parameters& parameters) {
    Transaction transaction(Conn());
    Recordset dictionary(Conn(), DictionaryOf(lines), Access::Write);
    std::set<std::string> known;
    std::int64_t place = 0;
    for (; !dictionary.AtEnd(); dictionary.MoveNext()) {
        known.insert(LowerCase(dictionary["FieldName"].AsText()));
        place = std::max(place, dictionary["fieldID"].AsLong());
    }
    for (const ListColumn& column : ShippedColumns(lines, parameters))
        if (IsUsed(column) && !known.contains(LowerCase(column.field)))
            AddToDictionary(dictionary, ListKey(lines), static_cast<int>(++place), column, parameters);
    transaction.Commit();
}

void SetUpGridOf(frmDj01& s, bool lines, const Parameters& parameters) {
    s.columns[lines] = CompanysColumns(lines, parameters);
    SetUpGrid(GridOf(s, lines), s.columns[lines], parameters);
}

} // namespace

std::string ListKey(bool lines) {
    return lines ? "lzJxc_Dj02" : "lzJxc_Dj01";
}

int ListColumnOf(const frmDj01& s, bool lines, const std::string& field) {
    int place = 0;
    for (const ListColumn& column : s.columns[lines]) {
        ++place;
        if (column.field == field)
            return place;
    }
    return 0;
}

void SetUpListGrids(frmDj01& s, const Parameters& parameters) {
    for (const bool lines : {false, true})
        SetUpGridOf(s, lines, parameters);
}

void ChooseColumns(frmDj01& s) {
    const bool lines = s.SSTab1.index == kLineTab || (s.SSTab1.index == kFilterTab && !s.chkDj.value);
    const Parameters parameters = ReadParameters();
    CompleteDictionary(lines, parameters);
    if (OpenBriefPicker(ListKey(lines), "", BriefKind::SelectColumns).empty())
        return;
    const SortAndSelection kept = KeepSortAndSelection(s, lines);
    SetUpGridOf(s, lines, parameters);
    if (s.shown.lines == lines)
        RefillList(s, kept);
}

} // namespace jxc
