#include "host/editors/frmHostCards.h"

#include "base/text.h"
#include "forms/edit_filter.h"
#include "forms/suggest.h"
#include "session/audit/audit.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

const std::vector<Use> kUses{
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

frmHostCards::frmHostCards()
    : ListEditor("frmHostCards", "客户资料", {"cards", "fID", "CompCode,fID", kUses}) {
    const auto kind = [this](const Recordset& row) {
        const auto at = static_cast<size_t>(row["fType0"].AsLong());
        return at < cboType0.items.size() ? Value(cboType0.items[at]) : row["fType0"];
    };
    SetColumns({{"编号", "CompCode", 12},
                {"名称", "CompName", 32},
                {"客户类型", "fType0", 10, Figure::Text, kind},
                {"电话", "telphone", 16},
                {"联系人", "name", 12}});
    txtSeek.onKey = [this](const std::string& pressed) {
        if (pressed == "Enter" && CheckNoQuote(txtSeek.text))
            Load();
    };
    SuggestCardsIn(txtSeek);
    cmdSeek.onClick = [this] { Load(); };
}

void frmHostCards::Open() {
    txtSeek.text.clear();
    ListEditor::Open();
}

Arrangement frmHostCards::Arrange() {
    Arrangement plain = ListEditor::Arrange();
    plain.above = {{&txtSeek, &cmdSeek}};
    plain.width = 1000;
    plain.height = 600;
    return plain;
}

std::string frmHostCards::ListCondition() const {
    if (Trim(txtSeek.text).empty())
        return "";
    const std::string pattern = InQuotes(LikePattern(txtSeek.text));
    return " Where CompCode like " + pattern + " or CompName like " + pattern + " or name like " + pattern;
}

Value frmHostCards::KeyToStore() const {
    return mode == EditorMode::Add ? Value(DbMax("cards", "fID") + 1) : key;
}

void frmHostCards::ShapeByMode() {
    ListEditor::ShapeByMode();
    txtSeek.enabled = cmdSeek.enabled = mode == EditorMode::Browse;
}

// Products carry the name of their supplier; delivery addresses go with their card.
void frmHostCards::StoreElsewhere() {
    const std::string id = key.AsText();
    if (mode == EditorMode::Delete) {
        for (Recordset address(Conn(), "select * from tJXC_KhAdd Where fKhID=" + id); !address.AtEnd();
             address.MoveNext())
            WriteAudit({"删除", "tJXC_KhAdd", id, RecordName(), JsonOf(address), ""});
        Conn().Execute("Delete From tJXC_KhAdd Where fKhID=" + id);
    }
    if (mode == EditorMode::Change)
        Conn().Execute("Update tJXC_Cp Set fKhName=" + InQuotes(Trim(txtCompName.text)) +
                       " Where fKhID=" + id);
}

} // namespace jxc
