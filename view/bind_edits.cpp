// Text boxes, lists and dates. Every character that a person types, pastes or composes goes through the
// model's key filter; the widget only shows what the model took.

#include <QDateEdit>
#include <QElapsedTimer>

#include "base/text.h"
#include "controls/gestures.h"
#include "forms/suggest.h"
#include "view/binding.h"
#include "view/qt_text.h"
#include "view/screen_window.h"
#include "view/suggest_popup.h"

namespace jxc {

namespace {

constexpr int kBackspace = 8;
// Positions in the models are characters, in the toolkit 16-bit units.
int CharactersBefore(const QString& text, int units) {
    return static_cast<int>(text.left(units).toUcs4().size());
}
int UnitsOf(const QString& text, int characters) {
    const QList<uint> points = text.toUcs4().mid(0, characters);
    return static_cast<int>(
        QString::fromUcs4(reinterpret_cast<const char32_t*>(points.data()), points.size()).size());
}

// A line that is edited through the model: the whole of a text box, the line of a list.
class EditLine {
  public:
    EditLine(ScreenWindow& window, EditBox& box, QLineEdit& line) : window_(window), box_(box), line_(line) {
        line_.setAcceptDrops(false);
        line_.setContextMenuPolicy(Qt::CustomContextMenu);
        QObject::connect(&line_, &QWidget::customContextMenuRequested, &line_,
                         [this](const QPoint& at) { ShowMenu(at); });
    }

    void Refresh() {
        if (line_.text() != Q(box_.text))
            line_.setText(Q(box_.text));
        line_.setReadOnly(box_.locked || !TakesText());
    }

    bool OnKey(const QKeyEvent& key) {
        if (key.matches(QKeySequence::Paste))
            return Type(kPasteKey);
        if (key.matches(QKeySequence::Cut)) {
            line_.copy();
            return !line_.hasSelectedText() || Type(kBackspace);
        }
        if (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo))
            return true; // its memory knows nothing of what the model refused
        if (key.key() == Qt::Key_Backspace)
            return Type(kBackspace);
        if (key.key() == Qt::Key_Delete)
            return DeleteAhead();
        if (key.modifiers() & Qt::ControlModifier)
            return !LeavesText(key);
        const bool command = key.modifiers() & (Qt::AltModifier | Qt::MetaModifier);
        if (command || key.text().isEmpty() || !key.text().at(0).isPrint())
            return false;
        TypeText(key.text());
        return true;
    }

    // What is being composed is shown by the widget; what is finished is typed.
    bool OnInput(QInputMethodEvent& event) {
        const QString finished = event.commitString();
        if (finished.isEmpty())
            return false;
        event.setCommitString("");
        TypeText(finished);
        return false;
    }

    // Rows are suggested under the line. `enter` presses Enter once a row's text stands in it.
    void SuggestRows(const std::function<void()>& enter) {
        if (!box_.onSuggest)
            return;
        const auto take = [this, enter](const SuggestedRow& taken) {
            if (Take(taken))
                enter();
        };
        SuggestPopup::Source source;
        source.suggest = [this](const std::string& typed) { return Suggest(box_, typed); };
        source.take = take;
        if (box_.onPick)
            source.pick = [this, take](const std::string& typed) {
                std::optional<SuggestedRow> picked;
                window_.Do([&] { picked = Pick(window_.Shown(), box_, typed); });
                if (picked && window_.Shown().IsOpen())
                    take(*picked);
            };
        new SuggestPopup(line_, std::move(source)); // the line's own
    }

  private:
    // Of the keys with Ctrl those that copy or move; others would change the widget's text alone.
    static bool LeavesText(const QKeyEvent& key) {
        switch (key.key()) {
        case Qt::Key_A:
        case Qt::Key_C:
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_Insert:
        case Qt::Key_Tab:
            return true;
        default:
            return false;
        }
    }

    // False when a message was raised, or the screen has sent the person elsewhere.
    bool Take(const SuggestedRow& taken) {
        return window_.Do([&] { TakeText(window_.Shown(), box_, taken); }) && window_.Shown().IsOpen() &&
               window_.Shown().Focus() == &box_;
    }

    bool TakesText() const {
        const auto* list = dynamic_cast<const ListBox*>(&box_);
        return !list || list->editable;
    }

    // A comma that a box of numbers refuses is the decimal sign of half the world's number pads.
    void TypeText(const QString& text) {
        for (const uint point : text.toUcs4())
            if (!Taken(static_cast<int>(point)) && !(point == ',' && Taken('.')))
                QApplication::beep();
    }

    bool DeleteAhead() {
        if (!line_.hasSelectedText())
            line_.setSelection(line_.cursorPosition(), 1);
        return !line_.hasSelectedText() || Type(kBackspace);
    }

    bool Type(int keyCode) {
        if (!Taken(keyCode))
            QApplication::beep();
        return true;
    }

    bool Taken(int keyCode) {
        const QString text = line_.text();
        const int from = line_.hasSelectedText() ? line_.selectionStart() : line_.cursorPosition();
        box_.selStart = CharactersBefore(text, from);
        box_.selLength =
            line_.hasSelectedText() ? CharactersBefore(line_.selectedText(), line_.selectionLength()) : 0;
        bool taken = false;
        window_.Do([&] { taken = TypeKey(window_.Shown(), box_, keyCode); });
        line_.setCursorPosition(UnitsOf(line_.text(), box_.selStart));
        return taken;
    }

    void ShowMenu(const QPoint& at) {
        QMenu menu(&line_);
        menu.addAction("剪切(&T)", [this] {
            line_.copy();
            if (line_.hasSelectedText())
                Type(kBackspace);
        });
        menu.addAction("复制(&C)", &line_, &QLineEdit::copy);
        menu.addAction("粘贴(&P)", [this] { Type(kPasteKey); });
        menu.addAction("全选(&A)", &line_, &QLineEdit::selectAll);
        menu.exec(line_.mapToGlobal(at));
    }

    ScreenWindow& window_;
    EditBox& box_;
    QLineEdit& line_;
};

bool IsMiddleClick(const QEvent& event) {
    return (event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonRelease) &&
           static_cast<const QMouseEvent&>(event).button() == Qt::MiddleButton;
}

class TextBinding : public Binding {
  public:
    TextBinding(ScreenWindow& window, TextBox& box, QLineEdit& line)
        : Binding(window, box, line), line_(line), edit_(window, box, line) {
        if (box.secret)
            line_.setEchoMode(QLineEdit::Password);
        edit_.SuggestRows([this] { PressEnter(); });
    }

    void Refresh() override {
        Binding::Refresh();
        edit_.Refresh();
    }
    void TakeFocus(Qt::FocusReason reason) override {
        line_.setFocus(reason);
        line_.selectAll();
    }
    bool eventFilter(QObject* object, QEvent* event) override {
        return IsMiddleClick(*event) || Binding::eventFilter(object, event);
    }

  protected:
    bool OnKey(QKeyEvent& key) override {
        if (key.key() == Qt::Key_Down || key.key() == Qt::Key_Up) {
            window_.Step(key.key() == Qt::Key_Down);
            return true;
        }
        return edit_.OnKey(key) || Binding::OnKey(key);
    }
    bool OnInput(QInputMethodEvent& event) override { return edit_.OnInput(event); }

  private:
    QLineEdit& line_;
    EditLine edit_;
};

class ListBinding : public Binding {
  public:
    ListBinding(ScreenWindow& window, ListBox& list, QComboBox& box)
        : Binding(window, list, box), list_(list), box_(box) {
        box_.setInsertPolicy(QComboBox::NoInsert);
        if (list_.editable) {
            box_.setCompleter(nullptr);
            edit_ = std::make_unique<EditLine>(window, list, *box_.lineEdit());
            Watch(*box_.lineEdit());
            edit_->SuggestRows([this] { PressEnter(); });
        }
        // Also by the letters and arrow keys that a closed list takes.
        connect(&box_, &QComboBox::currentIndexChanged, this, [this](int index) {
            if (index >= 0)
                window_.Do([&] { PickItem(window_.Shown(), list_, index); });
        });
    }

    void Refresh() override {
        Binding::Refresh();
        const QSignalBlocker silent(box_);
        if (shown_ != list_.items) {
            shown_ = list_.items;
            box_.clear();
            for (int i = 0; i < static_cast<int>(list_.items.size()); ++i)
                box_.addItem(Q(Trim(list_.VisibleText(i))));
        }
        if (box_.currentIndex() != list_.Index())
            box_.setCurrentIndex(list_.Index());
        if (edit_)
            edit_->Refresh();
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Wheel)
            return true; // a turn of the wheel over the screen must not change a document
        return IsMiddleClick(*event) || Binding::eventFilter(object, event);
    }

  protected:
    bool OnKey(QKeyEvent& key) override {
        const bool moves = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;
        if (moves && key.modifiers() & Qt::AltModifier) {
            box_.showPopup();
            return true;
        }
        if (!moves && (edit_ ? edit_->OnKey(key) : JumpTo(key)))
            return true;
        return Binding::OnKey(key);
    }
    bool OnInput(QInputMethodEvent& event) override { return edit_ && edit_->OnInput(event); }

  private:
    // Letters typed at a closed list lead to the item that they name, by a part of it or in pinyin.
    bool JumpTo(const QKeyEvent& key) {
        const bool command = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
        if (command || key.text().isEmpty() || !key.text().at(0).isPrint() || key.text().at(0).isSpace())
            return false;
        if (!sinceLetter_.isValid() || sinceLetter_.hasExpired(kLettersOfOneWord))
            letters_.clear();
        sinceLetter_.start();
        letters_ += key.text();
        // The same first letter again goes on to the next such item.
        const int found = ItemFoundBy(list_, S(letters_), list_.Index() + (letters_.size() == 1 ? 1 : 0));
        if (found >= 0)
            window_.Do([&] { PickItem(window_.Shown(), list_, found); });
        return found >= 0;
    }

    static constexpr qint64 kLettersOfOneWord = 1000; // milliseconds between them at most
    QString letters_;
    QElapsedTimer sinceLetter_;
    ListBox& list_;
    QComboBox& box_;
    std::unique_ptr<EditLine> edit_;
    std::vector<std::string> shown_; // the items as they were last filled in
};

QDate DayOnCalendar(const Date& date) {
    return {YearOf(date), MonthOf(date), DayOf(date)};
}

// The widget always holds a date; its least one stands for none.
class DateBinding : public Binding {
  public:
    DateBinding(ScreenWindow& window, DateBox& box, QDateEdit& edit)
        : Binding(window, box, edit), box_(box), edit_(edit) {
        edit_.setMinimumDate(QDate(1900, 1, 1));
        edit_.setSpecialValueText(" ");
        edit_.setDisplayFormat("yyyy-MM-dd");
        edit_.setCalendarPopup(true);
        Watch(*edit_.findChild<QLineEdit*>());
        connect(&edit_, &QDateEdit::dateChanged, this, [this](QDate date) { Change(date); });
    }

    void Refresh() override {
        Binding::Refresh();
        const QSignalBlocker silent(edit_);
        const QDate shown = box_.date ? DayOnCalendar(*box_.date) : edit_.minimumDate();
        if (edit_.date() != shown)
            edit_.setDate(shown);
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        return event->type() == QEvent::Wheel || Binding::eventFilter(object, event);
    }

    bool FinishTyping() override {
        edit_.interpretText();
        return true;
    }

  protected:
    bool OnKey(QKeyEvent& key) override {
        const bool clears = key.key() == Qt::Key_Delete && key.modifiers() == Qt::NoModifier;
        if (clears) {
            edit_.setDate(edit_.minimumDate());
            return true;
        }
        if (!box_.date && !key.text().isEmpty() && key.text().at(0).isDigit()) {
            edit_.setDate(DayOnCalendar(Today()));
            edit_.setSelectedSection(QDateTimeEdit::YearSection);
        }
        return Binding::OnKey(key);
    }

  private:
    void Change(QDate date) {
        std::optional<Date> typed;
        if (date != edit_.minimumDate())
            typed = MakeDate(date.year(), date.month(), date.day());
        window_.Do([&] { PickDate(window_.Shown(), box_, typed); });
    }

    DateBox& box_;
    QDateEdit& edit_;
};

} // namespace

std::unique_ptr<Binding> BindEdit(ScreenWindow& window, Control& control, QWidget& widget) {
    if (!Fits(control, widget))
        return nullptr;
    if (auto* box = dynamic_cast<TextBox*>(&control))
        return std::make_unique<TextBinding>(window, *box, static_cast<QLineEdit&>(widget));
    if (auto* list = dynamic_cast<ListBox*>(&control))
        return std::make_unique<ListBinding>(window, *list, static_cast<QComboBox&>(widget));
    if (auto* date = dynamic_cast<DateBox*>(&control))
        return std::make_unique<DateBinding>(window, *date, static_cast<QDateEdit&>(widget));
    return nullptr;
}

} // namespace jxc
