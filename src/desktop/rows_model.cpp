#include "desktop/rows_model.h"

#include <algorithm>

#include "desktop/looks.h"

namespace desktop {

void RowsModel::show(const forms::ListView& list) {
    checkBoxes_ = list.checkBoxes;
    if (!(list.columns == columns_)) showColumns(list.columns);
    showRows(list.rows);
}

void RowsModel::clear() {
    showRows(nullptr);
}

void RowsModel::showColumns(const std::vector<forms::ListView::Column>& columns) {
    if (columns.size() == columns_.size()) {
        columns_ = columns;
        if (!columns.empty()) Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
        return;
    }
    beginResetModel();
    columns_ = columns;
    endResetModel();
}

void RowsModel::showRows(const forms::ListRows* rows) {
    // Rows are added and taken away at the end, whichever they were: the view then stays where it
    // was scrolled to, and all that is visible is painted again anyway.
    const int count = rows == nullptr ? 0 : static_cast<int>(rows->count());
    if (count > count_) {
        beginInsertRows({}, count_, count - 1);
        rows_ = rows;
        count_ = count;
        endInsertRows();
    } else if (count < count_) {
        beginRemoveRows({}, count, count_ - 1);
        rows_ = rows;
        count_ = count;
        endRemoveRows();
    }
    rows_ = rows;
    if (count_ > 0 && !columns_.empty()) {
        Q_EMIT dataChanged(index(0, 0), index(count_ - 1, columnCount() - 1));
    }
}

int RowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count_;
}

int RowsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    if (rows_ == nullptr || !index.isValid()) return {};
    const auto row = static_cast<std::size_t>(index.row());
    const auto column = static_cast<std::size_t>(index.column());
    if (row >= rows_->count()) return {};
    switch (role) {
        case Qt::DisplayRole:
            return textOf(rows_->text(row, column));
        case Qt::ForegroundRole:
            return colourOf(rows_->textColour(row));
        case Qt::TextAlignmentRole:
            return alignmentOf(columns_[column].alignment).toInt();
        case Qt::CheckStateRole:
            if (column != 0 || !checkBoxes_) return {};
            return static_cast<int>(rows_->isChecked(row) ? Qt::Checked : Qt::Unchecked);
        case iconRole:
            return column == 0 ? QVariant(textOf(rows_->icon(row))) : QVariant();
        default:
            return {};
    }
}

QVariant RowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const forms::ListView::Column& column = columns_[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole) return textOf(column.text);
    if (role == Qt::TextAlignmentRole) return alignmentOf(column.alignment).toInt();
    if (role == iconRole) return textOf(column.icon);
    return {};
}

}  // namespace desktop
