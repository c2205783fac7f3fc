// The last close taken back: the opening documents go, the documents of the month before return from the closed book, and
// the period is that month again.
#pragma once

#include "close/closing_screen.h"

namespace jxc {

struct frmJz_unStep : ClosingScreen {
    frmJz_unStep() : ClosingScreen("frmJz_unStep", "反结转") {}
    void Open() override;
    std::span<CheckBox> Steps() override { return chkAddTime; }
    void Start() override;

    CheckBox chkAddTime[kSteps]{
        {*this, "chkAddTime(0)", "1.清除：本期的所有期初单据；", true},
        {*this, "chkAddTime(1)", "2.还原：上期的所有单据记录；", true},
        {*this, "chkAddTime(2)", "3.在[已结单据库]中，清空上期的所有单据记录；", true},
        {*this, "chkAddTime(3)", "4.在[经理查询库]中，清空上期的所有统计数据；", true},
        {*this, "chkAddTime(4)", "5.反结转完毕：本期年月返回到上一月！", true},
        {*this, "chkAddTime(5)", "6.统计刷新：重新进行库存成本核算统计。", true}}; // told, no step of its own
};

} // namespace jxc
