// What the month's close and its reversal share as screens: six steps with their boxes, the month, the start. A step runs
// if its box is ticked, and its box is disabled then. Nothing typed can be lost, so leaving asks nothing.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "controls/screen.h"
#include "session/components.h"

namespace jxc {

struct ClosingScreen : Screen {
    ClosingScreen(std::string name, std::string caption);
    void Open() override;
    Arrangement Arrange() override;

    Label lblDate{*this, "lblDate", "截止日期"};
    DateBox DTPicker1{*this, "DTPicker1"}; // shows until when; a change lets the person start again
    Label lblNewMonth{*this, "lblNewMonth"};
    CheckBox chkBackup{*this, "chkBackup", "先备份帐套，并检查备份可以恢复(&B)", true};
    Label lblBackup{*this, "lblBackup"}; // the copy that was written
    Button cmdStep{*this, "cmdStep", "开始(&S)"};
    Button cmdQuit{*this, "cmdQuit", "退出(&Q)"};

    virtual std::span<CheckBox> Steps() = 0;
    // The whole operation, from its checks to its last notice.
    virtual void Start() = 0;
};

constexpr size_t kSteps = 6;

// A step that reads what another leaves, by their places from 0.
struct StepRest {
    size_t step, needs;
};
// Why the ticked steps cannot run: one of them rests on a step that is not ticked; "" when they can.
[[nodiscard]] std::string StepsRefusal(std::span<const CheckBox> steps, std::span<const StepRest> rests);

// The two questions before the tables are moved; `further` stands below the first.
[[nodiscard]] bool MayBegin(const ClosingScreen& s, const std::string& further = "");
// Writes the copy that the person wants. False when that failed, which has been told.
[[nodiscard]] bool BackUpFirst(ClosingScreen& s);

// The start cannot be pressed again, and the month is hidden until it is known.
void ShowRunning(ClosingScreen& s);
// Runs the step if it is ticked; true without.
bool RunStep(ClosingScreen& s, size_t step, const std::function<bool()>& work);
// The steps of one transaction; before them it is made sure that the company is still in the session's month. False when
// one failed: then nothing has changed, and that has been told.
[[nodiscard]] bool RunTogether(ClosingScreen& s, const std::function<void()>& steps);
// The last notice and the new month; then offers to bring the statistics up to date if the period has moved.
void ShowDone(ClosingScreen& s, bool moved);

// Other users' changes of stock documents and warehouses, counted since a moment.
class OthersAtWork {
  public:
    OthersAtWork();
    // A DatabaseError with a text for people when there were any.
    void RequireNone() const;

  private:
    std::int64_t last_ = 0; // row of the trail
};

} // namespace jxc
