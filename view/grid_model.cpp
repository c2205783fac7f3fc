#include "view/grid_model.h"

#include <QBrush>
#include <QColor>

#include "view/qt_text.h"

namespace jxc {

namespace {

QVariant Colored(Color color) {
    if (color == kNormalColor)
        return {};
    return QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

Qt::Alignment AlignmentOf(const GridColumn& column) {
    switch (column.alignment) {
    case Alignment::Right:
        return Qt::AlignRight | Qt::AlignVCenter;
    case Alignment::Center:
        return Qt::AlignCenter;
    case Alignment::Left:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

} // namespace

GridModel::GridModel(const Grid& grid) : grid_(grid), rows_(grid.RowCount()), columns_(grid.ColumnCount()) {}

void GridModel::Refresh() {
    if (columns_ != grid_.ColumnCount()) {
        beginResetModel();
        rows_ = grid_.RowCount();
        columns_ = grid_.ColumnCount();
        endResetModel();
        return;
    }
    TakeRows();
    if (rows_ > 0 && columns_ > 0)
        emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
    if (columns_ > 0)
        emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
}

// Where the rows came or went is no matter: all are shown anew.
void GridModel::TakeRows() {
    const int rows = grid_.RowCount();
    if (rows > rows_) {
        beginInsertRows({}, rows_, rows - 1);
        rows_ = rows;
        endInsertRows();
    } else if (rows < rows_) {
        beginRemoveRows({}, rows, rows_ - 1);
        rows_ = rows;
        endRemoveRows();
    }
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const int row = index.row() + 1;
    const int column = index.column() + 1;
    if (!index.isValid() || row > grid_.RowCount() || column > grid_.ColumnCount())
        return {}; // the grid changed and Refresh is still to come
    const GridColumn& settings = grid_.Column(column);
    switch (role) {
    case Qt::DisplayRole:
        return settings.type == CellType::Check ? QVariant() : Q(grid_.ShownText(row, column));
    case Qt::EditRole:
        return EditText(grid_, row, column);
    case Qt::CheckStateRole:
        if (settings.type != CellType::Check)
            return {};
        return grid_.Number(row, column) != 0 ? Qt::Checked : Qt::Unchecked;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(AlignmentOf(settings));
    case Qt::BackgroundRole:
        return Colored(grid_.BackColor(row, column));
    case Qt::ForegroundRole:
        return Colored(grid_.TextColor(row) != kNormalColor ? grid_.TextColor(row) : settings.textColor);
    default:
        return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role == Qt::TextAlignmentRole)
        return Qt::AlignCenter;
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section + 1;
    return section < grid_.ColumnCount() ? Q(grid_.Column(section + 1).caption) : QString();
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    const int column = index.column() + 1;
    if (column < 1 || column > grid_.ColumnCount() || !grid_.CanType(column) || !grid_.IsUsable())
        return flags;
    return flags | (grid_.Column(column).type == CellType::Check ? Qt::NoItemFlags : Qt::ItemIsEditable);
}

QString EditText(const Grid& grid, int row, int column) {
    QString text = Q(grid.ShownText(row, column));
    if (grid.Column(column).type == CellType::Number)
        text.remove(',');
    return text;
}

} // namespace jxc
