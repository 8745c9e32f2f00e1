#pragma once

#include <QtGui/QColor>
#include <QtWidgets/QStyledItemDelegate>

namespace desktop {

/// Paints the cells of a list. A row is chosen and hovered as a whole.
class RowPainter final : public QStyledItemDelegate {
public:
    explicit RowPainter(QObject* parent) : QStyledItemDelegate(parent) {}

    struct Looks {
        QColor ground;
        bool gridLines = false;
        bool checkBoxes = false;
        int selectedRow = -1;
        int hoveredRow = -1;
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
