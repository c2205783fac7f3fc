// The one row of system parameters, as the settings screen shows and writes it.

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "session/audit/audit.h"
#include "session/period.h"
#include "session/session.h"
#include "settings/frmSystem.h"
#include "settings/parameters.h"

namespace jxc {

namespace {

// The kinds of a company: which modules each has.
constexpr int kPlain = 0;
constexpr int kStandard = 1;
constexpr int kOfEveryKind[] = {0, 1, 2, 3, 5, 7, 8, 9};
constexpr int kOfStandard[] = {4, 6, 10};
constexpr int kModulesStored = 11; // fSysFun0 to fSysFun10

struct Flag {
    CheckBox& box;
    const char* field;
};
std::vector<Flag> Flags(frmSystem& s) {
    return {{s.chkAutoCheck, "fSysAuto1"},
            {s.chkAutoKcTj, "fSysAuto2"},
            {s.chkInputRapic, "fSysAuto3"},
            {s.chkInputOther, "fSysAuto4"},
            {s.chkWarnKc, "fSysWarnKc"}};
}

std::string ModuleField(int module) {
    return "fSysFun" + std::to_string(module);
}

void OfferYears(frmSystem& s, Date period) {
    const int first = std::min(YearOf(period), YearOf(Today())) - 1;
    const int last = std::max(YearOf(period), YearOf(Today()));
    s.comYear.Clear();
    for (int year = first; year <= last; ++year)
        s.comYear.items.push_back(std::to_string(year));
    s.comYear.SetIndex(YearOf(period) - first);
    s.comMonth.SetIndex(MonthOf(period) - 1);
}

void ShowMemos(frmSystem& s, const Recordset& row) {
    for (const size_t memo : {1, 2}) {
        s.memoBefore[memo] = s.txtBz[memo].text = row["fSysDjBz" + std::to_string(memo)].AsText();
        s.chkBz[memo].value = s.txtBz[memo].enabled = !s.txtBz[memo].text.empty();
    }
}

void ShowRow(frmSystem& s, const Recordset& row) {
    const auto number = [&](const std::string& field) { return row[field].AsLong(); };
    s.cboTaxWay.SetIndex(static_cast<int>(number("fSysTaxWay")));
    s.txtTaxRate.text = FormatFixed(row["fSysTaxRate"].AsDouble(), 4);
    s.cboSysCost.SetIndex(static_cast<int>(number("fSysCostWay")));
    s.txtDeciLen[0].text = std::to_string(number("fSysDeciSl"));
    s.txtDeciLen[1].text = std::to_string(number("fSysDeciDj"));
    s.txtMaxRow.text = std::to_string(number("fSysMaxRow"));
    s.cboInvType.SetIndex(static_cast<int>(number("fSysYjTj")));
    for (const Flag& flag : Flags(s))
        flag.box.value = number(flag.field) == 1;
    for (int module = 0; module < kModulesStored; ++module)
        s.chkMemo[module].value = number(ModuleField(module)) == 1;
    ShowMemos(s, row);
}

// Of a company without its row.
void ShowDefaults(frmSystem& s) {
    for (ListBox* list : {static_cast<ListBox*>(&s.cboTaxWay), static_cast<ListBox*>(&s.cboSysCost),
                          static_cast<ListBox*>(&s.cboInvType)})
        list->SetIndex(0);
    s.txtTaxRate.text = FormatFixed(0, 4);
    s.txtDeciLen[0].text = s.txtDeciLen[1].text = "2";
    s.txtMaxRow.text = "0";
    for (const Flag& flag : Flags(s))
        flag.box.value = false;
    for (const size_t memo : {1, 2}) {
        s.memoBefore[memo].clear();
        s.txtBz[memo].text.clear();
        s.chkBz[memo].value = s.txtBz[memo].enabled = false;
    }
}

int Digits(const TextBox& box) {
    return static_cast<int>(std::clamp(Val(box.text), 0.0, box.maxBytes == 1 ? 9.0 : 999.0));
}

// A row that says what no item stands for, or that another program wrote, is not saved as something else.
std::vector<Guard> Guards(frmSystem& s) {
    std::vector<Guard> guards;
    for (ListBox* list : {&s.comYear, &s.comMonth, static_cast<ListBox*>(&s.cboDayMonth), &s.cboDay,
                          static_cast<ListBox*>(&s.cboTaxWay), static_cast<ListBox*>(&s.cboSysCost),
                          static_cast<ListBox*>(&s.cboInvType)})
        guards.push_back({[list] { return list->Index() < 0; }, "请选择[" + list->caption + "]！", list});
    guards.push_back(s.txtTaxRate.MustBeAFraction());
    return guards;
}

// New decimals of prices reach the price columns of the product list at once.
void WriteDecimals(const frmSystem& s, Recordset& row) {
    const int quantity = Digits(s.txtDeciLen[0]);
    const int price = Digits(s.txtDeciLen[1]);
    if (row["fSysDeciSl"].IsNull() || row["fSysDeciSl"].AsLong() != quantity)
        row.Set("fSysDeciSl", quantity);
    if (!row["fSysDeciDj"].IsNull() && row["fSysDeciDj"].AsLong() == price)
        return;
    row.Set("fSysDeciDj", price);
    Conn().Execute("Update RptListDetail Set FieldDataDeci = " + std::to_string(price) +
                   " Where fTable='tJxc_Cp' And Left(FieldName,8)='fCpPrice'");
}

void WriteRow(frmSystem& s, Recordset& row) {
    row.Set("fSysTaxWay", s.cboTaxWay.Index());
    row.Set("fSysTaxRate", Val(s.txtTaxRate.text));
    row.Set("fSysCostWay", s.cboSysCost.Index());
    WriteDecimals(s, row);
    row.Set("fSysMaxRow", Digits(s.txtMaxRow));
    row.Set("fSysDjBz1", s.txtBz[1].text);
    row.Set("fSysDjBz2", s.txtBz[2].text);
    row.Set("fSysYjTj", s.cboInvType.Index());
    for (const Flag& flag : Flags(s))
        row.Set(flag.field, flag.box.value ? 1 : 0);
    for (int module = 0; module < kModulesStored; ++module)
        row.Set(ModuleField(module), s.chkMemo[module].value ? 1 : 0);
    row.Set("fSysDate", IsoText(s.Period()));
    row.Set("fSysDay", s.StartDay());
}

// False when the row is not any more what was shown: the close of another user has moved the period, say.
bool StoreParameters(frmSystem& s) {
    Transaction transaction(Conn());
    Recordset row(Conn(), ParametersStatement(), Access::Write);
    const std::string before = JsonOf(row);
    if (before != s.stored)
        return false;
    if (row.AtEnd())
        row.AddNew();
    WriteRow(s, row);
    const std::string after = JsonOf(row);
    WriteAudit({"修改", "tJXC_InvSys", "", s.SSTab1.captions[frmSystem::kParameters], before, after});
    row.Update();
    const std::string stored = JsonOf(Recordset(Conn(), ParametersStatement()));
    transaction.Commit();
    s.stored = stored; // not before it is so: the save may be tried again
    return true;
}

} // namespace

void LoadParameters(frmSystem& s) {
    const Recordset row(Conn(), ParametersStatement());
    s.stored = JsonOf(row);
    const bool any = !row.AtEnd();
    if (any)
        ShowRow(s, row);
    else
        ShowDefaults(s);
    ShowTaxMemo(s);
    const auto period = any ? ParseDate(row["fSysDate"].AsText()) : std::nullopt;
    const int day = any && !row["fSysDay"].IsNull() ? static_cast<int>(row["fSysDay"].AsLong()) : 1;
    OfferYears(s, period.value_or(Today()));
    s.cboDayMonth.SetIndex(day < 0 ? 0 : 1);
    s.cboDay.SetIndex(std::abs(day) - 1);
    s.cboSysType.Choose(session.myModel.size() > 2 && session.myModel[2] == '1' ? kPlain : kStandard);
    s.asLoaded = TypedParameters(s);
}

std::string TypedParameters(const frmSystem& s) {
    std::string typed;
    for (const Control* control : s.Controls())
        if (control->kind == ControlKind::Text || control->kind == ControlKind::List ||
            control->kind == ControlKind::Check)
            typed.append(control->Shown().AsText()).push_back('\x1f');
    return typed;
}

bool SaveParameters(frmSystem& s) {
    if (const MayRefuse refusal = FirstRefusal(Guards(s))) {
        s.SSTab1.index = frmSystem::kParameters;
        ShowPage(s);
        TellRefusal(s, *refusal);
        return false;
    }
    if (!AskOkCancel(s.title, "确定：保存系统参数设置?"))
        return false;
    if (!StoreParameters(s)) {
        Warn(s.title, "系统参数已被其他用户修改（例如月末结帐），请退出后重新打开！");
        return false;
    }
    LoadPeriodSettings();
    s.asLoaded = TypedParameters(s);
    return true;
}

void TakeSystemType(frmSystem& s) {
    for (const int module : kOfEveryKind)
        s.chkMemo[module].value = true;
    for (const int module : kOfStandard)
        s.chkMemo[module].value = s.cboSysType.Index() == kStandard;
}

void ShowTaxMemo(frmSystem& s) {
    const char* const memos[] = {"[税额]=0，栏目不显示", "[税额]=[金额]*[税率]",
                                 "[税额]=[金额]*[税率]/(1+[税率]) "};
    s.lblTaxMemo.caption = memos[std::max(0, s.cboTaxWay.Index())];
}

void TakeTaxWay(frmSystem& s) {
    ShowTaxMemo(s);
    s.txtTaxRate.text = s.cboTaxWay.Way() == TaxWay::None ? "0.00" : "0.17";
}

void TurnMemo(frmSystem& s, size_t memo) {
    TextBox& box = s.txtBz[memo];
    box.enabled = s.chkBz[memo].value;
    if (!box.enabled)
        box.text.clear();
    else if (box.text.empty())
        box.text = !s.memoBefore[memo].empty() ? s.memoBefore[memo]
                   : memo == 0                 ? "产品规格"
                                               : "备注" + std::to_string(memo);
}

} // namespace jxc
