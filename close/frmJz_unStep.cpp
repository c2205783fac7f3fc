#include "close/frmJz_unStep.h"

#include "close/closed_month.h"
#include "close/reverse_close.h"
#include "controls/view.h"
#include "session/session.h"

namespace jxc {

namespace {

enum Step : size_t { kOpenings, kRestore, kClosedDocuments, kClosedStatistics, kPeriod, kStatistics };

// Openings and the documents that they were made of do not stand in one book, and none of them goes without the other;
// what is cleared must have come back; and the month is open again when its documents are there.
constexpr StepRest kRests[] = {
    {kOpenings, kRestore}, {kRestore, kOpenings},       {kClosedDocuments, kRestore}, {kPeriod, kOpenings},
    {kPeriod, kRestore},   {kPeriod, kClosedDocuments}, {kRestore, kClosedDocuments}, {kRestore, kPeriod}};

std::string Joined(const std::vector<std::string>& numbers) {
    constexpr size_t kNamed = 10;
    std::string text;
    for (size_t at = 0; at < numbers.size() && at < kNamed; ++at)
        text.append(at > 0 ? "、" : "").append(numbers[at]);
    return numbers.size() > kNamed ? text + " 等 " + std::to_string(numbers.size()) + " 张" : text;
}

std::string WorkByHand() {
    const std::vector<std::string> numbers = OpeningDocumentsByHand(*session.SysDate);
    return numbers.empty() ? "" : "\n\n本期有手工录入或修改过的期初单据，将一并清除：" + Joined(numbers);
}

bool TakeBack(frmJz_unStep& s) {
    const Date month = *session.SysDate;
    const auto step = [&](Step place, const std::function<void()>& work) {
        RunStep(s, place, [&] { return work(), true; });
    };
    return RunTogether(s, [&] {
        step(kOpenings, [] { ClearOpeningDocuments(); });
        step(kRestore, [&] { RestoreDocuments(month); });
        step(kClosedDocuments, [&] { ClearClosedDocuments(month); });
        step(kClosedStatistics, [&] { ClearClosedStatistics(month); });
        step(kPeriod, [&] { StepBackPeriod(month); });
    });
}

} // namespace

void frmJz_unStep::Open() {
    ClosingScreen::Open();
    chkAddTime[kStatistics].enabled = false;
}

void frmJz_unStep::Start() {
    const Date before = MonthBefore(*session.SysDate);
    if (!IsClosed(before))
        return Warn(title,
                    "[已结单据库]与[经理查询库]中都没有 " + MonthName(before) + " 的数据，不能反结转！");
    if (const std::string refusal = StepsRefusal(chkAddTime, kRests); !refusal.empty())
        return Warn(title, refusal);
    if (!MayBegin(*this, WorkByHand()))
        return;
    ShowRunning(*this);
    if (!BackUpFirst(*this)) {
        lblNewMonth.visible = true;
        return;
    }
    if (TakeBack(*this))
        ShowDone(*this, chkAddTime[kPeriod].value);
}

} // namespace jxc
