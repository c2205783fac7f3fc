// Grids: a table over the model itself, typed into cell by cell, walked with Enter and the arrow keys, copied
// from and pasted into as spreadsheets do.

#include <set>

#include <QTimer>

#include "base/text.h"
#include "controls/gestures.h"
#include "view/binding.h"
#include "view/cell_editor.h"
#include "view/grid_menu.h"
#include "view/grid_model.h"
#include "view/qt_text.h"
#include "view/qt_view.h"
#include "view/screen_window.h"
#include "view/suggest_popup.h"

namespace jxc {

namespace {

constexpr int kCellMargin = 10; // pixels around a column's characters
constexpr int kRowMargin = 7;

class GridBinding : public Binding {
  public:
    GridBinding(ScreenWindow& window, Grid& grid, QTableView& table)
        : Binding(window, grid, table), grid_(grid), table_(table), model_(grid),
          editor_(
              grid, [this](int row, int column, const QString& text) { Commit(row, column, text); },
              [this](CellExit exit) { LeaveCell(exit); }) {
        table_.setModel(&model_);
        table_.setItemDelegate(&editor_);
        if (grid_.onSuggest)
            editor_.onOpen = [this](QLineEdit& line, int row, int column) { SuggestRows(line, row, column); };
        LookOfTable();
        Watch(*table_.viewport());
        connect(table_.selectionModel(), &QItemSelectionModel::currentChanged, this,
                [this](const QModelIndex& current) { TakeCurrent(current); });
        if (grid_.manyRows)
            connect(table_.selectionModel(), &QItemSelectionModel::selectionChanged, this,
                    [this] { TakeMarks(); });
        connect(&table_, &QTableView::doubleClicked, this,
                [this](const QModelIndex& at) { DoubleClick(at); });
        connect(&table_, &QTableView::clicked, this, [this](const QModelIndex& at) { TurnCheck(at); });
        connect(table_.horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int section) {
            window_.Do([&] { ClickHeading(window_.Shown(), grid_, section + 1); });
        });
        connect(table_.horizontalHeader(), &QHeaderView::sectionResized, this,
                [this](int section, int, int width) { TakeWidth(section, width); });
    }

    void Refresh() override {
        Binding::Refresh();
        ++quiet_;
        model_.Refresh();
        ShowColumns();
        ShowCurrent();
        ShowMarks();
        --quiet_;
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Resize && object == table_.viewport())
            FillWidth();
        if (event->type() == QEvent::FocusIn && object == &table_ && grid_.onSuggest &&
            !std::exchange(ready_, true))
            QTimer::singleShot(0, this, [this] { GetReady(); });
        if (event->type() == QEvent::ShortcutOverride && Picks(static_cast<const QKeyEvent&>(*event))) {
            event->accept(); // here the key means this and no command
            return true;
        }
        if (event->type() == QEvent::ContextMenu) {
            ShowMenu(static_cast<QContextMenuEvent&>(*event));
            return true;
        }
        return Binding::eventFilter(object, event);
    }

    void TakeFocus(Qt::FocusReason reason) override {
        table_.setFocus(reason);
        if (!table_.currentIndex().isValid() && model_.rowCount() > 0)
            GoToCell(1, FirstColumn());
    }

    bool FinishTyping() override {
        QWidget* line = table_.indexWidget(table_.currentIndex());
        if (!line)
            return true;
        committed_ = true;
        const QPointer<QWidget> held = line;
        emit editor_.commitData(line);
        if (held && !held->isHidden())
            emit editor_.closeEditor(held, QAbstractItemDelegate::NoHint);
        const bool quiet = committed_;
        committed_ = true;
        return quiet;
    }

  protected:
    bool OnKey(QKeyEvent& key) override {
        if (key.matches(QKeySequence::Copy)) {
            CurrentView().SetClipboard(CopiedText(grid_, Selected(), false));
            return true;
        }
        if (key.matches(QKeySequence::Paste)) {
            Paste();
            return true;
        }
        if (key.key() == Qt::Key_Delete && TypesAt(table_.currentIndex())) {
            Commit(grid_.selectedRow, grid_.selectedColumn, "");
            return true;
        }
        if (key.key() == Qt::Key_Space && IsCheck(table_.currentIndex())) {
            TurnCheck(table_.currentIndex());
            return true;
        }
        if (Picks(key)) {
            PickInto(grid_.selectedRow, grid_.selectedColumn,
                     S(EditText(grid_, grid_.selectedRow, grid_.selectedColumn)));
            return true;
        }
        if (key.modifiers() & Qt::ControlModifier)
            return false; // pages are turned so
        switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            LeaveCell(CellExit::Enter);
            return true;
        case Qt::Key_Tab:
            LeaveCell(CellExit::Tab);
            return true;
        case Qt::Key_Backtab:
            window_.Step(false);
            return true;
        default:
            return false;
        }
    }

    // Input methods that compose in a window of their own send the finished text at once. It starts the
    // typing of a cell as a key does; the table alone would open the editor and lose the text.
    bool OnInput(QInputMethodEvent& event) override {
        const QModelIndex at = table_.currentIndex();
        if (event.commitString().isEmpty() || !TypesAt(at) || table_.indexWidget(at))
            return false;
        table_.edit(at);
        if (QWidget* editor = table_.indexWidget(at))
            QCoreApplication::sendEvent(editor, &event);
        return true;
    }

  private:
    void LookOfTable() {
        table_.setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed |
                               QAbstractItemView::DoubleClicked);
        table_.setTabKeyNavigation(false);
        table_.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        table_.setWordWrap(false);
        table_.horizontalHeader()->setHighlightSections(false);
        table_.horizontalHeader()->setSectionsClickable(true);
        table_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        table_.verticalHeader()->setDefaultSectionSize(table_.fontMetrics().height() + kRowMargin);
    }

    // Widths come from the model; those that the person drags go back into it.
    void ShowColumns() {
        for (int column = 1; column <= grid_.ColumnCount(); ++column) {
            const GridColumn& settings = grid_.Column(column);
            if (table_.isColumnHidden(column - 1) != settings.hidden)
                table_.setColumnHidden(column - 1, settings.hidden);
            if (!settings.hidden && column != lastShown_ &&
                table_.columnWidth(column - 1) != WidthOf(settings))
                table_.setColumnWidth(column - 1, WidthOf(settings));
        }
        const bool typing = !grid_.readOnly;
        table_.setSelectionBehavior(typing ? QAbstractItemView::SelectItems : QAbstractItemView::SelectRows);
        FillWidth();
    }

    int WidthOf(const GridColumn& column) const {
        return static_cast<int>(column.width * table_.fontMetrics().horizontalAdvance('0')) + kCellMargin;
    }

    // The last column takes the room that is left over; the model keeps its own width.
    void FillWidth() {
        int width = 0;
        lastShown_ = 0;
        for (int column = 1; column <= model_.columnCount(); ++column)
            if (!grid_.Column(column).hidden) {
                width += WidthOf(grid_.Column(column));
                lastShown_ = column;
            }
        if (lastShown_ == 0)
            return;
        ++quiet_;
        spare_ = std::max(0, table_.viewport()->width() - width);
        table_.setColumnWidth(lastShown_ - 1, WidthOf(grid_.Column(lastShown_)) + spare_);
        --quiet_;
    }

    void TakeWidth(int section, int width) {
        const bool filled = section + 1 == lastShown_ && spare_ > 0;
        if (quiet_ == 0 && section < grid_.ColumnCount() && width > 0 && !filled)
            grid_.Column(section + 1).width =
                double(width - kCellMargin) / table_.fontMetrics().horizontalAdvance('0');
    }

    void ShowCurrent() {
        if (grid_.selectedRow < 1 || grid_.selectedRow > model_.rowCount())
            return table_.setCurrentIndex({});
        const QModelIndex wanted =
            model_.index(grid_.selectedRow - 1, std::max(0, VisibleColumn(grid_.selectedColumn) - 1));
        if (table_.currentIndex() != wanted)
            table_.setCurrentIndex(wanted);
    }

    int VisibleColumn(int column) const {
        if (column >= 1 && column <= grid_.ColumnCount() && !grid_.Column(column).hidden)
            return column;
        return FirstColumn();
    }
    int FirstColumn() const {
        for (int column = 1; column <= grid_.ColumnCount(); ++column)
            if (!grid_.Column(column).hidden)
                return column;
        return 1;
    }

    void GoToCell(int row, int column) { table_.setCurrentIndex(model_.index(row - 1, column - 1)); }

    // The person moved to another cell.
    void TakeCurrent(const QModelIndex& current) {
        if (quiet_ > 0 || !current.isValid())
            return;
        const int row = current.row() + 1;
        grid_.selectedColumn = current.column() + 1;
        if (row == grid_.selectedRow)
            return;
        moving_ = true;
        window_.Do([&] { SelectRow(window_.Shown(), grid_, row); });
        moving_ = false;
        TakeMarks();
    }

    std::vector<int> RowsShownSelected() const {
        std::set<int> rows;
        for (const QItemSelectionRange& part : table_.selectionModel()->selection())
            for (int row = part.top(); row <= part.bottom(); ++row)
                rows.insert(row + 1);
        return {rows.begin(), rows.end()};
    }

    // The table changes its selection behind each step of the person; the rows are then what it says.
    void TakeMarks() {
        if (quiet_ > 0 || moving_ || !grid_.manyRows)
            return;
        std::vector<int> rows = RowsShownSelected();
        std::erase_if(rows, [&](int row) { return row > grid_.RowCount(); });
        grid_.MarkRows(rows);
    }

    // What was sorted or filled anew.
    void ShowMarks() {
        if (!grid_.manyRows || moving_)
            return;
        const std::vector<int> rows = grid_.SelectedRows();
        if (rows.size() < 2 || rows == RowsShownSelected())
            return;
        QItemSelection selection;
        for (const int row : rows)
            selection.select(model_.index(row - 1, 0), model_.index(row - 1, model_.columnCount() - 1));
        table_.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    }

    bool TypesAt(const QModelIndex& at) const {
        return at.isValid() && (model_.flags(at) & Qt::ItemIsEditable);
    }
    bool IsCheck(const QModelIndex& at) const {
        return at.isValid() && grid_.Column(at.column() + 1).type == CellType::Check;
    }

    void TurnCheck(const QModelIndex& at) {
        if (!IsCheck(at) || !grid_.CanType(at.column() + 1))
            return;
        const bool on = grid_.Number(at.row() + 1, at.column() + 1) != 0;
        Commit(at.row() + 1, at.column() + 1, on ? "0" : "1");
    }

    void DoubleClick(const QModelIndex& at) {
        if (!TypesAt(at) && grid_.onDoubleClick)
            window_.Do([&] { DoubleClickRow(window_.Shown(), grid_, at.row() + 1); });
    }

    void Commit(int row, int column, const QString& text) {
        committed_ = false;
        std::string refusal;
        committed_ = window_.Do([&] {
            try {
                TypeCell(window_.Shown(), grid_, row, column, S(text));
            } catch (const GestureRefused& refused) {
                refusal = refused.what();
            }
        });
        if (!refusal.empty()) {
            committed_ = false;
            Warn(window_.Shown().title, refusal);
        } else if (grid_.refusedRow == row) {
            committed_ = false; // what was typed is gone: no command acts as if it were there
        }
    }

    void GetReady() {
        if (table_.hasFocus() && TypesAt(table_.currentIndex()))
            static_cast<void>(SuggestInCell(grid_, grid_.selectedRow, grid_.selectedColumn, ""));
    }

    bool Picks(const QKeyEvent& key) const {
        return key.key() == Qt::Key_F3 && grid_.onPick && TypesAt(table_.currentIndex());
    }

    void SuggestRows(QLineEdit& line, int row, int column) {
        SuggestPopup::Source source;
        source.suggest = [this, row, column](const std::string& typed) {
            return SuggestInCell(grid_, row, column, typed);
        };
        source.take = [this, row, column](const SuggestedRow& taken) { Take(row, column, taken); };
        if (grid_.onPick)
            source.pick = [this, row, column](const std::string& typed) { PickInto(row, column, typed); };
        new SuggestPopup(line, std::move(source)); // the line's own
    }

    // Closes the open editor; what stands in it goes nowhere. False when none is open.
    bool DropTyping() {
        auto* line = static_cast<QLineEdit*>(table_.indexWidget(table_.currentIndex()));
        if (!line)
            return false;
        line->setProperty("before", line->text());
        emit editor_.closeEditor(line, QAbstractItemDelegate::NoHint);
        return true;
    }

    // As if the text had been typed and Enter pressed.
    void Take(int row, int column, const SuggestedRow& taken) {
        DropTyping();
        Commit(row, taken.column > 0 ? taken.column : column, Q(taken.text));
        LeaveCell(CellExit::Enter);
    }

    // What was being typed is typed on when nothing is picked; the picker's window must not bring it into the model.
    void PickInto(int row, int column, const std::string& typed) {
        const bool typing = DropTyping();
        std::optional<SuggestedRow> picked;
        window_.Do([&] { picked = PickInCell(window_.Shown(), grid_, row, column, typed); });
        if (!window_.Shown().IsOpen())
            return;
        if (picked)
            return Take(row, column, *picked);
        table_.setFocus();
        if (!typing)
            return;
        table_.edit(table_.currentIndex());
        if (auto* line = static_cast<QLineEdit*>(table_.indexWidget(table_.currentIndex())))
            line->setText(Q(typed));
    }

    void LeaveCell(CellExit exit) {
        Screen& screen = window_.Shown();
        const bool stay = !committed_; // what was typed raised a message: the person looks at it first
        committed_ = true;
        if (!screen.IsOpen() || (screen.Focus() && screen.Focus() != &control))
            return;
        table_.setFocus();
        if (stay)
            return;
        const int row = grid_.selectedRow;
        switch (exit) {
        case CellExit::Enter:
            return StepOn();
        case CellExit::Tab:
            return NextCell();
        case CellExit::Up:
        case CellExit::Down:
            if (const int to = row + (exit == CellExit::Up ? -1 : 1); to >= 1 && to <= model_.rowCount())
                GoToCell(to, VisibleColumn(grid_.selectedColumn));
            return;
        case CellExit::Backtab:
            return window_.Step(false);
        }
    }

    void StepOn() {
        if (grid_.readOnly && grid_.onDoubleClick && grid_.selectedRow > 0) {
            window_.Do([&] { DoubleClickRow(window_.Shown(), grid_, grid_.selectedRow); });
            return;
        }
        if (HoldsEnter(grid_))
            return; // and what is told at the foot stays there
        bool stepped = false;
        const bool quietly =
            window_.Do([&] { stepped = !grid_.readOnly && StepByEnter(window_.Shown(), grid_); });
        if (stepped)
            table_.scrollTo(table_.currentIndex());
        else if (quietly && window_.Shown().IsOpen())
            window_.Step(true);
    }

    // To the next cell of the row that takes typing; behind the last one out of the grid.
    void NextCell() {
        for (int column = grid_.selectedColumn + 1; column <= grid_.ColumnCount(); ++column)
            if (!grid_.readOnly && grid_.CanType(column) && !grid_.Column(column).hidden)
                return GoToCell(grid_.selectedRow, column);
        window_.Step(true);
    }

    CellRange Selected() const {
        CellRange range{grid_.selectedRow, grid_.selectedColumn, grid_.selectedRow, grid_.selectedColumn};
        const QItemSelection selection = table_.selectionModel()->selection();
        if (selection.isEmpty())
            return range;
        range = {INT_MAX, INT_MAX, 0, 0};
        for (const QItemSelectionRange& part : selection) {
            range.firstRow = std::min(range.firstRow, part.top() + 1);
            range.firstColumn = std::min(range.firstColumn, part.left() + 1);
            range.lastRow = std::max(range.lastRow, part.bottom() + 1);
            range.lastColumn = std::max(range.lastColumn, part.right() + 1);
        }
        return range;
    }

    void Paste() {
        const CellBlock block = PastedCells(CurrentView().Clipboard());
        if (grid_.onPaste && !grid_.readOnly)
            window_.Do([&] { PasteBlock(window_.Shown(), grid_, block); });
        else if (!grid_.readOnly && grid_.selectedRow >= 1)
            PasteCells(grid_, block, [this](int row, int column, const std::string& text) {
                return PasteCell(row, column, text) && window_.Shown().IsOpen();
            });
    }

    // A text that is not taken is told.
    bool PasteCell(int row, int column, const std::string& text) {
        Commit(row, column, Q(text));
        const bool taken = committed_;
        committed_ = true;
        const bool lost = !Trim(text).empty() && row <= grid_.RowCount() && grid_.Text(row, column).empty();
        if (taken && lost)
            Warn(window_.Shown().title, "第 " + std::to_string(row) + " 行“" + grid_.Column(column).caption +
                                            "”不接受“" + text + "”，粘贴到此为止。");
        return taken && !lost;
    }

    // The mouse means the row under it, the menu key the selected one.
    void ShowMenu(const QContextMenuEvent& event) {
        if (!window_.FinishTyping())
            return;
        const bool byKey = event.reason() == QContextMenuEvent::Keyboard;
        const QPoint under = table_.viewport()->mapFromGlobal(event.globalPos());
        const QModelIndex index = byKey ? table_.currentIndex() : table_.indexAt(under);
        if (index.isValid() && !table_.selectionModel()->isSelected(index))
            table_.setCurrentIndex(index);
        QMenu menu(&table_);
        if (index.isValid() && grid_.rowMenu)
            AddRowCommands(menu, index.row() + 1);
        AddGridCommands(menu, window_, grid_, window_.Shown().title, Selected());
        if (!menu.isEmpty())
            menu.exec(byKey ? table_.viewport()->mapToGlobal(table_.visualRect(index).bottomLeft())
                            : event.globalPos());
    }

    void AddRowCommands(QMenu& menu, int row) {
        for (Command* command : grid_.rowMenu(row)) {
            QAction* item = menu.addAction(Q(command->caption), this, [this, command] {
                window_.Do([&] { Click(window_.Shown(), *command); });
            });
            item->setEnabled(command->IsUsable());
        }
        menu.addSeparator();
    }

    bool ready_ = false; // for suggestions
    Grid& grid_;
    QTableView& table_;
    GridModel model_;
    CellEditor editor_;
    int lastShown_ = 0;     // the column that fills the width
    int spare_ = 0;         // the pixels that it has over its own
    int quiet_ = 0;         // what the table says meanwhile is our own doing
    bool committed_ = true; // the last typed cell was taken without a message
    bool moving_ = false;   // between a step of the person and the selection behind it
};

} // namespace

std::unique_ptr<Binding> BindGrid(ScreenWindow& window, Control& control, QWidget& widget) {
    auto* grid = dynamic_cast<Grid*>(&control);
    if (!grid || !Fits(control, widget))
        return nullptr;
    return std::make_unique<GridBinding>(window, *grid, static_cast<QTableView&>(widget));
}

} // namespace jxc
