// Labels, pictures, frames, tabs, buttons, menu items, check boxes and options.

#include "controls/gestures.h"
#include "view/binding.h"
#include "view/qt_text.h"
#include "view/screen_window.h"

namespace jxc {

namespace {

class LabelBinding : public Binding {
  public:
    LabelBinding(ScreenWindow& window, Label& label, QLabel& shown)
        : Binding(window, label, shown), label_(label), shown_(shown) {
        shown_.setTextFormat(Qt::PlainText);
        if (label.onDoubleClick)
            OfferKey("F6", [this] { DoubleClickLabel(window_.Shown(), label_); });
        if (label.onRightClick)
            OfferKey("Shift+F6", [this] { RightClickLabel(window_.Shown(), label_); });
    }
    bool TakesFocus() const override { return false; }
    void Refresh() override {
        Binding::Refresh();
        shown_.setText(Q(label_.caption));
        if (color_ == label_.color)
            return;
        color_ = label_.color;
        QPalette palette = shown_.palette();
        palette.setColor(QPalette::WindowText,
                         QColor(color_ & 0xFF, color_ >> 8 & 0xFF, color_ >> 16 & 0xFF));
        shown_.setPalette(palette);
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (object == &shown_ && event->type() == QEvent::MouseButtonDblClick) {
            window_.Do([&] { DoubleClickLabel(window_.Shown(), label_); });
            return true;
        }
        if (object == &shown_ && event->type() == QEvent::ContextMenu) {
            window_.Do([&] { RightClickLabel(window_.Shown(), label_); });
            return true;
        }
        return Binding::eventFilter(object, event);
    }

  private:
    // In the field that the label names.
    void OfferKey(const char* key, const std::function<void()>& gesture) {
        if (shown_.buddy())
            connect(new QShortcut(QKeySequence(key), shown_.buddy(), nullptr, nullptr,
                                  Qt::WidgetWithChildrenShortcut),
                    &QShortcut::activated, this, [this, gesture] { window_.Do(gesture); });
    }

    Label& label_;
    QLabel& shown_;
    int color_ = 0;
};

// Shown as large as its place allows, never larger than it is.
class PictureBinding : public Binding {
  public:
    PictureBinding(ScreenWindow& window, Picture& picture, QLabel& shown)
        : Binding(window, picture, shown), picture_(picture), shown_(shown) {
        shown_.setAlignment(Qt::AlignCenter);
        shown_.setMinimumSize(1, 1);
        Watch(shown_);
    }
    bool TakesFocus() const override { return false; }
    void Refresh() override {
        Binding::Refresh();
        if (file_ == picture_.file)
            return;
        file_ = picture_.file;
        full_ = file_.empty() ? QPixmap() : QPixmap(Q(file_));
        Fit();
    }
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Resize)
            Fit();
        return Binding::eventFilter(object, event);
    }

  private:
    void Fit() {
        const QSize room = full_.size().boundedTo(shown_.size());
        shown_.setPixmap(full_.isNull() ? full_
                                        : full_.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }

    Picture& picture_;
    QLabel& shown_;
    std::string file_;
    QPixmap full_;
};

class FrameBinding : public Binding {
  public:
    using Binding::Binding;
    bool TakesFocus() const override { return false; }
    void Refresh() override {
        Binding::Refresh();
        if (auto* group = qobject_cast<QGroupBox*>(&widget))
            group->setTitle(Q(control.caption));
    }
};

class TabsBinding : public Binding {
  public:
    TabsBinding(ScreenWindow& window, Tabs& tabs, QTabWidget& shown)
        : Binding(window, tabs, shown), tabs_(tabs), shown_(shown) {
        connect(&shown_, &QTabWidget::currentChanged, this, [this](int index) {
            if (index == tabs_.index)
                return;
            if (window_.FinishTyping())
                window_.Do([&] { ChooseTab(window_.Shown(), tabs_, index); });
            else
                window_.Refresh();
        });
    }
    bool TakesFocus() const override { return false; } // its pages' fields do
    void Refresh() override {
        Binding::Refresh();
        const QSignalBlocker silent(shown_);
        for (int i = 0; i < shown_.count() && i < static_cast<int>(tabs_.captions.size()); ++i)
            ShowTab(i);
        shown_.setCurrentIndex(tabs_.index);
    }

  private:
    void ShowTab(int tab) {
        shown_.setTabText(tab, Q(tabs_.captions[static_cast<size_t>(tab)]));
        shown_.setTabEnabled(tab, !tabs_.disabledTabs.contains(tab));
    }

    Tabs& tabs_;
    QTabWidget& shown_;
};

class CommandBinding : public Binding {
  public:
    CommandBinding(ScreenWindow& window, Command& command, QAbstractButton& button)
        : Binding(window, command, button), button_(button) {
        if (auto* push = qobject_cast<QPushButton*>(&button)) {
            push->setAutoDefault(false);
        }
        connect(&button_, &QAbstractButton::clicked, this, [this, &command] { Press(command); });
    }
    void Refresh() override {
        Binding::Refresh();
        if (button_.text() != Q(control.caption))
            button_.setText(Q(control.caption));
    }

  private:
    void Press(Command& command) {
        if (window_.FinishTyping() && (!command.dropsWork || window_.MayDropWork()))
            window_.Do([&] { Click(window_.Shown(), command); });
    }

  protected:
    bool OnKey(QKeyEvent& key) override {
        switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            button_.click();
            return true;
        case Qt::Key_Left:
        case Qt::Key_Up:
            window_.Step(false);
            return true;
        case Qt::Key_Right:
        case Qt::Key_Down:
            window_.Step(true);
            return true;
        default:
            return Binding::OnKey(key);
        }
    }

  private:
    QAbstractButton& button_;
};

// Space changes it, Enter goes on.
class ToggleBinding : public Binding {
  public:
    ToggleBinding(ScreenWindow& window, Toggle& toggle, QAbstractButton& button)
        : Binding(window, toggle, button), toggle_(toggle), button_(button) {
        button_.setAutoExclusive(false); // the model clears the others of its group
        connect(&button_, &QAbstractButton::clicked, this, [this](bool on) {
            const bool wanted = on || toggle_.kind == ControlKind::Option;
            if (window_.FinishTyping())
                window_.Do([&] { Tick(window_.Shown(), toggle_, wanted); });
            else
                window_.Refresh();
        });
    }
    void Refresh() override {
        Binding::Refresh();
        if (button_.text() != Q(control.caption))
            button_.setText(Q(control.caption));
        button_.setChecked(toggle_.value);
    }

  private:
    Toggle& toggle_;
    QAbstractButton& button_;
};

} // namespace

std::unique_ptr<Binding> BindButton(ScreenWindow& window, Control& control, QWidget& widget) {
    if (!Fits(control, widget))
        return nullptr;
    if (auto* label = dynamic_cast<Label*>(&control))
        return std::make_unique<LabelBinding>(window, *label, static_cast<QLabel&>(widget));
    if (auto* picture = dynamic_cast<Picture*>(&control))
        return std::make_unique<PictureBinding>(window, *picture, static_cast<QLabel&>(widget));
    if (auto* tabs = dynamic_cast<Tabs*>(&control))
        return std::make_unique<TabsBinding>(window, *tabs, static_cast<QTabWidget&>(widget));
    if (auto* command = dynamic_cast<Command*>(&control))
        return std::make_unique<CommandBinding>(window, *command, static_cast<QAbstractButton&>(widget));
    if (auto* toggle = dynamic_cast<Toggle*>(&control))
        return std::make_unique<ToggleBinding>(window, *toggle, static_cast<QAbstractButton&>(widget));
    if (control.kind == ControlKind::Frame)
        return std::make_unique<FrameBinding>(window, control, widget);
    return nullptr;
}

} // namespace jxc
