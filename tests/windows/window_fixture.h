// A person at the real windows, for tests: keys and clicks are events of the window system and go to whatever
// window is in front. The windows paint into memory.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <QtWidgets>

#include "tests/support/clerk.h"
#include "view/qt_text.h"
#include "view/screen_window.h"

namespace jxc::test {

class Person : public QObject {
  public:
    Person();

    // What is done in the next window or menu that opens, one after the other; it is closed afterwards if it
    // still stands. A window that nothing is told for fails the test.
    void Next(std::function<void()> work) { work_.push_back(std::move(work)); }
    // Message boxes are answered by Enter, or by the keys given here, one a box: a letter with Alt.
    void Answer(int key) { answers_.push_back(key); }
    // The texts of the boxes shown since last asked.
    std::vector<std::string> Boxes() { return std::exchange(boxes_, {}); }

    void Press(int key, Qt::KeyboardModifiers held = Qt::NoModifier);
    void Type(const QString& ascii);
    void Enter(const QString& ascii); // and the Enter key
    void EnterEach(std::initializer_list<const char*> texts);
    void Compose(const QString& text); // by an input method
    void Click(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton);
    void Click(const QString& widget); // its middle
    void DoubleClick(QWidget& widget, QPoint at);
    // Of a menu in front, by its caption without mnemonic.
    void Choose(const QString& item);
    // Cells and headings of a grid, from 1.
    void ClickCell(const QString& grid, int row, int column, Qt::MouseButton button = Qt::LeftButton);
    void DoubleClickCell(const QString& grid, int row, int column);
    void ClickHeading(const QString& grid, int column);

    static QWidget& Front();
    template <typename Widget = QWidget>
    static Widget& Find(const QString& name) {
        auto* widget = Front().findChild<Widget*>(name);
        if (!widget)
            throw std::runtime_error("no " + S(name) + " in " + S(Front().windowTitle()));
        return *widget;
    }
    static std::string Text(const QString& line) { return S(Find<QLineEdit>(line).text()); }
    static std::string Cell(const QString& grid, int row, int column, int role = Qt::DisplayRole);
    // The name of the widget that has the focus.
    static std::string Focus();
    // The model of the screen in front.
    template <typename Model>
    static Model& Shown() {
        return dynamic_cast<Model&>(dynamic_cast<ScreenWindow&>(Front()).Shown());
    }
    // The captions of the menu in front, "" for a line.
    static std::vector<std::string> MenuCaptions();

    int keys = 0; // pressed so far

    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void Meet(QWidget& window);
    void AnswerBox(QMessageBox& box);
    void Moves();  // patience begins anew
    void GiveUp(); // when nothing has moved for too long
    std::deque<std::function<void()>> work_;
    std::deque<int> answers_;
    std::vector<std::string> boxes_;
    QTimer patience_;
    bool gaveUp_ = false;
};

// A fresh sample company on which somebody is signed in; no window is open.
class Windows : public testing::Test {
  protected:
    Windows();
    ~Windows() override;
    // Opens the host's screen of that number and works in its window.
    void Open(int action, int type, const std::function<void()>& work, const ScreenProperties& more = {});
    void Enter(int type, const std::function<void()>& work) { Open(13, type, work, {{"Action", 1}}); }
    // Saves a document, of a type a typical one, and approves it. Its key.
    int Save(const DocumentInput& input, bool approve = false);
    int Save(int type, bool approve = false) { return Save(TypicalDocument(type), approve); }
    // Rows of the company, cells joined by "|", a null as "null".
    std::vector<std::string> Rows(const std::string& sql) const;

    SampleCompany company{EngineKind::Sqlite};
    lzJxc control;
    Person person;
};

using Texts = std::vector<std::string>;

} // namespace jxc::test
