#include "host/editors/frmHostCards.h"

#include "base/text.h"
#include "forms/edit_filter.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

// By fType0.
const std::vector<std::string> kKinds{"不限", "供应商", "销售商", "代销商"};
constexpr int kKindColumn = 3;
constexpr int kSeekBytes = 50;

constexpr Use kUses[] = {
    {"tJXC_CkDj01 Where fKhID=", "仓库单据"},
    {"tJXC_CkHt01 Where fKhID=", "合同订单"},
    {"tJXC_CkJh01 Where fKhID=", "计划单"},
    {"tJXC_CkJh02 Where fKhID=", "计划单"}, // each line of a plan has its own supplier
    {"tJXC_CkXjBj01 Where fKhID=", "询价报价单"},
    {"tJXC_CkDj_Bak01 Where fKhID=", "已结帐单据"},
    {"tJXC_KhTj_Bak Where fKhID=", "已结帐统计"},
    {"tAccountDetail Where fType1=0 And fCompID=", "客户往来帐"},
    {"tJXC_Cp Where fKhID=", "产品的供应商"},
    {"tJXC_CpGys Where fKhID=", "产品的供应商"},
    {"tJXC_Ck Where fKhID=", "代销仓库"},
};

} // namespace

frmHostCards::frmHostCards() : ListEditor("frmHostCards", "客户资料", "cards", "fID") {
    EditorField& code = Hold(txtCompCode, "CompCode", "编号", 20);
    code.required = code.unique = true;
    Hold(txtCompName, "CompName", "名称", 80).required = true; // lists of customers show 80 characters
    Hold(txtName, "name", "联系人", 20);
    Hold(txtTelphone, "telphone", "电话", 30);
    Hold(txtHomephone, "homephone", "家庭电话", 30);
    Hold(txtHandphone, "handphone", "手机", 30);
    Hold(txtFax, "fax", "传真", 30);
    Hold(txtE_mail, "E_mail", "电邮", 50);
    Hold(txtHttp, "http", "网址", 80);
    Hold(txtPostcode, "postcode", "邮编", 10);
    Hold(txtCompAdd, "CompAdd", "地址", 50); // as long as a document's address
    cboType0.caption = "客户类型";
    cboType0.items = kKinds;
    txtSeek.caption = "查找";
    FilterKeys(txtSeek, kSeekBytes);
    txtSeek.onLeave = [this] { return CheckNoQuote(txtSeek.text); };
    txtSeek.onKey = [this](const std::string& pressed) {
        if (pressed == "Enter" && CheckNoQuote(txtSeek.text))
            Load();
    };
    cmdSeek.onClick = [this] { Load(); };
    Grid1.SetColumns({{.caption = "编号", .width = 12},
                      {.caption = "名称", .width = 32},
                      {.caption = "客户类型", .width = 10},
                      {.caption = "电话", .width = 16},
                      {.caption = "联系人", .width = 12},
                      {.caption = "fID", .hidden = true}});
}

void frmHostCards::Open() {
    txtSeek.text.clear();
    ListEditor::Open();
}

std::string frmHostCards::ListStatement() const {
    std::string where;
    if (!Trim(txtSeek.text).empty()) {
        const std::string pattern = InQuotes(LikePattern(txtSeek.text));
        where =
            " Where CompCode like " + pattern + " or CompName like " + pattern + " or name like " + pattern;
    }
    return "select CompCode,CompName,fType0,telphone,name,fID from cards" + where + " Order By CompCode,fID";
}

Value frmHostCards::ShownCell(int column, const Value& cell) const {
    if (column != kKindColumn)
        return cell;
    const auto kind = static_cast<size_t>(cell.AsLong());
    return kind < kKinds.size() ? Value(kKinds[kind]) : cell;
}

Value frmHostCards::KeyToStore() const {
    return mode == EditorMode::Add ? Value(DbMax("cards", "fID") + 1) : key;
}

std::span<const Use> frmHostCards::Uses() const {
    return kUses;
}

void frmHostCards::ShapeByMode() {
    ListEditor::ShapeByMode();
    txtSeek.enabled = cmdSeek.enabled = mode == EditorMode::Browse;
    cboType0.enabled = mode == EditorMode::Add || mode == EditorMode::Change;
}

void frmHostCards::Clear() {
    ListEditor::Clear();
    cboType0.SetIndex(0);
}

void frmHostCards::ShowRest(const Recordset& row) {
    cboType0.SetIndex(static_cast<int>(row["fType0"].AsLong()));
}

void frmHostCards::WriteRest(Recordset& row) {
    row.Set("fType0", std::max(cboType0.Index(), 0));
}

// Products carry the name of their supplier; delivery addresses go with their card.
void frmHostCards::StoreElsewhere() {
    const std::string id = key.AsText();
    if (mode == EditorMode::Delete)
        Conn().Execute("Delete From tJXC_KhAdd Where fKhID=" + id);
    else if (mode == EditorMode::Change)
        Conn().Execute("Update tJXC_Cp Set fKhName=" + InQuotes(Trim(txtCompName.text)) +
                       " Where fKhID=" + id);
}

} // namespace jxc
