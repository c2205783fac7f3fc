#include "tests/windows/window_fixture.h"

#include <QTest>

namespace jxc::test {

namespace {

constexpr int kPatience = 20'000; // milliseconds without a key or click

QWindow* HandleOf(const QWidget& widget) {
    return widget.window()->windowHandle();
}

QTableView& TableNamed(const QString& name) {
    return Person::Find<QTableView>(name);
}

// The middle of a cell, which is scrolled into view.
QPoint PlaceOf(QTableView& table, int row, int column) {
    const QModelIndex cell = table.model()->index(row - 1, column - 1);
    table.scrollTo(cell);
    return table.visualRect(cell).center();
}

QString WithoutMnemonic(QString caption) {
    return caption.remove(QRegularExpression("\\(&.\\)|&"));
}

// A window that closes leaves the keyboard to the one below; without a desktop nothing else does that.
void Activate(QWidget& window) {
    if (window.isActiveWindow() || QApplication::activePopupWidget())
        return;
    window.activateWindow();
    QCoreApplication::processEvents();
}

bool AnyButtonDown() {
    const auto windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
        const auto buttons = window->findChildren<QAbstractButton*>();
        return std::any_of(buttons.begin(), buttons.end(),
                           [](const auto* button) { return button->isDown(); });
    });
}

} // namespace

Person::Person() {
    qApp->installEventFilter(this);
    connect(&patience_, &QTimer::timeout, this, [this] { GiveUp(); });
    patience_.start(kPatience);
}

void Person::Moves() {
    if (!gaveUp_)
        patience_.start(kPatience);
}

bool Person::eventFilter(QObject* object, QEvent* event) {
    const bool meets = event->type() == QEvent::Show && !qobject_cast<QProgressDialog*>(object) &&
                       (qobject_cast<QDialog*>(object) || qobject_cast<QMenu*>(object));
    if (auto* window = meets ? static_cast<QWidget*>(object) : nullptr; window && window->isWindow())
        QTimer::singleShot(0, window, [this, window] { Meet(*window); });
    return false;
}

void Person::Meet(QWidget& window) {
    if (auto* box = qobject_cast<QMessageBox*>(&window))
        return AnswerBox(*box);
    const QPointer<QWidget> standing(&window);
    if (work_.empty()) {
        ADD_FAILURE() << "nothing to do in " << S(window.windowTitle());
    } else {
        const auto work = std::move(work_.front());
        work_.pop_front();
        try {
            work();
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
    }
    if (!standing || !standing->isVisible())
        return;
    if (auto* screen = dynamic_cast<ScreenWindow*>(standing.data()))
        screen->Shown().Close();
    if (auto* dialog = qobject_cast<QDialog*>(standing))
        dialog->QDialog::done(0);
    else
        standing->close();
}

void Person::AnswerBox(QMessageBox& box) {
    boxes_.push_back(S(box.text()));
    const int key = answers_.empty() ? Qt::Key_Return : answers_.front();
    if (!answers_.empty())
        answers_.pop_front();
    const QPointer<QMessageBox> standing(&box);
    const bool letter = key >= Qt::Key_A && key <= Qt::Key_Z; // of the button that it underlines
    Press(key, letter ? Qt::AltModifier : Qt::NoModifier);
    if (standing && standing->isVisible()) {
        ADD_FAILURE() << "not answered: " << boxes_.back();
        box.done(0);
    }
}

// Closes everything, so that the test ends.
void Person::GiveUp() {
    if (!std::exchange(gaveUp_, true))
        ADD_FAILURE() << "the windows hang at: " << S(Front().windowTitle());
    patience_.start(100);
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        dialog->QDialog::done(0);
}

QWidget& Person::Front() {
    for (QWidget* window :
         {QApplication::activePopupWidget(), QApplication::activeModalWidget(), QApplication::activeWindow()})
        if (window)
            return *window;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && qobject_cast<QMainWindow*>(window))
            return *window;
    throw std::runtime_error("no window is in front");
}

void Person::Press(int key, Qt::KeyboardModifiers held) {
    Moves();
    ++keys;
    Activate(Front());
    QTest::keyClick(HandleOf(Front()), static_cast<Qt::Key>(key), held);
    if (held & Qt::AltModifier) { // a button is seen to go down before it acts
        EXPECT_TRUE(QTest::qWaitFor([] { return !AnyButtonDown(); }));
    }
}

void Person::Type(const QString& ascii) {
    for (const QChar character : ascii) {
        Moves();
        ++keys;
        Activate(Front());
        QTest::keyClick(HandleOf(Front()), character.toLatin1());
    }
}

void Person::Enter(const QString& ascii) {
    Type(ascii);
    Press(Qt::Key_Return);
}

void Person::EnterEach(std::initializer_list<const char*> texts) {
    for (const char* ascii : texts)
        Enter(ascii);
}

void Person::Compose(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    Activate(Front());
    QCoreApplication::sendEvent(QApplication::focusObject(), &event);
}

void Person::Click(QWidget& widget, QPoint at, Qt::MouseButton button) {
    Moves();
    Activate(*widget.window());
    QTest::mouseClick(HandleOf(widget), button, {}, widget.mapTo(widget.window(), at));
}

void Person::Click(const QString& name) {
    auto& widget = Find(name);
    if (!widget.isVisible() || !widget.isEnabled())
        throw std::runtime_error("cannot click " + S(name));
    Click(widget, widget.rect().center());
}

void Person::DoubleClick(QWidget& widget, QPoint at) {
    Moves();
    Activate(*widget.window());
    QTest::mouseDClick(HandleOf(widget), Qt::LeftButton, {}, widget.mapTo(widget.window(), at));
}

void Person::Choose(const QString& item) {
    auto& menu = dynamic_cast<QMenu&>(Front());
    for (QAction* action : menu.actions())
        if (WithoutMnemonic(action->text()) == item)
            return Click(menu, menu.actionGeometry(action).center());
    throw std::runtime_error("no menu item " + S(item));
}

void Person::ClickCell(const QString& grid, int row, int column, Qt::MouseButton button) {
    QTableView& table = TableNamed(grid);
    Click(*table.viewport(), PlaceOf(table, row, column), button);
}

void Person::DoubleClickCell(const QString& grid, int row, int column) {
    QTableView& table = TableNamed(grid);
    DoubleClick(*table.viewport(), PlaceOf(table, row, column));
}

void Person::ClickHeading(const QString& grid, int column) {
    QHeaderView& heading = *TableNamed(grid).horizontalHeader();
    const int left = heading.sectionViewportPosition(column - 1);
    Click(*heading.viewport(), {left + heading.sectionSize(column - 1) / 2, heading.height() / 2});
}

std::string Person::Cell(const QString& grid, int row, int column, int role) {
    const QAbstractItemModel& model = *TableNamed(grid).model();
    return S(model.index(row - 1, column - 1).data(role).toString());
}

std::string Person::Focus() {
    const QWidget* widget = Front().focusWidget();
    return widget ? S(widget->objectName()) : "";
}

std::vector<std::string> Person::MenuCaptions() {
    std::vector<std::string> captions;
    for (const QAction* action : Front().actions())
        captions.push_back(S(WithoutMnemonic(action->text())));
    return captions;
}

Windows::Windows() {
    ResetScreens();
    control = company.SignedIn();
}

Windows::~Windows() {
    ResetScreens();
}

void Windows::Open(int action, int type, const std::function<void()>& work, const ScreenProperties& more) {
    bool worked = false;
    person.Next([&] {
        worked = true;
        work();
    });
    control.myType(static_cast<std::int16_t>(type));
    control.Refresh(static_cast<std::int16_t>(action), more);
    EXPECT_TRUE(worked);
}

int Windows::Save(const DocumentInput& input, bool approve) {
    const OpenCompany open(company.Address());
    Clerk clerk;
    const int key = clerk.Save(input);
    EXPECT_GT(key, 0) << clerk.LastBox();
    EXPECT_TRUE(!approve || clerk.Approve(input.type, key)) << clerk.LastBox();
    ResetScreens();
    return key;
}

std::vector<std::string> Windows::Rows(const std::string& sql) const {
    return LinesOf(QueryCompany(company.Address(), sql));
}

} // namespace jxc::test
