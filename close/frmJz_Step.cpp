#include "close/frmJz_Step.h"

#include "close/frmJz_unStep.h"
#include "close/month_close.h"
#include "close/rebuild_statistics.h"
#include "controls/view.h"
#include "session/screen_entries.h"
#include "session/session.h"

namespace jxc {

namespace {

enum Step : size_t { kApproved, kStatistics, kOpenings, kDocuments, kClosedStatistics, kFinish };

// The openings are made of the statistics, and what is taken away at the end must have been kept, begun anew and approved:
// what is not approved has no part in the statistics.
constexpr StepRest kRests[] = {{kOpenings, kStatistics},
                               {kClosedStatistics, kStatistics},
                               {kFinish, kApproved},
                               {kFinish, kOpenings},
                               {kFinish, kDocuments}};

bool CheckApproved(const frmJz_Step& s) {
    if (AllDocumentsApproved(*session.PeriodEnd))
        return true;
    Warn(s.title, "注意：本期时间范围内，[仓库管理]尚有单据未审核，中止结转！");
    return false;
}

bool MakeOpenings(const frmJz_Step& s) {
    try {
        BuildOpeningDocuments(*session.PeriodEnd);
        return true;
    } catch (const DatabaseError& error) {
        WarnOfFailure(s.title, std::string("期初数据-错误：") + error.what(), CauseOf(error));
        return false;
    }
}

// Each in a transaction of its own, if any.
bool Prepare(frmJz_Step& s) {
    return RunStep(s, kApproved, [&] { return CheckApproved(s); }) &&
           RunStep(s, kStatistics, [&] { return RebuildStockStatistics(*session.PeriodEnd, s.title); }) &&
           RunStep(s, kOpenings, [&] { return MakeOpenings(s); });
}

bool MoveBooks(frmJz_Step& s, const OthersAtWork& others) {
    const Date month = *session.SysDate, end = *session.PeriodEnd;
    return RunTogether(s, [&] {
        others.RequireNone();
        RunStep(s, kDocuments, [&] { return BackupDocuments(month, end), true; });
        RunStep(s, kClosedStatistics, [&] {
            BackupStockStatistics(month);
            BackupCustomerStatistics(month, end);
            return true;
        });
        RunStep(s, kFinish, [&] { return FinishClose(month, end), true; });
    });
}

} // namespace

void frmJz_Step::Start() {
    if (*session.PeriodEnd > Today())
        return Warn(title, "本期月结日期未到，不可结转！");
    if (const std::string refusal = StepsRefusal(chkAddTime, kRests); !refusal.empty())
        return Warn(title, refusal);
    if (!MayBegin(*this))
        return;
    ShowRunning(*this);
    if (!BackUpFirst(*this)) {
        lblNewMonth.visible = true;
        return;
    }
    const OthersAtWork others;
    if (!Prepare(*this)) {
        lblNewMonth.visible = true;
        return;
    }
    if (MoveBooks(*this, others))
        ShowDone(*this, chkAddTime[kFinish].value);
}

void RegisterCloseScreens() {
    AddScreen({.name = "frmJz_Step",
               .make = [] { return std::make_unique<frmJz_Step>(); },
               .calls = {{7, nullptr, [] { return session.myType == 1; }}},
               .menu = {{"系统(&T)", "月底结转", "结束本月，进入下一会计期间。", 7, 1}}});
    AddScreen({.name = "frmJz_unStep",
               .make = [] { return std::make_unique<frmJz_unStep>(); },
               .calls = {{7, nullptr, [] { return session.myType != 1; }}},
               .menu = {{"系统(&T)", "反结转", "取消上月的结转。", 7, 0}}});
}

} // namespace jxc
