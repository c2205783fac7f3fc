#include "documents/frmDj01.h"

#include "controls/grid_routines.h"
#include "controls/view.h"
#include "documents/document_list.h"
#include "documents/document_state.h"
#include "documents/list_columns.h"
#include "forms/suggest.h"
#include "session/period.h"

namespace jxc {

namespace {

const std::string kAllTypes = "仓库明细查询";

int ListTab(const frmDj01& s) {
    return s.chkDj.value ? kDocumentTab : kLineTab;
}

void ShowTitle(frmDj01& s) {
    const std::string& tab = s.SSTab1.captions[static_cast<size_t>(ListTab(s))];
    if (s.Mode() != ListMode::AllTypes)
        s.title = tab;
    else
        s.title = TickedType(s) ? tab + kAllTypes + "：" : kAllTypes;
}

// Where nothing is listed, nothing can be done with a row; the lists of all types and the picker keep their
// commands.
void ShowTab(frmDj01& s) {
    const bool filters = s.SSTab1.index == kFilterTab;
    if (s.Mode() == ListMode::OneType) {
        for (Button& command : s.CmdAction)
            command.visible = !filters;
        s.cmdCpKc.visible = s.cmdPrint.visible = s.cmdPrintAll.visible = s.cmdQuit.visible = !filters;
    }
    ShowRowMenu(s);
    if (!filters)
        s.MoveFocus(FrontGrid(s));
    else if (s.cboInvType.IsUsable())
        s.MoveFocus(&s.cboInvType);
}

void GoToTab(frmDj01& s, int tab) {
    s.SSTab1.index = tab;
    ShowTab(s);
}

// Closed documents are read only: those that are shown, whatever has been ticked for the next query.
void AllowActions(frmDj01& s) {
    const DocState state = ShowsClosedBook(s) ? DocState::Closed : DocState::Open;
    if (s.Mode() == ListMode::OneType)
        for (const DocAction action :
             {DocAction::New, DocAction::Change, DocAction::Delete, DocAction::Approve})
            s.CmdAction[static_cast<int>(action)].enabled = IsOfferedByList(state, action);
    s.mnuShCheck.enabled = s.mnuShUncheck.enabled = s.CmdAction[static_cast<int>(DocAction::Approve)].enabled;
}

// A query without a hit leaves the rows of the one before, with all that hangs on them. The first one is kept all
// the same: a document that is entered from the empty list appears in it.
void List(frmDj01& s) {
    const std::string before = s.title;
    ShowTitle(s);
    const ListQuery query = BuildQuery(s);
    const bool first = s.shown.sql.empty();
    const size_t rows = FillGrids(s, query, first);
    if (rows > 0 || first)
        s.shown = query;
    AllowActions(s);
    if (rows > 0)
        return GoToTab(s, ListTab(s));
    Warn(s.title, "未有符合条件的单据记录！");
    if (!first)
        s.title = before;
}

void ShowAllCommands(frmDj01& s) {
    for (Button& command : s.CmdAction)
        command.visible = command.enabled = true;
    s.cmdCpKc.visible = s.cmdPrint.visible = s.cmdPrintAll.visible = s.cmdQuit.visible = true;
    s.cmdSelect.visible = s.Mode() == ListMode::Picker;
}

void WireFilters(frmDj01& s) {
    s.SSTab1.onChange = [&s] { ShowTab(s); };
    for (CheckBox* box : {&s.chkDj, &s.chkDjMx})
        box->onChange = [&s] {
            OfferLists(s);
            if (s.SSTab1.disabledTabs.contains(s.SSTab1.index))
                GoToTab(s, kFilterTab);
        };
    s.chkInvType.onChange = [&s] { ApplyTickedType(s); };
    s.cboInvType.onChoose = [&s] { ApplyTickedType(s); };
    SuggestCardsIn(s.txtKh);
    SuggestItemsIn(s.cboCk[0]);
    SuggestProductsIn(s.txtCp[0], ProductPart::Code);
    SuggestProductsIn(s.txtCp[1], ProductPart::Name);
    s.filters = Filters(ListFilters(s));
}

void WireGrids(frmDj01& s) {
    for (Grid* grid : {&s.Grid1, &s.Grid2}) {
        grid->manyRows = true;
        grid->onHeading = [&s, grid](int column) {
            GridSort(*grid, column);
            ShowRowMenu(s);
        };
        grid->onSelect = [&s](int) { ShowRowMenu(s); };
        grid->onDoubleClick = [&s](int) {
            if (s.Mode() == ListMode::Picker)
                PickDocument(s);
            else
                RunAction(s, DocAction::Query);
        };
    }
    s.Grid1.rowMenu = [&s](int row) { return MenuOfRow(s, row); };
}

void WireCommands(frmDj01& s) {
    s.cmdList.onClick = [&s] { List(s); };
    s.cmdSeekCancel.onClick = [&s] { GoToTab(s, ListTab(s)); };
    s.cmdSelect.onClick = [&s] { PickDocument(s); };
    for (int i = 0; i < 5; ++i)
        s.CmdAction[i].onClick = [&s, i] { RunAction(s, static_cast<DocAction>(i)); };
    s.mnuShCheck.onClick = [&s] { RunAction(s, DocAction::Approve); };
    s.mnuShUncheck.onClick = [&s] { RunAction(s, DocAction::Reverse); };
    s.cmdPrint.onClick = [&s] { PrintList(s); };
    s.cmdPrintAll.onClick = [&s] { PrintSelected(s); };
    s.cmdCpKc.onClick = [] {
        Screen& stock = ScreenNamed("frmCkKc");
        stock.SetProperty("myState", 0);
        ShowModal(stock);
    };
    s.cmdColSet.onClick = [&s] { ChooseListColumns(s); };
    s.cmdQuit.onClick = [&s] { s.Close(); };
}

} // namespace

frmDj01::frmDj01() : Screen("frmDj01") {
    AddNumberProperty("invType", rawType);
    AddTextProperty("DjCode", DjCode);
    AddNumberProperty("DjID", DjID);
    AddNumberProperty("DjJz", DjJz);
    AddNumberProperty("DjBook", DjBook);
    AddConversions(*this);
    WireFilters(*this);
    WireGrids(*this);
    WireCommands(*this);
}

void frmDj01::Open() {
    LoadPeriodSettings();
    const Parameters parameters = ReadParameters();
    DjCode.clear();
    DjID = 0;
    DjBook = 0;
    DjJz = 0;
    shown = {};
    if (Mode() == ListMode::Picker)
        chkDj.value = chkDjMx.value = true;
    OfferLists(*this);
    ShowAllCommands(*this);
    SetUpListGrids(*this, parameters);
    chkInvType.value = false;
    ShowTitle(*this);
    ResetFilters(*this, parameters);
    AllowActions(*this);
    GoToTab(*this, kFilterTab);
    // A host that wants the documents of one type sees them at once.
    if (Mode() == ListMode::OneType && SSTab1.disabledTabs.contains(kLineTab)) {
        List(*this);
        GoToTab(*this, kDocumentTab);
    }
}

} // namespace jxc
