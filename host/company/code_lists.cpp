#include "host/company/code_lists.h"

#include "host/company/table_writer.h"

namespace jxc {

namespace {

struct CodeList {
    std::string_view type, title;
};
constexpr std::string_view kSummaries = "2010", kLineNotes = "1001", kListOfLists = "99999999";
constexpr CodeList kLists[] = {
    {kSummaries, "单据摘要"}, {kLineNotes, "常用备注"}, {"fCpCw", "限用仓位"},
    {"fCpZy", "产品类别"},    {"fCpCd", "产品产地"},    {kListOfLists, "代码目录"},
};

struct CodeEntry {
    std::string_view type, code, name;
};
constexpr CodeEntry kEntries[] = {
    {kSummaries, "01", "采购入库"}, {kSummaries, "02", "采购退货"}, {kSummaries, "03", "销售出库"},
    {kSummaries, "04", "销售退货"}, {kSummaries, "05", "仓库调拨"}, {kSummaries, "06", "库存盘点"},
    {kSummaries, "07", "门市零售"}, {kSummaries, "08", "代销发货"}, {kSummaries, "09", "代销结算"},
    {kSummaries, "10", "生产组装"}, {kSummaries, "11", "生产拆分"}, {kSummaries, "12", "期初库存"},
    {kLineNotes, "01", "含运费"},   {kLineNotes, "02", "赠品"},     {kLineNotes, "03", "样品"},
    {kLineNotes, "04", "保修一年"}, {kLineNotes, "05", "保修三年"},
};

} // namespace

void FillCodeLists(Connection& connection) {
    TableWriter heads(connection, "Brief"), entries(connection, "briefDetail");
    for (const CodeList& list : kLists) {
        heads.Add({{"BriefType", list.type}, {"BriefTypeName", list.title}});
        if (list.type != kListOfLists)
            entries.Add({{"briefType", kListOfLists}, {"BriefCode", list.type}, {"BriefName", list.title}});
    }
    for (const CodeEntry& entry : kEntries)
        entries.Add({{"briefType", entry.type}, {"BriefCode", entry.code}, {"BriefName", entry.name}});
}

} // namespace jxc
