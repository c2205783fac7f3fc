#include "host/window/screen_menu.h"

#include <cstdlib>

#include "controls/screen.h"
#include "database/recordset.h"
#include "session/screen_entries.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr std::int16_t kList = 11;
constexpr std::int16_t kLineList = 12;
constexpr std::int16_t kEntry = 13;

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

class SubjectList {
  public:
    SubjectList() {
        for (const char* caption :
             {"采购(&B)", "销售(&S)", "仓库(&W)", "查询(&Q)", "资料(&D)", "业绩(&Y)", "系统(&T)"})
            subjects_.push_back({caption, {}});
    }
    void Add(const std::string& subject, MenuItemRow item) {
        const auto known = std::find_if(subjects_.begin(), subjects_.end(),
                                        [&](const Subject& each) { return each.caption == subject; });
        if (known != subjects_.end())
            known->items.push_back(std::move(item));
    }
    std::vector<Subject> Filled() {
        std::erase_if(subjects_, [](const Subject& subject) { return subject.items.empty(); });
        return std::move(subjects_);
    }

  private:
    std::vector<Subject> subjects_;
};

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
    for (const ScreenEntry& entry : ScreenEntries())
        if (entry.make && !entry.menu.empty() && MayOpen(entry))
            for (const MenuPlace& place : entry.menu)
                subjects.Add(place.subject, {place.caption,
                                             place.purpose,
                                             {{"打开(&O)", place.action, place.myType,
                                               place.action < 0 ? entry.name : ""}}});
    return subjects.Filled();
}

} // namespace jxc
