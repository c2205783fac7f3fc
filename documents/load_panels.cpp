// The commands that load lines and their panels, of which one stands open at a time.

#include <algorithm>
#include <cstdlib>

#include "base/text.h"
#include "controls/view.h"
#include "documents/document_entry.h"
#include "documents/load_lines.h"
#include "forms/edit_filter.h"
#include "settings/document_numbers.h"

namespace jxc {

namespace {

constexpr int kKitCodeBytes = 12;

// Where the person was before the panel, or at the lines.
void GoBack(frmDj02& s) {
    Control* back = s.beforePanel;
    s.MoveFocus(back && back->IsUsable() ? back : &s.Grid2);
}

// Shows the panel, with the cursor in it, in place of another; or hides it, and a cursor that was in it goes back.
void TurnPanel(frmDj02& s, Frame& panel, Control& first) {
    const bool opens = !panel.visible;
    Control* from = s.LastField();
    const bool fromPanel = from && s.PanelCommand(*from);
    for (Frame* each : {&s.fraLoad, &s.fraLoadInv, &s.fraPdTj})
        each->visible = opens && each == &panel;
    if (opens) {
        if (from && !fromPanel)
            s.beforePanel = from;
        s.MoveFocus(&first);
    } else if (fromPanel) {
        GoBack(s);
    }
}

// Ready for the next one; Esc leads to the lines now.
void AfterLoading(frmDj02& s, bool loaded, TextBox& typed) {
    if (!loaded)
        return;
    s.beforePanel = &s.Grid2;
    typed.SelectAll();
    s.MoveFocus(&typed);
}

bool HasWarehouse(frmDj02& s) {
    if (!StockWarehouse(s).empty())
        return true;
    Warn(s.title, "请输入[" + s.lblCkName.caption + "] ！");
    s.MoveFocus(&s.cboCkName);
    return false;
}

OptionButton& ChosenOption(frmDj02& s) {
    return *std::ranges::find_if(s.optPd, [](const OptionButton& option) { return option.value; });
}

void WireStocktake(frmDj02& s) {
    s.cmdPdTj.onClick = [&s] {
        if (s.fraPdTj.visible || HasWarehouse(s))
            TurnPanel(s, s.fraPdTj, ChosenOption(s));
    };
    for (CheckBox& box : s.chkPd)
        box.onChange = [&s, &box] {
            if (std::ranges::none_of(s.chkPd, [](const CheckBox& each) { return each.value; }))
                box.value = true; // without any sign nothing would be listed
        };
    s.cmdPdTj2.onClick = [&s] {
        if (HasWarehouse(s))
            ListForStocktake(s);
    };
}

} // namespace

void WireLoading(frmDj02& s) {
    FilterKeys(s.txtNo2, kNumberBytes);
    FilterKeys(s.txtTjCode, kKitCodeBytes);
    FilterKeys(s.txtInvSL2, 10, true);
    for (TextBox* box : {&s.txtNo2, &s.txtTjCode})
        box->onLeave = [box] {
            box->text = TrimAnyBlanks(box->text);
            return CheckNoQuote(box->text);
        };
    s.cmdLoad.onClick = [&s] { TurnPanel(s, s.fraLoad, s.cboInvType2); };
    s.cmdLoadDj2.onClick = [&s] { AfterLoading(s, LoadFromDocument(s), s.txtNo2); };
    s.cmdLoadDd2.onClick = [&s] {
        if (LoadFromOrder(s))
            s.MoveFocus(&s.Grid2);
    };
    s.cmdCpZj.onClick = [&s] { TurnPanel(s, s.fraLoadInv, s.txtTjCode); };
    s.cmdLoadTj2.onClick = [&s] { AfterLoading(s, LoadFromKit(s), s.txtTjCode); };
    WireStocktake(s);
}

void SetUpLoading(frmDj02& s) {
    const bool editing = IsEditing(s.InHand());
    const int kind = std::abs(s.invType);
    s.cmdLoad.enabled = s.cmdCpZj.enabled = editing;
    s.cmdLoadDd2.visible = editing && s.type.fSetDjDd_;
    s.cmdLoadDd2.enabled = kind == DocType::Receipt || kind == DocType::Issue;
    s.cmdCpZj.visible = s.parameters.kits;
    s.cmdPdTj.visible = editing && s.type.IsStocktake();
    s.fraLoad.visible = s.fraPdTj.visible = false;
    s.fraLoadInv.visible = editing && s.type.IsKit() && s.parameters.kits;
    s.cboInvType2.items = s.cboInvType.items;
    s.cboInvType2.SetIndex(-1);
    s.beforePanel = nullptr;
    ResetLoading(s);
}

void ResetLoading(frmDj02& s) {
    s.txtNo2.text.clear();
    s.txtTjCode.text.clear();
    s.txtInvSL2.text = "1";
}

} // namespace jxc
