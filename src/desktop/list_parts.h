#pragma once

#include <QtCore/QAbstractTableModel>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyledItemDelegate>

#include <vector>

#include "forms/list_view.h"

namespace desktop {

/// A form's list as the toolkit's tables want it.
class RowsModel final : public QAbstractTableModel {
public:
    /// Data of a row's first column: the name of its icon.
    static constexpr int iconRole = Qt::UserRole;
    /// Whether the row is one of those that are chosen.
    static constexpr int markedRole = Qt::UserRole + 1;

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

/// The headers of a list, flat, in the shade that goes with the list's ground.
class ListHeader final : public QHeaderView {
public:
    explicit ListHeader(QWidget* parent);

    void setGround(const QColor& ground);

protected:
    void paintSection(QPainter* painter, const QRect& box, int section) const override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    void hover(int section);

    QColor ground_;
    int hovered_ = -1;
};

/// Paints the cells of a list. A row is chosen and hovered as a whole.
class RowPainter final : public QStyledItemDelegate {
public:
    explicit RowPainter(QObject* parent) : QStyledItemDelegate(parent) {}

    struct Looks {
        QColor ground;
        bool gridLines = false;
        bool checkBoxes = false;
        int selectedRow = -1;
        /// Rows are chosen, whether or not the selected one is among them.
        bool hasMarks = false;
        int hoveredRow = -1;
        /// Where rows that are being dragged would go: before this row. -1: none are.
        int dropBefore = -1;
        bool hasFocus = false;
    };

    Looks looks;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
    /// The whole text of a cell that has no room for it.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
    /// Where a row's check box is, from the place of its first cell.
    [[nodiscard]] static QRect checkBoxIn(const QRect& cell);

private:
    void paintGround(QPainter& painter, const QStyleOptionViewItem& option,
                     const QModelIndex& index) const;
    void paintMarks(QPainter& painter, const QStyleOptionViewItem& option,
                    const QModelIndex& index) const;
    [[nodiscard]] QRect textBoxIn(const QRect& cell, const QModelIndex& index) const;
};

}  // namespace desktop
