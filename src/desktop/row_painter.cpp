#include "desktop/row_painter.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QToolTip>

#include "desktop/icons.h"
#include "desktop/looks.h"
#include "desktop/painting.h"
#include "desktop/rows_model.h"

namespace desktop {

namespace {

constexpr int markSize = 14;
constexpr int iconSize = 16;
constexpr int gap = 5;

}  // namespace

QRect RowPainter::checkBoxIn(const QRect& cell) {
    return {cell.left() + gap, cell.center().y() - markSize / 2 + 1, markSize, markSize};
}

QSize RowPainter::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {40, std::max(option.fontMetrics.height() + 8, iconSize + 6)};
}

void RowPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
    painter->save();
    paintGround(*painter, option, index);
    if (index.column() == 0) paintMarks(*painter, option, index);
    painter->setFont(option.font);
    painter->setPen(index.data(Qt::ForegroundRole).value<QColor>());
    const QRect box = textBoxIn(option.rect, index);
    const Qt::Alignment alignment(index.data(Qt::TextAlignmentRole).toInt());
    painter->drawText(box, static_cast<int>(alignment) | Qt::TextSingleLine,
                      option.fontMetrics.elidedText(index.data(Qt::DisplayRole).toString(),
                                                    Qt::ElideRight, box.width()));
    painter->restore();
}

void RowPainter::paintGround(QPainter& painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    const bool dark = isDark(looks.ground);
    const QColor accent = accentOn(looks.ground);
    QColor ground = looks.ground;
    if (index.row() == looks.selectedRow) {
        ground = blend(ground, accent, looks.hasFocus ? (dark ? 0.42 : 0.32) : (dark ? 0.26 : 0.2));
    } else if (index.row() == looks.hoveredRow) {
        ground = blend(ground, accent, dark ? 0.12 : 0.08);
    }
    painter.fillRect(option.rect, ground);
    if (!looks.gridLines) return;
    painter.setPen(blend(ground, textColourOn(ground), dark ? 0.14 : 0.1));
    painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    painter.drawLine(option.rect.topRight(), option.rect.bottomRight());
}

QRect RowPainter::textBoxIn(const QRect& cell, const QModelIndex& index) const {
    QRect box = cell.adjusted(gap, 0, -gap, 0);
    if (index.column() != 0) return box;
    if (looks.checkBoxes) box.setLeft(box.left() + markSize + gap);
    if (!index.data(RowsModel::iconRole).toString().isEmpty()) {
        box.setLeft(box.left() + iconSize + gap);
    }
    return box;
}

void RowPainter::paintMarks(QPainter& painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
    int left = option.rect.left() + gap;
    if (looks.checkBoxes) {
        const QRect box = checkBoxIn(option.rect);
        const bool checked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        drawCheckMark(painter, box, checked ? Mark::Tick : Mark::None, looks.ground, true,
                      index.row() == looks.hoveredRow);
        left = box.right() + 1 + gap;
    }
    const QRect place(left, option.rect.center().y() - iconSize / 2 + 1, iconSize, iconSize);
    drawIcon(painter, place, textOf(index.data(RowsModel::iconRole).toString()));
}

bool RowPainter::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                           const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip) return false;
    const QString text = index.data(Qt::DisplayRole).toString();
    const QRect cell = view->visualRect(index);
    const bool isCut = option.fontMetrics.horizontalAdvance(text) > textBoxIn(cell, index).width();
    // Marked up, so that a name that looks like markup is not taken for it.
    const QString tip = QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped());
    QToolTip::showText(event->globalPos(), isCut ? tip : QString(), view, cell);
    return true;
}

}  // namespace desktop
