#include "host/editors/frmHostUsers.h"

#include "base/text.h"
#include "host/user_settings.h"
#include "session/session.h"

namespace jxc {

namespace {

enum Column { kName = 1, kTick, kPosition };

const std::vector<Use> kUses{
    {"tJXC_CkDj01 Where fInvDLR=", "仓库单据"},       {"tJXC_CkDj01 Where fInvSHR=", "仓库单据"},
    {"tJXC_CkHt01 Where fInvDLR=", "合同订单"},       {"tJXC_CkHt01 Where fInvSHR=", "合同订单"},
    {"tJXC_CkJh01 Where fInvDLR=", "计划单"},         {"tJXC_CkJh01 Where fInvSHR=", "计划单"},
    {"tJXC_CkXjBj01 Where fInvDLR=", "询价报价单"},   {"tJXC_CkXjBj01 Where fInvSHR=", "询价报价单"},
    {"tJXC_CkDj_Bak01 Where fInvDLR=", "已结帐单据"}, {"tJXC_CkDj_Bak01 Where fInvSHR=", "已结帐单据"},
    {"tAccountDetail Where fUser=", "帐户单"},
};

void RequireSupervisor() {
    const UserRights rights = UserSettings(session.UserName);
    if (!NoUsers() && !EqualsNoCase(rights.ZgName, session.UserName))
        throw ScreenError("必须系统[负责人]才能够设置用户与权限！");
}

char DigitAt(const std::string& power, int position) {
    return position <= static_cast<int>(power.size()) ? power[static_cast<size_t>(position - 1)] : '0';
}

void OfferRights(frmHostUsers& s) {
    s.Grid2.SetColumns({{.caption = "权限", .width = 24, .locked = true},
                        {.caption = "允许", .type = CellType::Check},
                        {.caption = "position", .hidden = true}});
    for (const RightPlace& place : RightPlaces()) {
        s.Grid2.SetRowCount(s.Grid2.RowCount() + 1);
        s.Grid2.FillCell(s.Grid2.RowCount(), kName, place.name);
        s.Grid2.FillCell(s.Grid2.RowCount(), kPosition, place.position);
    }
}

void ShowRights(frmHostUsers& s, const std::string& power) {
    s.power = power;
    for (int row = 1; row <= s.Grid2.RowCount(); ++row) {
        const int position = static_cast<int>(s.Grid2.Number(row, kPosition));
        s.Grid2.FillCell(row, kTick, DigitAt(power, position) != '0' ? 1 : 0);
    }
}

void ShowPassword(frmHostUsers& s, bool has) {
    s.txtPassword.text.clear();
    s.txtPassword2.text.clear();
    s.chkNoPassword.value = false;
    s.lblPassword.caption = has ? "已设密码" : "未设密码";
}

// A digit above 1 that is ticked as before stays.
std::string RightsFromGrid(const frmHostUsers& s) {
    std::string power = s.power;
    for (int row = 1; row <= s.Grid2.RowCount(); ++row) {
        const auto at = static_cast<size_t>(s.Grid2.Number(row, kPosition)) - 1;
        power.resize(std::max(power.size(), at + 1), '0');
        const bool ticked = s.Grid2.Number(row, kTick) != 0;
        if (ticked != (power[at] != '0'))
            power[at] = ticked ? '1' : '0';
    }
    return power;
}

} // namespace

// Documents keep the name of who has left.
frmHostUsers::frmHostUsers()
    : ListEditor("frmHostUsers", "用户与权限",
                 {.name = "tHostUser",
                  .key = "fUserName",
                  .order = "fUserName",
                  .uses = kUses,
                  .mayDeleteUsed = true}) {
    mark = &chkSupervisor;
    txtPassword.secret = txtPassword2.secret = true;
    guards = {
        {[this] { return txtPassword.text != txtPassword2.text; }, "两次输入的密码不一致！", &txtPassword2}};
    SetColumns({{"用户", "fUserName", 20}, {"负责人", "fSupervisor", 8, Figure::Tick}});
}

void frmHostUsers::Open() {
    RequireSupervisor();
    EnterFirstUser();
    OfferRights(*this);
    ListEditor::Open();
}

Arrangement frmHostUsers::Arrange() {
    Arrangement plain = ListEditor::Arrange();
    plain.fields.push_back({&txtPassword, &chkNoPassword});
    plain.fields.push_back({&txtPassword2, &lblPassword});
    plain.fields.push_back({&Grid2});
    plain.width = 860;
    plain.height = 560;
    return plain;
}

bool frmHostUsers::Confirmed() {
    if (!ListEditor::Confirmed())
        return false;
    const bool typed = IsTyping() && !chkNoPassword.value && txtPassword.text == txtPassword2.text;
    hash = typed ? HashOfPassword(txtPassword.text) : "";
    return true;
}

void frmHostUsers::ShapeByMode() {
    ListEditor::ShapeByMode();
    txtPassword.enabled = txtPassword2.enabled = chkNoPassword.enabled = IsTyping();
    Grid2.readOnly = mode == EditorMode::Browse || mode == EditorMode::Delete;
}

void frmHostUsers::Clear() {
    ListEditor::Clear();
    ShowRights(*this, "");
    ShowPassword(*this, false);
}

void frmHostUsers::ShowRest(const Recordset& row) {
    ShowRights(*this, row["fPower"].AsText());
    ShowPassword(*this, !row["fPassword"].AsText().empty());
}

// The first user of a company may do everything.
void frmHostUsers::WriteRest(Recordset& row) {
    row.Set("fPower", mode == EditorMode::Add && NoUsers() ? AllRights() : RightsFromGrid(*this));
    if (chkNoPassword.value || !hash.empty())
        row.Set("fPassword", hash);
}

} // namespace jxc
