#include "settings/frmSystem.h"

#include "controls/gestures.h"

namespace jxc {

namespace {

void OfferNumbers(ListBox& list, int first, int last) {
    list.Clear();
    for (int number = first; number <= last; ++number)
        list.items.push_back(std::to_string(number));
}

void Confirm(frmSystem& s) {
    const bool saved = s.SSTab1.index == frmSystem::kTypes ? SaveTypeGrid(s) : SaveParameters(s);
    if (saved)
        s.cmdConfirm.enabled = false;
}

} // namespace

void ShowPage(frmSystem& s) {
    Control* const first[] = {&s.comYear, &s.Grid1, &s.cboSysType};
    s.MoveFocus(first[s.SSTab1.index]);
    s.cmdDefault.visible = s.cmdTest.visible = s.SSTab1.index == frmSystem::kTypes;
    s.cmdConfirm.enabled = s.SSTab1.index != frmSystem::kModules;
}

frmSystem::frmSystem() : Screen("frmSystem") {
    title = "系统参数设置";
    comYear.caption = "本期年月";
    comMonth.caption = "月";
    cboDay.caption = "日";
    OfferNumbers(comMonth, 1, 12);
    OfferNumbers(cboDay, 1, 28);
    memoBefore[0] = txtBz[0].text = "产品规格";
    fraMemo.enabled = false;
    SSTab1.onChange = [this] { ShowPage(*this); };
    cboTaxWay.onChoose = [this] { TakeTaxWay(*this); };
    cboSysType.onChoose = [this] { TakeSystemType(*this); };
    for (size_t memo = 0; memo < std::size(chkBz); ++memo) {
        chkBz[memo].onChange = [this, memo] { TurnMemo(*this, memo); };
        txtBz[memo].onChange = [this, memo] { memoBefore[memo] = txtBz[memo].text; };
    }
    Grid1.onCellLeave = [this](int row, int column) { OnCellChange(*this, column, row); };
    cmdDefault.onClick = [this] { TakeDefaultRules(*this); };
    cmdTest.onClick = [this] { TestRules(*this); };
    cmdConfirm.onClick = [this] { Confirm(*this); };
    cmdClose.onClick = [this] { Close(); };
    cmdClose.dropsWork = true;
}

void frmSystem::Open() {
    SSTab1.index = kParameters;
    LoadTypeGrid(*this);
    LoadParameters(*this);
    ShowPage(*this);
}

Arrangement frmSystem::Arrange() {
    const Arrangement parameters{
        .fields = {{&comYear, &comMonth, &cboDayMonth, &cboDay},
                   {&cboTaxWay, &txtTaxRate, &lblTaxMemo},
                   {&cboSysCost, &cboInvType},
                   {&txtDeciLen[0], &txtDeciLen[1], &txtMaxRow},
                   {&chkBz[0], &txtBz[0], &chkBz[1], &txtBz[1], &chkBz[2], &txtBz[2]},
                   {&chkAutoCheck},
                   {&chkAutoKcTj},
                   {&chkInputRapic},
                   {&chkInputOther},
                   {&chkWarnKc}}};
    const Arrangement typesPage{.above = {{&lblAutoNo}}, .grid = &Grid1, .commands = {&lblTypes}};
    Arrangement modules{.fields = {{&cboSysType, &Label4}}};
    for (CheckBox& box : chkMemo)
        modules.fields.push_back({&box});
    return {.tabs = &SSTab1,
            .pages = {parameters, typesPage, modules},
            .commands = {&cmdDefault, &cmdTest},
            .closingCommands = {&cmdConfirm, &cmdClose},
            .width = 1040,
            .height = 600};
}

std::string frmSystem::UnsavedWork() const {
    return TypedParameters(*this) != asLoaded || TypedTypes(*this) != typesAsLoaded
               ? "设置尚未保存，放弃所作的修改？"
               : "";
}

// Of both pages what has changed, whichever is in front.
void frmSystem::SaveWork() {
    if (!LeaveFocus(*this) || (TypedParameters(*this) != asLoaded && !SaveParameters(*this)))
        return;
    if (TypedTypes(*this) != typesAsLoaded)
        static_cast<void>(SaveTypeGrid(*this));
}

Date frmSystem::Period() const {
    return MakeDate(std::stoi(comYear.Chosen()), comMonth.Index() + 1, 1);
}

int frmSystem::StartDay() const {
    const int day = cboDay.Index() + 1;
    return cboDayMonth.Index() == 0 ? -day : day;
}

} // namespace jxc
