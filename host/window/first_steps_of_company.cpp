// A new company in the main window: its first steps above the commands, until a document is approved.

#include <QTreeWidget>

#include "documents/document_state.h"
#include "host/first_steps.h"
#include "host/window/first_steps_panel.h"
#include "host/window/main_window.h"
#include "session/company/open_connection.h"
#include "settings/type_codes.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

constexpr std::int16_t kWarehouses = 1, kProducts = 2, kEntryScreen = 13;

// Over a connection of its own: a screen may be open on the session's.
FirstSteps StepsNow() {
    Connection connection;
    OpenOfSession(connection);
    return ReadFirstSteps(connection);
}

} // namespace

void MainWindow::ShowFirstSteps() {
    if (isAtWork_)
        return;
    Guard([&] {
        const FirstSteps steps = StepsNow();
        isAtWork_ = steps.done;
        firstSteps_->Show(steps);
    });
}

// The item of the tree whose documents are of that type: they are listed below it then.
void MainWindow::SelectType(int type) {
    for (const Subject& subject : subjects_)
        for (const MenuItemRow& item : subject.items)
            for (const MenuEntry& entry : item.entries)
                if (entry.action == kEntryScreen && entry.myType == type)
                    return SelectItem(Q(item.caption));
}

void MainWindow::Take(FirstStep step) {
    const auto enter = [&](int type) {
        SelectType(type);
        Start({"", kEntryScreen, static_cast<std::int16_t>(type), ""});
    };
    switch (step) {
    case FirstStep::Warehouse:
        Start({"", kWarehouses, -1, ""});
        break;
    case FirstStep::Product:
        Start({"", kProducts, -1, ""});
        break;
    case FirstStep::Card:
        Start({"", -1, -1, "frmHostCards"});
        break;
    case FirstStep::Opening:
        enter(DocType::Opening);
        break;
    case FirstStep::Document:
        if (const FirstSteps steps = StepsNow(); steps.waiting == 0) {
            enter(DocType::Receipt);
        } else {
            SelectType(steps.waitingType);
            OpenDocument(steps.waitingType, steps.waiting, static_cast<int>(DocAction::Approve));
        }
    }
    if (isAtWork_)
        tree_->setFocus();
    else
        firstSteps_->FocusNext();
}

} // namespace jxc
