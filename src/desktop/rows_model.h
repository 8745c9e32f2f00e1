#pragma once

#include <QtCore/QAbstractTableModel>

#include <vector>

#include "forms/list_view.h"

namespace desktop {

/// A form's list as the toolkit's tables want it.
class RowsModel final : public QAbstractTableModel {
public:
    /// Data of a row's first column: the name of its icon.
    static constexpr int iconRole = Qt::UserRole;

    /// Takes over what the list has now.
    void show(const forms::ListView& list);
    /// Lets go of the rows and shows none.
    void clear();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] const std::vector<forms::ListView::Column>& columns() const { return columns_; }

private:
    void showColumns(const std::vector<forms::ListView::Column>& columns);
    void showRows(const forms::ListRows* rows);

    const forms::ListRows* rows_ = nullptr;
    int count_ = 0;
    bool checkBoxes_ = false;
    std::vector<forms::ListView::Column> columns_;
};

}  // namespace desktop
