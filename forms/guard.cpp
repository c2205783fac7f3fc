#include "forms/guard.h"

#include "controls/screen.h"
#include "controls/view.h"

namespace jxc {

MayRefuse FirstRefusal(const std::vector<Guard>& guards) {
    for (const Guard& guard : guards) {
        if (!guard.when())
            continue;
        std::string text = guard.text;
        if (const size_t place = text.find("{}"); guard.of && place != std::string::npos)
            text.replace(place, 2, guard.of());
        return Refusal{text, guard.focus};
    }
    return std::nullopt;
}

void TellRefusal(Screen& screen, const Refusal& refusal) {
    Warn(screen.title, refusal.text);
    if (refusal.focus)
        screen.MoveFocus(refusal.focus);
}

} // namespace jxc
