#include "robot/clerk.h"

#include "base/text.h"
#include "controls/gestures.h"
#include "session/dialect.h"
#include "session/lookups/book.h"
#include "session/lookups/database_routines.h"

namespace jxc {

namespace {

void TypeLines(frmDj02& s, const std::vector<LineInput>& lines) {
    int row = 0;
    for (const LineInput& input : lines) {
        TypeCell(s, s.Grid2, ++row, line::kCode, input.code);
        const int quantityColumn = s.type.IsStocktake() ? line::kCounted : line::kQuantity;
        TypeCell(s, s.Grid2, row, quantityColumn, NumberText(input.quantity));
        if (input.price > 0 && s.Grid2.CanType(line::kPrice) && !s.type.IsStocktake())
            TypeCell(s, s.Grid2, row, line::kPrice, NumberText(input.price));
    }
}

} // namespace

void EnterDocument(frmDj02& s, const DocumentInput& input) {
    EnterDate(s, s.dtpInvDate,
              input.date.empty() ? s.dtpInvDate.date : ParseDate(input.date)); // which gives the number
    if (!input.warehouse.empty())
        ChooseItem(s, s.cboCkName, ItemWithText(s.cboCkName, input.warehouse));
    if (!input.warehouse2.empty())
        ChooseItem(s, s.cboCkName2, ItemWithText(s.cboCkName2, input.warehouse2));
    if (!input.customer.empty()) {
        EnterText(s, s.txtKhSeek, input.customer);
        PressKey(s, s.txtKhSeek, "Enter");
    }
    if (!input.order.empty())
        EnterText(s, s.txtHtNo, input.order);
    if (!input.product.empty()) {
        EnterText(s, s.txtCpCode, input.product);
        PressKey(s, s.txtCpCode, "Enter");
        EnterText(s, s.txtInvSL, std::to_string(input.pieces));
    }
    TypeLines(s, input.lines);
    if (!input.number.empty())
        EnterText(s, s.txtNo, input.number);
}

void Clerk::Show(frmDj02& screen, const std::function<void(frmDj02&)>& act) {
    view.OnScreen("frmDj02", [&](Screen&) { act(screen); });
    ShowModal(screen);
    view.OnScreen("frmDj02", nullptr);
}

void Clerk::Enter(const DocumentInput& input, const std::function<void(frmDj02&)>& act) {
    auto& screen = dynamic_cast<frmDj02&>(ScreenNamed("frmDj02"));
    screen.Action = 1;
    screen.invType = input.type;
    screen.OldType = screen.oldInvID = screen.JzState = 0;
    Show(screen, [&](frmDj02& s) {
        EnterDocument(s, input);
        act(s);
    });
}

void Clerk::Open(DocAction action, int type, int key, const std::function<void(frmDj02&)>& act) {
    auto& screen = dynamic_cast<frmDj02&>(ScreenNamed("frmDj02"));
    screen.Action = static_cast<int>(action);
    screen.invType = screen.OldType = type;
    screen.oldInvID = key;
    screen.JzState = 0;
    Show(screen, act);
}

void ClickSave(Clerk& clerk, frmDj02& screen) {
    clerk.view.boxes.clear();
    clerk.view.AnswerWith([](const MessageBox& box) {
        const bool printing = box.text.find("打印本张单据？") != std::string::npos;
        return printing ? box.buttons.back() : box.buttons.front();
    });
    Click(screen, screen.cmdSave);
}

int Clerk::Save(const DocumentInput& input) {
    int key = 0;
    Enter(input, [&](frmDj02& s) {
        const std::string number = s.Number();
        ClickSave(*this, s);
        if (LastBox() == "单据新增完毕。打印本张单据？")
            key = static_cast<int>(Val(DbScalar("select fInvID from " + BookStem(input.type, false) +
                                                "01 where fInvNo=" + InQuotes(number))));
    });
    return key;
}

bool Clerk::RunSave(DocAction action, int type, int key) {
    Open(action, type, key, [&](frmDj02& s) { ClickSave(*this, s); });
    return LastBox().ends_with("完毕！");
}

bool Clerk::Approve(int type, int key) {
    return RunSave(DocAction::Approve, type, key);
}
bool Clerk::Reverse(int type, int key) {
    return RunSave(DocAction::Reverse, type, key);
}
bool Clerk::Delete(int type, int key) {
    return RunSave(DocAction::Delete, type, key);
}

} // namespace jxc
