// The month's close: it makes sure that the period is over and its documents approved, works the statistics out, makes
// what is left in stock the next period's opening documents, and moves the documents to the closed book.
#pragma once

#include "close/closing_screen.h"

namespace jxc {

struct frmJz_Step : ClosingScreen {
    frmJz_Step() : ClosingScreen("frmJz_Step", "月底结转") {}
    std::span<CheckBox> Steps() override { return chkAddTime; }
    void Start() override;

    CheckBox chkAddTime[kSteps]{
        {*this, "chkAddTime(0)", "1.单据检查：本期所有单据均已经审核完毕；", true},
        {*this, "chkAddTime(1)", "2.库存统计：本期的库存结余与成本核算统计；", true},
        {*this, "chkAddTime(2)", "3.期初转入：本期[结余数据]转为下期的[期初数据]；", true},
        {*this, "chkAddTime(3)", "4.单据备出：本期原始单据，历史保存到[已结单据库]；", true},
        {*this, "chkAddTime(4)", "5.统计备出：本期统计数据，历史保存到[经理查询库]；", true},
        {*this, "chkAddTime(5)", "6.结转完毕：本期单据清空，本期顺延至下一个月份！", true}};
};

void RegisterCloseScreens();

} // namespace jxc
