// The editor of a grid cell: it takes only what the column takes, and says how the person left it.
#pragma once

#include <functional>

#include <QStyledItemDelegate>

#include "controls/grid.h"

class QLineEdit;

namespace jxc {

// How a cell is left: the way that the selection goes next.
enum class CellExit { Enter, Tab, Backtab, Up, Down };

class CellEditor : public QStyledItemDelegate {
  public:
    // `commit` writes the text into the cell (rows and columns from 1); `leave` runs when the editor has
    // gone.
    CellEditor(const Grid& grid, std::function<void(int row, int column, const QString& text)> commit,
               std::function<void(CellExit)> leave);

    // Called with each editor that opens, before it has any key. Null for none.
    std::function<void(QLineEdit& line, int row, int column)> onOpen;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    // The items of a list column under the cell; taking one is an Enter.
    void OfferItems(QLineEdit& line, const GridColumn& column);
    // Hands over what is typed and leaves the cell.
    void Finish(QLineEdit& line, CellExit exit);

    const Grid& grid_;
    std::function<void(int, int, const QString&)> commit_;
    std::function<void(CellExit)> leave_;
    mutable bool committing_ = false; // a message box of the commit takes the editor's focus away once more
};

} // namespace jxc
