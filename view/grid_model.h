// A table model that reads a Grid where it stands: nothing is copied, so a hundred thousand rows cost
// nothing.
#pragma once

#include <QAbstractTableModel>

#include "controls/grid.h"

namespace jxc {

class GridModel : public QAbstractTableModel {
  public:
    explicit GridModel(const Grid& grid);

    // Takes over rows and columns that came or went, and has everything shown anew.
    void Refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    void TakeRows();
    const Grid& grid_;
    int rows_ = 0; // as told to the view
    int columns_ = 0;
};

// The cell as a person edits it: a number without separators.
QString EditText(const Grid& grid, int row, int column);

} // namespace jxc
