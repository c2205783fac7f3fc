#include "view/cell_editor.h"

#include <QCompleter>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QTimer>

#include "base/text.h"
#include "view/grid_model.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

// Bytes are counted as the fields count them: a Chinese character is 2.
class ByteLimit : public QValidator {
  public:
    ByteLimit(int limit, QObject* parent) : QValidator(parent), limit_(limit) {}
    State validate(QString& text, int&) const override {
        return AnsiByteLength(S(text)) <= limit_ ? Acceptable : Invalid;
    }

  private:
    int limit_;
};

QValidator* ValidatorOf(const GridColumn& column, QObject* parent) {
    if (column.type == CellType::List)
        return nullptr;
    if (column.type == CellType::Text)
        return column.maxBytes > 0 ? new ByteLimit(column.maxBytes, parent) : nullptr;
    const QString decimals =
        column.decimals > 0 ? QString("(\\.\\d{0,%1})?").arg(column.decimals) : QString();
    return new QRegularExpressionValidator(QRegularExpression("-?\\d{0,13}" + decimals), parent);
}

std::optional<CellExit> ExitOf(const QKeyEvent& key, const QLineEdit& line) {
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return CellExit::Enter;
    case Qt::Key_Tab:
        return CellExit::Tab;
    case Qt::Key_Backtab:
        return CellExit::Backtab;
    case Qt::Key_Up:
        return CellExit::Up;
    case Qt::Key_Down:
        return CellExit::Down;
    case Qt::Key_Right:
        if (line.cursorPosition() == line.text().size() && !line.hasSelectedText())
            return CellExit::Tab;
        return {};
    default:
        return {};
    }
}

} // namespace

CellEditor::CellEditor(const Grid& grid, std::function<void(int, int, const QString&)> commit,
                       std::function<void(CellExit)> leave)
    : grid_(grid), commit_(std::move(commit)), leave_(std::move(leave)) {}

QWidget* CellEditor::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                  const QModelIndex& index) const {
    auto* line = new QLineEdit(parent);
    line->setFrame(false);
    line->setObjectName("cellEditor");
    const GridColumn& column = grid_.Column(index.column() + 1);
    line->setAlignment(column.alignment == Alignment::Right ? Qt::AlignRight : Qt::AlignLeft);
    line->setValidator(ValidatorOf(column, line));
    line->setProperty("numeric", column.type == CellType::Number);
    if (column.type == CellType::List)
        const_cast<CellEditor*>(this)->OfferItems(*line, column);
    return line;
}

void CellEditor::OfferItems(QLineEdit& line, const GridColumn& column) {
    QStringList items;
    for (const std::string& item : column.items)
        items << Q(item);
    auto* offered = new QCompleter(items, &line);
    offered->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    offered->setMaxVisibleItems(static_cast<int>(items.size()));
    line.setCompleter(offered);
    connect(offered, qOverload<const QString&>(&QCompleter::activated), &line,
            [this, &line](const QString& item) {
                line.setText(item);
                Finish(line, CellExit::Enter);
            });
    QTimer::singleShot(0, offered, [offered] { offered->complete(); }); // when the cell stands in its place
}

void CellEditor::Finish(QLineEdit& line, CellExit exit) {
    const QPointer<QLineEdit> held = &line; // a message of the commit may have closed it
    emit commitData(&line);
    if (held && !held->isHidden())
        emit closeEditor(held, NoHint);
    leave_(exit);
}

// A cell that was never filled is empty, not 0.
void CellEditor::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* line = static_cast<QLineEdit*>(editor);
    if (line->property("filled").toBool())
        return;
    line->setProperty("filled", true);
    const QString text = EditText(grid_, index.row() + 1, index.column() + 1);
    line->setProperty("before", text);
    line->setText(text);
    if (onOpen)
        onOpen(*line, index.row() + 1, index.column() + 1);
}

void CellEditor::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const {
    auto* line = static_cast<QLineEdit*>(editor);
    if (committing_ || line->text() == line->property("before").toString())
        return;
    committing_ = true;
    const QString text = line->text();
    line->setProperty("before", text); // once
    commit_(index.row() + 1, index.column() + 1, text);
    committing_ = false;
}

void CellEditor::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                      const QModelIndex&) const {
    editor->setGeometry(option.rect);
}

bool CellEditor::eventFilter(QObject* object, QEvent* event) {
    auto* line = qobject_cast<QLineEdit*>(object);
    if (!line || event->type() != QEvent::KeyPress)
        return QStyledItemDelegate::eventFilter(object, event);
    if (const auto& key = static_cast<QKeyEvent&>(*event);
        key.text() == "," && line->property("numeric").toBool()) {
        line->insert("."); // the decimal sign of half the world's number pads
        return true;
    }
    const std::optional<CellExit> exit = ExitOf(static_cast<QKeyEvent&>(*event), *line);
    if (!exit)
        return QStyledItemDelegate::eventFilter(object, event);
    Finish(*line, *exit);
    return true;
}

} // namespace jxc
