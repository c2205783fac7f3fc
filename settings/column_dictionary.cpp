#include "settings/column_dictionary.h"

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr double kUsualWidth = 8;

std::string CaptionField() {
    return "FieldName_" + std::to_string(session.Language);
}

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

} // namespace

std::string GetFieldCaption(const std::string& table, const std::string& field) {
    const Recordset row(Conn(), "Select Fieldname_" + std::to_string(session.Language) +
                                    " from rptListDetail" + " where " + LowerCaseOf("ftable") + " =" +
                                    InQuotes(LowerCase(table)) + " and " + LowerCaseOf("FieldName") + " =" +
                                    InQuotes(LowerCase(field)));
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
        columns.push_back(ColumnOf(row));
        fields.push_back(row["FieldName"].AsText());
    }
    columns.push_back({.hidden = true});
    grid.SetColumns(std::move(columns));
    grid.readOnly = true;
    grid.visible = true;
    return JoinedByCommas(fields);
}

void SaveGridColumnWidths(const std::string& table, const Grid& grid, int firstColumn) {
    Transaction transaction(Conn());
    Recordset row(Conn(),
                  "select * from rptListDetail Where fTable=" + InQuotes(table) +
                      " And FieldSelected=1 Order by fieldID",
                  Access::Write);
    // The last column is the key's; another user may have chosen more columns meanwhile.
    for (int column = firstColumn; !row.AtEnd() && column < grid.ColumnCount(); ++column, row.MoveNext()) {
        row.Set("FieldGridWidth", grid.Column(column).width);
        row.Update();
    }
    transaction.Commit();
    Inform(grid.screen.title, "栏目样式保存完毕！");
}

std::string OpenBriefPicker(const std::string& table, const std::string& code, BriefKind kind) {
    return ComponentsInUse().codeLists->Edit(table, code, kind);
}

bool SetControlCaption(Label& control, const std::string& table) {
    Screen& settings = ScreenNamed("frmRs_RptSet");
    settings.SetProperty("TabelName", table);
    settings.SetProperty("Field", control.tag);
    settings.SetProperty("ItemEnable", 0);
    session.RptSetResult = control.caption; // stays when the window is closed without a choice
    ShowModal(settings);
    if (session.RptSetResult == control.caption)
        return false;
    control.caption = session.RptSetResult;
    return true;
}

} // namespace jxc
