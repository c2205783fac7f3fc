// The refresh of the stock query: the statistics worked out anew from the documents, when nobody else is at work.

#include "close/closed_month.h"
#include "close/rebuild_statistics.h"
#include "controls/view.h"
#include "session/session.h"
#include "stock/frmCkKc.h"

namespace jxc {

namespace {

bool Rebuild(const frmCkKc& s, Date limit) {
    const ProgressEnds progressEnds;
    CurrentView().ShowProgress("正在刷新库存与成本", 0, 1);
    if (!RebuildStockStatistics(limit, s.title))
        return false;
    if (!s.chkDate.value)
        RebuildOverallCost(s.title);
    return true;
}

} // namespace

void RefreshStatistics(frmCkKc& s) {
    if (!AskOkCancel(s.title, "注意：本操作将对系统数据库进行独占操作，请确认网络其他用户均已经退出系统？"))
        return;
    s.cmdRefresh.enabled = false;
    const Date limit = s.chkDate.value && s.DTPicker1.date ? *s.DTPicker1.date : Today();
    s.leftOut.clear();
    if (Rebuild(s, limit)) {
        if (const int count = ApprovedDocumentsAfter(limit); count > 0)
            s.leftOut = "已审核而日期在 " + IsoText(limit) + " 之后的 " + std::to_string(count) +
                        " 张单据，没有计入库存与成本。";
        Inform(s.title, "库存与成本刷新完毕！");
    }
    s.cmdRefresh.enabled = true;
    QueryStock(s);
}

void TellOfStatistics(frmCkKc& s) {
    const bool ofOtherMonth =
        s.stampedMonth && session.SysDate && MonthName(*s.stampedMonth) != MonthName(*session.SysDate);
    s.lblStatistics.caption = ofOtherMonth ? "以下仍是 " + MonthName(*s.stampedMonth) +
                                                 " 的统计，本期的数据请先进行“库存成本刷新”。"
                                           : s.leftOut;
    s.lblStatistics.color = Rgb(192, 0, 0);
    s.lblStatistics.visible = !s.lblStatistics.caption.empty();
}

} // namespace jxc
