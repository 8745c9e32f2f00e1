#include "desktop/list_header.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include <utility>

#include "desktop/icons.h"
#include "desktop/looks.h"
#include "desktop/rows_model.h"

namespace desktop {

namespace {

constexpr int gap = 6;
constexpr int iconSide = 14;

}  // namespace

ListHeader::ListHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setHighlightSections(false);
    setMinimumSectionSize(1);
    setMouseTracking(true);
    setStretchLastSection(false);
}

void ListHeader::setGround(const QColor& ground) {
    ground_ = ground;
    viewport()->update();
}

QSize ListHeader::sizeHint() const {
    return {QHeaderView::sizeHint().width(), fontMetrics().height() + 10};
}

void ListHeader::paintEvent(QPaintEvent* event) {
    // The rest behind the last column, which no section covers.
    QPainter painter(viewport());
    const QColor face = blend(ground_, textColourOn(ground_), 0.1);
    painter.fillRect(viewport()->rect(), face);
    painter.setPen(blend(ground_, textColourOn(ground_), 0.25));
    painter.drawLine(viewport()->rect().bottomLeft(), viewport()->rect().bottomRight());
    painter.end();
    QHeaderView::paintEvent(event);
}

void ListHeader::paintSection(QPainter* painter, const QRect& box, int section) const {
    painter->save();
    const QColor ink = textColourOn(ground_);
    painter->fillRect(box.adjusted(0, 0, 0, -1),
                      blend(ground_, ink, section == hovered_ ? 0.18 : 0.1));
    painter->setPen(blend(ground_, ink, 0.25));
    painter->drawLine(box.topRight() + QPoint(0, 5), box.bottomRight() - QPoint(0, 5));
    painter->drawLine(box.bottomLeft(), box.bottomRight());

    QRect inside = box.adjusted(gap, 0, -gap, 0);
    const std::string icon =
        textOf(model()->headerData(section, Qt::Horizontal, RowsModel::iconRole).toString());
    if (!icon.empty() && inside.width() > 3 * iconSide) {
        const QRect place(inside.right() - iconSide + 1, inside.center().y() - iconSide / 2 + 1,
                          iconSide, iconSide);
        if (drawIcon(*painter, place, icon)) inside.setRight(inside.right() - iconSide - 2);
    }
    QFont bold = font();
    bold.setBold(true);
    painter->setFont(bold);
    painter->setPen(blend(ground_, ink, 0.85));
    const Qt::Alignment alignment(
        model()->headerData(section, Qt::Horizontal, Qt::TextAlignmentRole).toInt());
    painter->drawText(inside, static_cast<int>(alignment) | Qt::TextSingleLine,
                      QFontMetrics(bold).elidedText(
                          model()->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString(),
                          Qt::ElideRight, inside.width()));
    painter->restore();
}

void ListHeader::mouseMoveEvent(QMouseEvent* event) {
    hover(logicalIndexAt(event->pos()));
    QHeaderView::mouseMoveEvent(event);
}

void ListHeader::leaveEvent(QEvent* event) {
    hover(-1);
    QHeaderView::leaveEvent(event);
}

void ListHeader::hover(int section) {
    if (std::exchange(hovered_, section) != section) viewport()->update();
}

}  // namespace desktop
