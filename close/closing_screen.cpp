#include "close/closing_screen.h"

#include <algorithm>

#include "close/closed_month.h"
#include "close/rebuild_statistics.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "session/lookups/database_routines.h"
#include "session/period.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr const char* kTrail = "tJXC_Audit";
const Color kBlack = Rgb(0, 0, 0), kRed = Rgb(192, 0, 0);

void ShowMonth(ClosingScreen& s) {
    s.lblNewMonth.caption = "本期年月为：" + (session.SysDate ? MonthName(*session.SysDate) : "");
    s.lblNewMonth.visible = true;
}

BackupKeeper* Backups() {
    return ComponentsInUse().backups.get();
}

void ResetSteps(ClosingScreen& s) {
    for (CheckBox& step : s.Steps()) {
        step.value = true;
        step.enabled = true;
    }
}

std::string MovedText() {
    const auto month = StoredMonth();
    return "本期年月已由其他用户改为 " + (month ? MonthName(*month) : "空") + "，请重新打开窗口！";
}

} // namespace

ClosingScreen::ClosingScreen(std::string name, std::string caption) : Screen(std::move(name)) {
    title = std::move(caption);
    DTPicker1.onChange = [this] { cmdStep.enabled = true; };
    cmdStep.onClick = [this] { Start(); };
    cmdQuit.onClick = [this] { Close(); };
}

void ClosingScreen::Open() {
    LoadPeriodSettings();
    if (!session.SysDate || !session.PeriodEnd)
        throw ScreenError("系统参数没有本期年月，请先在 [系统设置] 中设置！");
    ResetSteps(*this);
    DTPicker1.date = std::min(Today(), *session.PeriodEnd);
    chkBackup.visible = lblBackup.visible = Backups() != nullptr;
    chkBackup.value = true;
    lblBackup.caption.clear();
    lblNewMonth.color = kBlack;
    ShowMonth(*this);
    cmdStep.enabled = true;
    MoveFocus(&cmdStep);
}

Arrangement ClosingScreen::Arrange() {
    Arrangement arrangement;
    arrangement.fields = {{&lblNewMonth}, {&lblDate, &DTPicker1}};
    for (CheckBox& step : Steps())
        arrangement.fields.push_back({&step});
    arrangement.fields.push_back({&chkBackup, &lblBackup});
    arrangement.commands = {&cmdStep};
    arrangement.closingCommands = {&cmdQuit};
    return arrangement;
}

std::string StepsRefusal(std::span<const CheckBox> steps, std::span<const StepRest> rests) {
    for (const StepRest& rest : rests)
        if (steps[rest.step].value && !steps[rest.needs].value)
            return "不能只执行“" + steps[rest.step].caption + "”，而不执行它所依据的“" +
                   steps[rest.needs].caption + "”！";
    return "";
}

bool MayBegin(const ClosingScreen& s, const std::string& further) {
    return AskOkCancel(s.title, "注意：请确认已经进行了“套帐备份”，确保数据的安全！" + further) &&
           AskOkCancel(s.title, "注意：本操作将对系统数据库进行独占操作，请确认网络其他用户均已经退出系统？");
}

bool BackUpFirst(ClosingScreen& s) {
    if (!Backups() || !s.chkBackup.value)
        return true;
    try {
        const ProgressEnds progressEnds;
        CurrentView().ShowProgress("正在备份帐套", 0, 1);
        s.lblBackup.caption = "已备份：" + Backups()->BackUp();
        return true;
    } catch (const DatabaseError& error) {
        WarnOfFailure(s.title, "备份没有完成，没有开始" + s.title + "：" + error.what(), CauseOf(error));
        return false;
    }
}

void ShowRunning(ClosingScreen& s) {
    s.cmdStep.enabled = false;
    s.lblNewMonth.visible = false;
}

bool RunStep(ClosingScreen& s, size_t step, const std::function<bool()>& work) {
    CheckBox& box = s.Steps()[step];
    if (!box.value)
        return true;
    box.enabled = false;
    const ProgressEnds progressEnds;
    CurrentView().ShowProgress(box.caption, static_cast<int>(step), static_cast<int>(kSteps));
    return work();
}

bool RunTogether(ClosingScreen& s, const std::function<void()>& steps) {
    try {
        Transaction transaction(Conn());
        if (StoredMonth() != session.SysDate)
            throw DatabaseError(MovedText());
        steps();
        transaction.Commit();
        return true;
    } catch (const DatabaseError& error) {
        WarnOfFailure(s.title, s.title + "错误：" + error.what(), CauseOf(error));
        return false;
    }
}

void ShowDone(ClosingScreen& s, bool moved) {
    Inform("提示信息", s.title + "处理完毕!");
    LoadPeriodSettings();
    s.lblNewMonth.color = kRed;
    ShowMonth(s);
    s.cmdQuit.enabled = true;
    // Opening documents are dated behind the closed period, perhaps after today.
    if (moved && AskYesNo(s.title, "库存统计仍是" + s.title + "以前的数据。现在就刷新库存与成本吗？")) {
        const ProgressEnds progressEnds;
        CurrentView().ShowProgress("正在刷新库存与成本", 0, 1);
        if (RebuildStockStatistics(std::max(Today(), *session.PeriodEnd), s.title))
            RebuildOverallCost(s.title);
    }
}

OthersAtWork::OthersAtWork() {
    if (Conn().HasColumn(kTrail, "fID"))
        last_ = DbMax(kTrail, "fID");
}

void OthersAtWork::RequireNone() const {
    if (!Conn().HasColumn(kTrail, "fID"))
        return;
    const Recordset row(Conn(), std::string("Select Top 1 fUser,fName From ") + kTrail + " Where fID>" +
                                    std::to_string(last_) + " And fTable In ('tJXC_CkDj01','tJXC_Ck')");
    if (!row.AtEnd())
        throw DatabaseError("用户 " + row["fUser"].AsText() + " 刚刚改动了 " + row["fName"].AsText() +
                            "，统计已不是最新的，请重新进行！");
}

} // namespace jxc
