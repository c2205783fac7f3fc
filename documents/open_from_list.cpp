// From the document list into frmDj02: the commands, the menu of a row, and the picker's answer.

#include "base/text.h"
#include "controls/view.h"
#include "documents/document_list.h"
#include "documents/document_state.h"

namespace jxc {

namespace {

constexpr int kFromRow = -1;

// The next documents of the chain from plan to sale, and the returns.
struct Conversion {
    int source;
    int target;
    const char* name;
    const char* caption;
};
constexpr Conversion kConversions[] = {
    {20, 21, "mnuJhToXj", "产生：询价单"},        {20, 23, "mnuJhToCg", "产生：采购订单"},
    {20, 1, "mnuJhToRk", "产生：入库单"},         {21, 23, "mnuXjToOrder", "生成：采购订单"},
    {21, 1, "mnuXjToInv", "生成：入库单"},        {21, 22, "mnuXjToBj", "转为：报价单"},
    {22, 24, "mnuBjToOrder1", "生成：销售订单"},  {22, 2, "mnuBjToInv1", "生成：出库单"},
    {22, 6, "mnuBjToInvDx1", "生成：代销发货单"}, {22, 21, "mnuBjToXj", "转为：询价单"},
    {23, 1, "mnuCgToInv", "生成：入库单"},        {23, 24, "mnuCgToXs", "转为：销售订单"},
    {24, 2, "mnuXsToInv", "生成：出库单"},        {24, 6, "mnuXsToInvDx", "生成：代销发货单"},
    {24, 23, "mnuXsToCg", "转为：采购订单"},      {1, 2, "mnuRkToInvCk", "生成：出库单"},
    {1, 6, "mnuRkToInvDx", "生成：代销发货单"},   {1, -1, "mnuRkInvBack", "产生：入库退货单"},
    {2, -2, "mnuCkInvBack", "产生：出库退货单"},  {5, -5, "mnuLsInvBack", "产生：零售退货单"},
    {6, -6, "mnuDxInvBack1", "产生：代销退货单"}, {7, -7, "mnuDxInvBack2", "产生：代销结退单"},
};

// Either list ends in type and key.
int TypeColumn(const Grid& grid) {
    return grid.ColumnCount() - 1;
}

// The grid in front when a row of it is selected.
Grid* GridWithSelection(frmDj01& s) {
    Grid* grid = FrontGrid(s);
    return grid && grid->selectedRow > 0 ? grid : nullptr;
}

int TypeOfRow(const Grid& grid, int row) {
    return static_cast<int>(grid.Cell(row, TypeColumn(grid)).AsLong());
}

bool TakeSelectedDocument(frmDj01& s) {
    const Grid* grid = GridWithSelection(s);
    if (!grid)
        return false;
    s.invID = static_cast<std::int32_t>(grid->Cell(grid->selectedRow, grid->ColumnCount()).AsLong());
    s.approver = grid->Text(grid->selectedRow, s.ListOf(grid == &s.Grid2).Place("fInvSHR"));
    return s.invID >= 1;
}

} // namespace

bool ShowsClosedBook(const frmDj01& s) {
    return EqualsNoCase(s.shown.stem, "tJXC_CkDj_Bak");
}

void OpenDocument(frmDj01& s, DocAction action, int type, int fromType, int rowFlag) {
    if (action != DocAction::New || rowFlag == kFromRow) {
        if (!TakeSelectedDocument(s))
            return;
        if (const std::string refusal = RefusalIn(StateByApprover(s.approver), action); !refusal.empty())
            return Warn(s.title, refusal);
    }
    const ScreenToShow entry("frmDj02"); // a picker stands over the document being entered
    entry->SetProperty("JzState", ShowsClosedBook(s) ? 1 : 0);
    entry->SetProperty("oldInvID", s.invID);
    entry->SetProperty("Action", static_cast<int>(action));
    entry->SetProperty("invType", type);
    entry->SetProperty("OldType", action == DocAction::New ? fromType : type);
    ShowModal(*entry);
    if (entry->GetProperty("Action").AsLong() !=
        static_cast<int>(DocAction::Query)) // it may be taken further there
        RefreshList(s);
}

void RunAction(frmDj01& s, DocAction action) {
    if (action == DocAction::New) {
        if (const auto type = TickedType(s))
            OpenDocument(s, action, *type, 0, 0);
        else
            Inform(s.title, "请选择单据类型！");
        return;
    }
    if (const Grid* grid = GridWithSelection(s))
        OpenDocument(s, action, TypeOfRow(*grid, grid->selectedRow), 0, 0);
}

void PickDocument(frmDj01& s) {
    if (GridWithSelection(s) != &s.Grid1)
        return;
    s.DjCode = s.Grid1.Text(s.Grid1.selectedRow, s.documents.Place("fInvNo"));
    s.DjID = static_cast<std::int32_t>(s.Grid1.Cell(s.Grid1.selectedRow, s.Grid1.ColumnCount()).AsLong());
    s.DjJz = s.chkJz.value ? 1 : 0;
    s.DjBook = ShowsClosedBook(s) ? 1 : 0;
    s.Close();
}

void AddConversions(frmDj01& s) {
    for (const Conversion& c : kConversions) {
        s.conversions.push_back(std::make_unique<ConversionItem>(s, c.name, c.caption, c.source, c.target));
        s.conversions.back()->onClick = [&s, &c] {
            OpenDocument(s, DocAction::New, c.target, c.source, kFromRow);
        };
    }
}

std::vector<Command*> MenuOfRow(frmDj01& s, int row) {
    std::vector<Command*> items;
    const int type = TypeOfRow(s.Grid1, row);
    for (const auto& item : s.conversions)
        if (item->source == type)
            items.push_back(item.get());
    items.push_back(&s.mnuShCheck);
    items.push_back(&s.mnuShUncheck);
    return items;
}

void ShowRowMenu(frmDj01& s) {
    for (const auto& item : s.conversions)
        item->visible = false;
    s.mnuShCheck.visible = s.mnuShUncheck.visible = false;
    if (GridWithSelection(s) == &s.Grid1)
        for (Command* item : MenuOfRow(s, s.Grid1.selectedRow))
            item->visible = true;
}

} // namespace jxc
