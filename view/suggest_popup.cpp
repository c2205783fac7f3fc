#include "view/suggest_popup.h"

#include <QFrame>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include "view/qt_text.h"

namespace jxc {

namespace {

constexpr int kPause = 30; // milliseconds: a scanner sends a whole code within it
constexpr int kPage = 8;   // rows that PageDown goes on

} // namespace

SuggestPopup::SuggestPopup(QLineEdit& line, Source source)
    : QObject(&line), line_(line), source_(std::move(source)), searched_(line.text()) {
    pause_.setSingleShot(true);
    pause_.setInterval(kPause);
    connect(&pause_, &QTimer::timeout, this, [this] { Search(); });
    line_.installEventFilter(this);
}

SuggestPopup::~SuggestPopup() {
    delete list_;
}

bool SuggestPopup::IsShown() const {
    return list_ && list_->isVisible();
}

bool SuggestPopup::eventFilter(QObject* object, QEvent* event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride: {
        const int key = static_cast<const QKeyEvent*>(event)->key();
        if ((key == Qt::Key_F3 && source_.pick) || (key == Qt::Key_Escape && IsShown())) {
            event->accept(); // here the key means this and no command
            return true;
        }
        break;
    }
    case QEvent::KeyPress:
        return OnKey(static_cast<const QKeyEvent&>(*event));
    case QEvent::InputMethod:
        pause_.start();
        break;
    case QEvent::FocusIn:
        searched_ = line_.text(); // what stood there is not being typed
        GetReady();
        break;
    case QEvent::FocusOut:
    case QEvent::Hide:
        Hide();
        break;
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}

// True for a key that has been dealt with; every other one goes on its way and is followed by a search.
bool SuggestPopup::OnKey(const QKeyEvent& key) {
    switch (key.key()) {
    case Qt::Key_F3: {
        const auto pick = source_.pick; // the line may be gone behind it, and this with it
        if (!pick)
            return false;
        Hide();
        pick(S(line_.text()));
        return true;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        const int chosen = IsShown() && searched_ == line_.text() ? rows_->currentRow() : -1;
        Hide();
        if (chosen < 0)
            return false;
        Take(chosen);
        return true;
    }
    case Qt::Key_Escape:
        if (!IsShown())
            return false;
        Hide();
        return true;
    case Qt::Key_Down:
    case Qt::Key_Up:
    case Qt::Key_PageDown:
    case Qt::Key_PageUp:
        return IsShown() && key.modifiers() == Qt::NoModifier && MoveChoice(key.key());
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        Hide();
        return false;
    default:
        pause_.start();
        return false;
    }
}

// Up from the first row gives the choice up again.
bool SuggestPopup::MoveChoice(int key) {
    const int step = key == Qt::Key_Down       ? 1
                     : key == Qt::Key_Up       ? -1
                     : key == Qt::Key_PageDown ? kPage
                                               : -kPage;
    const int row = std::clamp(rows_->currentRow() + step, -1, rows_->rowCount() - 1);
    if (row < 0)
        rows_->setCurrentItem(nullptr);
    else
        rows_->setCurrentCell(row, 0);
    return true;
}

void SuggestPopup::GetReady() {
    if (std::exchange(ready_, true))
        return;
    QTimer::singleShot(kPause, this, [this] {
        if (line_.hasFocus())
            static_cast<void>(source_.suggest(""));
    });
}

void SuggestPopup::Search() {
    if (!line_.hasFocus() || line_.isReadOnly() || line_.text() == searched_)
        return;
    searched_ = line_.text();
    Show(source_.suggest(S(searched_)));
}

void SuggestPopup::BuildList() {
    list_ = new QFrame(line_.window());
    list_->setObjectName("label_suggestions"); // fixed: no control of a screen
    list_->setFrameShape(QFrame::Box);
    list_->setAutoFillBackground(true);
    list_->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QVBoxLayout(list_);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    rows_ = new QTableWidget(list_);
    rows_->setFocusPolicy(Qt::NoFocus);
    rows_->setFrameShape(QFrame::NoFrame);
    rows_->setShowGrid(false);
    rows_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rows_->setSelectionBehavior(QAbstractItemView::SelectRows);
    rows_->setSelectionMode(QAbstractItemView::SingleSelection);
    rows_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rows_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rows_->verticalHeader()->hide();
    rows_->verticalHeader()->setMinimumSectionSize(0);
    rows_->verticalHeader()->setDefaultSectionSize(rows_->fontMetrics().height() + 5);
    rows_->horizontalHeader()->setFocusPolicy(Qt::NoFocus);
    rows_->horizontalHeader()->setSectionsClickable(false);
    rows_->horizontalHeader()->setStretchLastSection(true);
    connect(rows_, &QTableWidget::cellClicked, this, [this](int row) { Take(row); });
    more_ = new QLabel(source_.pick ? "还有更多：继续输入，或按 F3 选取" : "还有更多：继续输入", list_);
    more_->setContentsMargins(4, 2, 4, 2);
    layout->addWidget(rows_);
    layout->addWidget(more_);
}

void SuggestPopup::Show(Suggestions found) {
    shown_ = std::move(found);
    if (shown_.rows.empty())
        return Hide();
    if (!list_)
        BuildList();
    rows_->clear();
    rows_->setRowCount(static_cast<int>(shown_.rows.size()));
    rows_->setColumnCount(static_cast<int>(shown_.columns.size()));
    for (int column = 0; column < rows_->columnCount(); ++column) {
        const SuggestionColumn& told = shown_.columns[static_cast<size_t>(column)];
        const Qt::Alignment side = told.figure ? Qt::AlignRight : Qt::AlignLeft;
        auto* heading = new QTableWidgetItem(Q(told.caption));
        heading->setTextAlignment(side | Qt::AlignVCenter);
        rows_->setHorizontalHeaderItem(column, heading);
        for (int row = 0; row < rows_->rowCount(); ++row) {
            const auto& cells = shown_.rows[static_cast<size_t>(row)].cells;
            auto* item = new QTableWidgetItem(Q(cells[static_cast<size_t>(column)]));
            item->setTextAlignment(side | Qt::AlignVCenter);
            rows_->setItem(row, column, item);
        }
    }
    rows_->setCurrentItem(nullptr);
    more_->setVisible(shown_.more);
    rows_->resizeColumnsToContents();
    PlaceUnderLine();
    list_->show();
    list_->raise();
}

// Under the line, or above it where there is no room below, within the window.
void SuggestPopup::PlaceUnderLine() {
    const QWidget& window = *line_.window();
    int width = 4;
    for (int column = 0; column < rows_->columnCount(); ++column)
        width += rows_->columnWidth(column) + 8;
    const int rowHeight = rows_->verticalHeader()->defaultSectionSize();
    const int height = rowHeight * rows_->rowCount() + rows_->horizontalHeader()->sizeHint().height() + 2;
    rows_->setFixedHeight(height);
    const QSize size(std::clamp(width, line_.width(), std::max(line_.width(), window.width())),
                     height + 2 + (shown_.more ? more_->sizeHint().height() : 0));
    QPoint at = line_.mapTo(&window, QPoint(0, line_.height()));
    if (at.y() + size.height() > window.height())
        at.setY(std::max(0, line_.mapTo(&window, QPoint()).y() - size.height()));
    at.setX(std::max(0, std::min(at.x(), window.width() - size.width())));
    list_->setGeometry(QRect(at, size));
}

void SuggestPopup::Hide() {
    pause_.stop();
    if (list_)
        list_->hide();
}

void SuggestPopup::Take(int row) {
    const SuggestedRow taken = shown_.rows.at(static_cast<size_t>(row));
    const auto take = source_.take; // the line may be gone behind it, and this with it
    Hide();
    take(taken);
}

} // namespace jxc
