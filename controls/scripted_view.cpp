#include "controls/scripted_view.h"

namespace jxc {

void ScriptedView::RunModal(Screen& screen) {
    screens.push_back(screen.name);
    if (const auto routine = routines_.find(screen.name); routine != routines_.end() && routine->second)
        routine->second(screen);
}

BoxButton ScriptedView::ShowBox(const MessageBox& box) {
    boxes.push_back(box);
    if (answer_)
        return answer_(box);
    if (answers_.empty())
        return box.buttons.front();
    const BoxButton answer = answers_.front();
    answers_.pop_front();
    return answer;
}

void ScriptedView::ShowProgress(const std::string& step, int, int total) {
    if (total > 0 && (steps.empty() || steps.back() != step))
        steps.push_back(step);
}

void ScriptedView::ShowNotice(const std::string& title, const std::string& text) {
    notices.push_back(title + "\n" + text);
}

} // namespace jxc
