#include "desktop/list_view_view.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <utility>
#include <vector>

#include "desktop/list_header.h"
#include "desktop/looks.h"
#include "desktop/painting.h"
#include "desktop/row_painter.h"

namespace desktop {

ListViewView::ListViewView(forms::ListView& list, QWidget& parent, ViewHost& host)
    : QTreeView(&parent),
      ControlView(list, host),
      list_(list),
      header_(new ListHeader(this)),
      painter_(new RowPainter(this)) {
    setHeader(header_);
    // The base class has just taken it off: it only sorts by itself.
    header_->setSectionsClickable(true);
    setModel(&model_);
    setItemDelegate(painter_);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setIndentation(0);
    setFrameShape(QFrame::NoFrame);
    setMouseTracking(true);
    connect(header_, &QHeaderView::sectionClicked, this, [this](int column) {
        tell([this, column] {
            if (list_.onColumnClick) list_.onColumnClick(static_cast<std::size_t>(column));
        });
    });
    connect(header_, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (syncing_ || width == 0) return;
        tell([this, column, width] {
            const auto index = static_cast<std::size_t>(column);
            if (index < list_.columns.size()) list_.columns[index].width = twipsOf(width);
        });
    });
}

bool ListViewView::syncOwn() {
    const QScopedValueRollback syncing(syncing_, true);
    setHorizontalScrollBarPolicy(list_.horizontalScrollBar ? Qt::ScrollBarAsNeeded
                                                           : Qt::ScrollBarAlwaysOff);
    const bool columnsDiffer = !(list_.columns == model_.columns());
    const bool looksDiffer = painter_->looks.gridLines != list_.gridLines ||
                             painter_->looks.checkBoxes != list_.checkBoxes;
    const bool rowsDiffer = std::exchange(version_, list_.version()) != list_.version();
    const bool placeholderDiffers =
        std::exchange(placeholder_, list_.placeholder) != list_.placeholder;
    if (!columnsDiffer && !looksDiffer && !rowsDiffer && !placeholderDiffers) return false;
    painter_->looks.gridLines = list_.gridLines;
    painter_->looks.checkBoxes = list_.checkBoxes;
    model_.show(list_);
    if (columnsDiffer) syncColumns();
    syncSelection();
    viewport()->update();
    return true;
}

void ListViewView::syncColumns() {
    std::vector<int> widths;
    int last = -1;
    int room = viewport()->width();
    for (const forms::ListView::Column& column : model_.columns()) {
        widths.push_back(pixelsOf(column.width));
        room -= std::max(0, widths.back());
        if (widths.back() > 0) last = static_cast<int>(widths.size()) - 1;
    }
    // The last one takes what the others leave, so that no strip without a column stays behind it.
    if (last >= 0 && room > 0) widths[static_cast<std::size_t>(last)] += room;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const auto column = static_cast<int>(i);
        header_->setSectionHidden(column, widths[i] <= 0);
        if (widths[i] > 0 && header_->sectionSize(column) != widths[i]) {
            header_->resizeSection(column, widths[i]);
        }
    }
    header_->viewport()->update();
}

void ListViewView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    const QScopedValueRollback syncing(syncing_, true);
    syncColumns();
}

void ListViewView::syncSelection() {
    const auto selected = list_.rows == nullptr ? -1 : static_cast<int>(list_.rows->selected());
    const bool moved = std::exchange(painter_->looks.selectedRow, selected) != selected;
    const QModelIndex current = selected < 0 ? QModelIndex() : model_.index(selected, 0);
    if (currentIndex().row() != current.row()) setCurrentIndex(current);
    if (moved && current.isValid()) scrollTo(current);
}

void ListViewView::lookChanged() {
    const QColor ground = look().back.value_or(QColor(Qt::white));
    painter_->looks.ground = ground;
    header_->setGround(ground);
    QFont headerFont = font();
    header_->setFont(headerFont);
    QPalette colours = palette();
    colours.setColor(QPalette::Base, ground);
    colours.setColor(QPalette::Window, ground);
    colours.setColor(QPalette::Text, textColourOn(ground));
    setPalette(colours);
}

QRect ListViewView::checkBoxOf(int row) const {
    return RowPainter::checkBoxIn(visualRect(model_.index(row, 0)));
}

void ListViewView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (model_.rowCount() == 0) paintPlaceholder();
    if (!marksFocus()) return;
    QPainter painter(viewport());
    drawFocusRing(painter, viewport()->rect(), 0, painter_->looks.ground);
}

void ListViewView::paintPlaceholder() {
    constexpr int gap = 16;
    QPainter painter(viewport());
    painter.setFont(font());
    painter.setPen(blend(painter_->looks.ground, textColourOn(painter_->looks.ground), 0.6));
    drawFittedText(painter, QRectF(viewport()->rect()).adjusted(gap, gap, -gap, -gap),
                   Qt::AlignCenter, textOf(placeholder_));
}

void ListViewView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QModelIndex hit = indexAt(event->pos());
    if (!hit.isValid()) return;
    // A little more than the box itself: it is small to hit.
    const bool onBox = painter_->looks.checkBoxes &&
                       checkBoxOf(hit.row()).adjusted(-4, -4, 3, 4).contains(event->pos());
    if (onBox) {
        toggle(hit.row());
    } else {
        click(hit.row());
    }
}

void ListViewView::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void ListViewView::toggle(int row) {
    tell([this, row] {
        const auto index = static_cast<std::size_t>(row);
        if (list_.rows == nullptr || index >= list_.rows->count()) return;
        list_.check(index, !list_.rows->isChecked(index));
    });
}

void ListViewView::click(int row) {
    tell([this, row] { list_.click(static_cast<std::size_t>(row)); });
}

void ListViewView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && painter_->looks.checkBoxes && currentIndex().isValid()) {
        toggle(currentIndex().row());
        return;
    }
    // Enter is the form's, not the list's.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->ignore();
        return;
    }
    QTreeView::keyPressEvent(event);
}

void ListViewView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (syncing_ || !current.isValid() || current.row() == painter_->looks.selectedRow) return;
    click(current.row());
}

void ListViewView::mouseMoveEvent(QMouseEvent* event) {
    const QModelIndex over = indexAt(event->pos());
    hover(over.isValid() ? over.row() : -1);
}

void ListViewView::leaveEvent(QEvent* event) {
    hover(-1);
    QTreeView::leaveEvent(event);
}

void ListViewView::hover(int row) {
    if (std::exchange(painter_->looks.hoveredRow, row) != row) viewport()->update();
}

void ListViewView::focusInEvent(QFocusEvent* event) {
    // The base class would choose the first row of a list that has none chosen, as if it had been
    // clicked.
    const QScopedValueRollback syncing(syncing_, true);
    QTreeView::focusInEvent(event);
    syncSelection();
    focusMoved();
}

void ListViewView::focusOutEvent(QFocusEvent* event) {
    QTreeView::focusOutEvent(event);
    focusMoved();
}

void ListViewView::focusMoved() {
    painter_->looks.hasFocus = hasFocus();
    viewport()->update();
}

}  // namespace desktop
