#include "host/window/screen_menu.h"

#include <cstdlib>

#include "controls/screen.h"
#include "host/editors/host_editors.h"
#include "session/database/recordset.h"
#include "session/rights.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr std::int16_t kList = 11;
constexpr std::int16_t kLineList = 12;
constexpr std::int16_t kEntry = 13;
constexpr std::int16_t kAllTypes = 99;

// The subject of a document type: what it does, not its number, is what people look for.
const char* SubjectOfType(int type) {
    switch (std::abs(type)) {
    case 1:
    case 20:
    case 21:
    case 23:
        return "采购(&B)";
    case 2:
    case 5:
    case 6:
    case 7:
    case 22:
    case 24:
        return "销售(&S)";
    default:
        return "仓库(&W)";
    }
}

const char* PurposeOfType(int type) {
    switch (type) {
    case 0:
        return "每个仓库开帐时的库存数量与金额。";
    case 1:
        return "从供应商进货，增加库存与应付款。";
    case -1:
        return "把进货退还供应商。";
    case 2:
        return "销售出库，减少库存，增加应收款。";
    case -2:
        return "客户退回的货物。";
    case 3:
        return "货物从一个仓库调到另一个仓库。";
    case 4:
        return "实地盘点，调整帐面与实物的差额。";
    case 5:
        return "门市零售，现款收入资金帐户。";
    case -5:
        return "门市零售的退货。";
    case 6:
        return "货物发给代销商，尚未结算。";
    case -6:
        return "代销商退回未售的货物。";
    case 7:
        return "与代销商结算已售的货物。";
    case -7:
        return "代销结算的退货。";
    case 20:
        return "将要采购的货物。";
    case 21:
        return "向供应商询问价格。";
    case 22:
        return "向客户报出价格。";
    case 23:
        return "向供应商订货，到货后逐次核销。";
    case 24:
        return "客户的订货，发货后逐次核销。";
    case 31:
        return "用配件组装成品。";
    case 32:
        return "把成品拆成配件。";
    default:
        return "";
    }
}

// A host's entry is offered when its screen is part of this version.
struct FixedEntry {
    const char* subject;
    const char* caption;
    const char* purpose;
    std::int16_t action;
    std::int16_t myType;
    const char* screen; // that must be there
    const char* module; // whose right is needed
};
constexpr FixedEntry kFixed[] = {
    {"查询(&Q)", "库存统计", "各仓库现有的库存数。", 4, -1, "frmCkKc", ""},
    {"查询(&Q)", "库存报警", "低于下限或高于上限的产品。", 5, -1, "frmCkKc", ""},
    {"查询(&Q)", "成本核算统计", "库存与本期进销的数量、单价与金额。", 6, -1, "frmCkKc", ""},
    {"查询(&Q)", "仓库单据查询", "按任意条件查找所有单据。", kList, kAllTypes, "frmDj01", ""},
    {"查询(&Q)", "仓库明细查询", "按任意条件查找单据的每一行。", kLineList, kAllTypes, "frmDj01", ""},
    {"查询(&Q)", "经理查询", "经营情况的图表。", 8, 0, "frmTb01", ""},
    {"查询(&Q)", "销售分析", "销售情况的图表。", 9, 0, "frmTb02", ""},
    {"资料(&D)", "仓库资料", "仓库的名称与用途。", 1, -1, "frmCk", "mnuJxcSysCk"},
    {"资料(&D)", "产品资料", "产品的编码、名称、价格与库存限额。", 2, -1, "frmCp", "mnuJxcSysCp"},
    {"资料(&D)", "产品套件", "组装与拆卸的配件清单。", 3, -1, "frmCpTj", "mnuJxcSysCp"},
    {"业绩(&Y)", "营销员关系图", "营销员的上下级。", 21, 0, "frmYj_Jbr_Jb", ""},
    {"业绩(&Y)", "营销员资料", "营销员名册。", 21, 1, "frmYj_Jbr", ""},
    {"系统(&T)", "系统参数", "会计期间、税、成本方法与小数位数。", 0, -1, "frmSystem", ""},
    {"系统(&T)", "月末结帐", "结束本月，进入下一会计期间。", 7, 1, "frmJz_Step", ""},
    {"系统(&T)", "反结帐", "取消上月的结帐。", 7, 0, "frmJz_unStep", ""},
};

// Where the host's own editors stand, and what for.
struct EditorPlace {
    const char* screen;
    const char* subject;
    const char* purpose;
};
constexpr EditorPlace kPlaces[] = {
    {"frmHostCards", "资料(&D)", "供应商、销售商与代销商。"},
    {"frmHostMoneys", "资料(&D)", "货币与汇率。"},
    {"frmHostAccounts", "资料(&D)", "现金与银行帐户。"},
    {"frmHostCompany", "系统(&T)", "印在单据上的公司名称与地址。"},
    {"frmHostUsers", "系统(&T)", "谁可以使用哪些功能。"},
};

class SubjectList {
  public:
    SubjectList() {
        for (const char* caption :
             {"采购(&B)", "销售(&S)", "仓库(&W)", "查询(&Q)", "资料(&D)", "业绩(&Y)", "系统(&T)"})
            subjects_.push_back({caption, {}});
    }
    void Add(const std::string& subject, MenuItemRow item) {
        for (Subject& known : subjects_)
            if (known.caption == subject)
                known.items.push_back(std::move(item));
    }
    std::vector<Subject> Filled() {
        std::erase_if(subjects_, [](const Subject& subject) { return subject.items.empty(); });
        return std::move(subjects_);
    }

  private:
    std::vector<Subject> subjects_;
};

bool Allowed(const char* module) {
    return *module == '\0' || HasModuleRight(module, 0);
}

void AddDocumentTypes(SubjectList& subjects) {
    Recordset types(*session.Conn,
                    "Select fSetNo, fSetName from tJXC_InvSet Where fSetNo<50 And fSetNoUse_<>1"
                    " Order By fRowID");
    const bool list = FindScreen("frmDj01");
    for (; !types.AtEnd(); types.MoveNext()) {
        const auto type = static_cast<std::int16_t>(types["fSetNo"].AsLong());
        const std::string name = types["fSetName"].AsText();
        MenuItemRow item{name, PurposeOfType(type), {}};
        if (list)
            item.entries.push_back({"单据列表(&L)", kList, type, ""});
        item.entries.push_back({"新增(&N)", kEntry, type, ""});
        if (list)
            item.entries.push_back({"明细列表(&M)", kLineList, type, ""});
        subjects.Add(SubjectOfType(type), std::move(item));
    }
}

} // namespace

std::vector<Subject> SubjectsOf() {
    SubjectList subjects;
    AddDocumentTypes(subjects);
    for (const FixedEntry& entry : kFixed)
        if (FindScreen(entry.screen) && Allowed(entry.module))
            subjects.Add(entry.subject,
                         {entry.caption, entry.purpose, {{"打开(&O)", entry.action, entry.myType, ""}}});
    for (const EditorPlace& place : kPlaces)
        if (const HostEditor& editor = FindHostEditor(place.screen);
            FindScreen(editor.screen) && MayOpen(editor))
            subjects.Add(place.subject,
                         {std::string(editor.title), place.purpose, {{"打开(&O)", -1, -1, place.screen}}});
    return subjects.Filled();
}

} // namespace jxc
