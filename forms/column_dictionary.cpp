#include "forms/column_dictionary.h"

#include <algorithm>
#include <set>

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr double kUsualWidth = 8;

GridColumn ColumnOf(const Recordset& row) {
    GridColumn column;
    column.caption = row[CaptionField()].AsText();
    column.width = row["FieldGridWidth"].IsNull() ? kUsualWidth : row["FieldGridWidth"].AsDouble();
    const std::int64_t type = row["FieldDataType"].AsLong();
    if (type == kDictionaryNumber) {
        column.type = CellType::Number;
        column.decimals = static_cast<int>(row["FieldDataDeci"].AsLong());
    } else if (type == kDictionaryTick) {
        column.type = CellType::Check;
    }
    const std::int64_t alignment = row["FieldHAlign"].AsLong();
    column.alignment = alignment == kDictionaryRight    ? Alignment::Right
                       : alignment == kDictionaryCenter ? Alignment::Center
                                                        : Alignment::Left;
    return column;
}

std::string RowsOf(const std::string& table) {
    return "select * from rptListDetail where ftable=" + InQuotes(table) + " Order By fieldID,FieldName";
}

void AddColumn(Recordset& dictionary, const std::string& table, std::int64_t place, const Column& column) {
    dictionary.AddNew();
    dictionary.Set("ftable", table);
    dictionary.Set("fieldID", place);
    dictionary.Set("FieldName", column.field);
    dictionary.Set("FieldName_0", column.caption);
    dictionary.Set("FieldName_1", column.caption);
    dictionary.Set("FieldGridWidth", column.width);
    dictionary.Set("FieldDataType", column.IsNumber() ? kDictionaryNumber : kDictionaryText);
    dictionary.Set("FieldDataDeci", DecimalsOf(column));
    dictionary.Set("FieldHAlign", column.IsNumber() ? kDictionaryRight : kDictionaryLeft);
    dictionary.Set("FieldSelected", 1);
    dictionary.Set("FieldBriefType", "");
    dictionary.Set("FEnabled", 1);
    dictionary.Update();
}

} // namespace

std::string CaptionField() {
    return "FieldName_" + std::to_string(session.Language);
}

std::string CaptionStatement(const std::string& table, const std::string& field) {
    return "Select Fieldname_" + std::to_string(session.Language) + " from rptListDetail" + " where " +
           LowerCaseOf("ftable") + " =" + InQuotes(LowerCase(table)) + " and " + LowerCaseOf("FieldName") +
           " =" + InQuotes(LowerCase(field));
}

std::string GetFieldCaption(const std::string& table, const std::string& field) {
    const Recordset row(Conn(), CaptionStatement(table, field));
    return row.AtEnd() ? kNoCaption : row[size_t{0}].AsText();
}

std::string SetupGridColumns(const std::string& table, Grid& grid, int firstColumn) {
    Recordset row(Conn(), "select FieldName," + CaptionField() +
                              ",FieldGridWidth,FieldDataType,FieldDataDeci,FieldHAlign from RptListDetail "
                              "where ftable=" +
                              InQuotes(table) + " and FieldSelected=1 order by fieldID");
    std::vector<GridColumn> columns(static_cast<size_t>(firstColumn - 1));
    std::vector<std::string> fields;
    for (; !row.AtEnd(); row.MoveNext()) {
        if (!Conn().HasColumn(table, row["FieldName"].AsText()))
            continue; // a mistake in the dictionary shuts no screen
        columns.push_back(ColumnOf(row));
        fields.push_back(row["FieldName"].AsText());
    }
    columns.push_back({.hidden = true});
    grid.SetColumns(std::move(columns));
    grid.readOnly = true;
    grid.visible = true;
    return JoinedByCommas(fields);
}

void SaveGridColumnWidths(const std::string& table, const Grid& grid, int firstColumn,
                          const std::string& fields) {
    const std::vector<std::string> names = Split(fields, ',');
    Transaction transaction(Conn());
    Recordset row(Conn(),
                  "select * from rptListDetail Where fTable=" + InQuotes(table) +
                      " And FieldSelected=1 Order by fieldID",
                  Access::Write);
    for (; !row.AtEnd(); row.MoveNext()) {
        const auto place = std::ranges::find_if(
            names, [&](const std::string& name) { return EqualsNoCase(name, row["FieldName"].AsText()); });
        if (place == names.end())
            continue; // another user has chosen it meanwhile
        row.Set("FieldGridWidth", grid.Column(firstColumn + static_cast<int>(place - names.begin())).width);
        row.Update();
    }
    transaction.Commit();
    Inform(grid.screen.title, "栏目样式保存完毕！");
}

void CompleteDictionary(const std::string& table, const std::vector<Column>& shipped) {
    Transaction transaction(Conn());
    Recordset dictionary(Conn(), RowsOf(table), Access::Write);
    std::set<std::string> known;
    std::int64_t place = 0;
    for (; !dictionary.AtEnd(); dictionary.MoveNext()) {
        known.insert(LowerCase(dictionary["FieldName"].AsText()));
        place = std::max(place, dictionary["fieldID"].AsLong());
    }
    for (const Column& column : shipped)
        if (column.IsUsed() && !known.contains(LowerCase(column.field)))
            AddColumn(dictionary, table, ++place, column);
    transaction.Commit();
}

std::vector<Column> CompanysColumns(const std::string& table, std::vector<Column> shipped) {
    std::vector<Column> ordered;
    for (Recordset row(Conn(), RowsOf(table)); !row.AtEnd(); row.MoveNext()) {
        const auto found = std::ranges::find_if(shipped, [&](const Column& column) {
            return column.figure != Figure::Key && EqualsNoCase(column.field, row["FieldName"].AsText());
        });
        if (found == shipped.end())
            continue;
        if (const std::string caption = row[CaptionField()].AsText(); !caption.empty() && !found->ownCaption)
            found->caption = caption;
        found->selected = row["FieldSelected"].AsLong() != 0;
        ordered.push_back(std::move(*found));
        shipped.erase(found);
    }
    std::ranges::move(shipped, std::back_inserter(ordered));
    return ordered;
}

bool ChooseColumns(const std::string& table, const std::vector<Column>& shipped) {
    CompleteDictionary(table, shipped);
    return !OpenBriefPicker(table, "", BriefKind::SelectColumns).empty();
}

std::string OpenBriefPicker(const std::string& table, const std::string& code, BriefKind kind) {
    return ComponentsInUse().codeLists->Edit(table, code, kind);
}

void OpenFieldSettings(const std::string& table, const std::string& field) {
    Screen& settings = ScreenNamed("frmRs_RptSet");
    settings.SetProperty("TabelName", table);
    settings.SetProperty("Field", field);
    settings.SetProperty("ItemEnable", 0);
    ShowModal(settings);
}

bool SetControlCaption(Label& control, const std::string& table) {
    session.RptSetResult = control.caption; // stays when the window is closed without a choice
    OpenFieldSettings(table, control.tag);
    if (session.RptSetResult == control.caption)
        return false;
    control.caption = session.RptSetResult;
    return true;
}

} // namespace jxc
