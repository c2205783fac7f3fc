#include "controls/leave.h"

#include "controls/screen.h"

namespace jxc {

Command* LeaveCommandOf(const Screen& screen) {
    for (const char* name : {"cmdQuit", "cmdCancel", "CmdCancel", "cmdSeekCancel", "cmdClose"})
        if (auto* command = dynamic_cast<Command*>(screen.Find(name)); command && command->IsUsable())
            return command;
    return nullptr;
}

void Leave(Screen& screen) {
    Command* leave = LeaveCommandOf(screen);
    if (leave && leave->onClick)
        leave->onClick();
    screen.Close();
}

} // namespace jxc
