#include "desktop/list_view.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <utility>
#include <vector>

#include "desktop/looks.h"
#include "desktop/painting.h"

namespace desktop {

namespace {

bool leadsToAnotherRow(int key) {
    switch (key) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return true;
        default:
            return false;
    }
}

}  // namespace

ListView::ListView(forms::ListView& list, QWidget& parent, ViewHost& host)
    : QTreeView(&parent),
      ControlView(list, *this, host),
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
    connect(header_, &QHeaderView::sectionClicked, this, [this](int column) { sortBy(column); });
    connect(header_, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (syncing_ || width == 0) return;
        tell([this, column, width] {
            const auto index = static_cast<std::size_t>(column);
            if (index < list_.columns.size()) list_.columns[index].width = twipsOf(width);
        });
    });
}

bool ListView::syncOwn() {
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
    painter_->looks.hasMarks = markedRows() > 0;
    if (columnsDiffer) syncColumns();
    syncSelection();
    viewport()->update();
    return true;
}

void ListView::syncColumns() {
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

void ListView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    const QScopedValueRollback syncing(syncing_, true);
    syncColumns();
}

void ListView::syncSelection() {
    const auto selected = list_.rows == nullptr ? -1 : static_cast<int>(list_.rows->selected());
    const bool moved = std::exchange(painter_->looks.selectedRow, selected) != selected;
    const QModelIndex current = selected < 0 ? QModelIndex() : model_.index(selected, 0);
    if (currentIndex().row() != current.row()) setCurrentIndex(current);
    if (moved && current.isValid()) scrollTo(current);
}

void ListView::lookChanged() {
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

QRect ListView::checkBoxOf(int row) const {
    return RowPainter::checkBoxIn(visualRect(model_.index(row, 0)));
}

void ListView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (model_.rowCount() == 0) paintPlaceholder();
    if (painter_->looks.dropBefore >= 0) paintDropLine();
    if (!marksFocus()) return;
    QPainter painter(viewport());
    drawFocusRing(painter, viewport()->rect(), 0, painter_->looks.ground);
}

void ListView::paintDropLine() {
    const int before = painter_->looks.dropBefore;
    const bool behindLast = before >= model_.rowCount();
    const QRect row = visualRect(model_.index(behindLast ? before - 1 : before, 0));
    const int y = behindLast ? row.bottom() : std::max(1, row.top());
    QPainter painter(viewport());
    painter.fillRect(0, y - 1, viewport()->width(), 2, accentOn(painter_->looks.ground));
}

void ListView::paintPlaceholder() {
    constexpr int gap = 16;
    QPainter painter(viewport());
    painter.setFont(font());
    painter.setPen(blend(painter_->looks.ground, textColourOn(painter_->looks.ground), 0.6));
    drawFittedText(painter, QRectF(viewport()->rect()).adjusted(gap, gap, -gap, -gap),
                   Qt::AlignCenter, textOf(placeholder_));
}

void ListView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    // A box that a click has brought up takes the release.
    endDrag(false);
    const QModelIndex hit = indexAt(event->pos());
    if (!hit.isValid()) return;
    // A little more than the box itself: it is small to hit.
    const bool onBox = painter_->looks.checkBoxes &&
                       checkBoxOf(hit.row()).adjusted(-4, -4, 3, 4).contains(event->pos());
    if (onBox) {
        toggle(hit.row());
        return;
    }
    pressedRow_ = hit.row();
    pressedAt_ = event->pos();
    const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
    const bool control = event->modifiers().testFlag(Qt::ControlModifier);
    clickIsOpen_ = !shift && !control && isOneOfSeveral(hit.row());
    if (clickIsOpen_) return;
    click(hit.row(), shift ? Pick::Through : control ? Pick::Toggle : Pick::Only);
}

int ListView::markedRows() const {
    int marked = 0;
    for (int each = 0; each < model_.rowCount(); ++each) {
        if (model_.index(each, 0).data(RowsModel::markedRole).toBool()) ++marked;
    }
    return marked;
}

bool ListView::isOneOfSeveral(int row) const {
    return markedRows() > 1 && model_.index(row, 0).data(RowsModel::markedRole).toBool();
}

void ListView::toggle(int row) {
    tell([this, row] {
        const auto index = static_cast<std::size_t>(row);
        if (list_.rows == nullptr || index >= list_.rows->count()) return;
        list_.check(index, !list_.rows->isChecked(index));
    });
}

void ListView::click(int row, Pick pick) {
    tell([this, row, pick] { list_.click(static_cast<std::size_t>(row), pick); });
}

void ListView::keyPressEvent(QKeyEvent* event) {
    if (runKey(*event)) return;
    // Enter and Escape are the form's, not the list's.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
        event->key() == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    // With the other keys it makes a capital of the letter that leads to a name.
    const bool extends =
        event->modifiers().testFlag(Qt::ShiftModifier) && leadsToAnotherRow(event->key());
    const QScopedValueRollback pick(keyPick_, extends ? Pick::Through : Pick::Only);
    if (!event->text().isEmpty() && event->text().front().isPrint()) sinceLetter_.start();
    QTreeView::keyPressEvent(event);
}

bool ListView::isTyping() const {
    return sinceLetter_.isValid() &&
           !sinceLetter_.hasExpired(QApplication::keyboardInputInterval());
}

bool ListView::runKey(const QKeyEvent& event) {
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    const bool up = event.key() == Qt::Key_Up;
    if (event.key() == Qt::Key_Escape && painter_->looks.dropBefore >= 0) {
        endDrag(false);
    } else if (control && (up || event.key() == Qt::Key_Down)) {
        tell([this, up] {
            if (list_.onRowsStep) list_.onRowsStep(up ? -1 : 1);
        });
    } else if (control && event.key() >= Qt::Key_1 && event.key() <= Qt::Key_9) {
        sortBy(event.key() - Qt::Key_1);
    } else if (control && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)) {
        tell([this] {
            if (list_.onRowInsert) list_.onRowInsert();
        });
    } else if (event.matches(QKeySequence::SelectAll)) {
        tell([this] { list_.markAll(); });
    } else if (event.key() == Qt::Key_Delete) {
        tell([this] {
            if (list_.onRowsClear) list_.onRowsClear();
        });
    } else if (event.key() == Qt::Key_Space && painter_->looks.checkBoxes &&
               currentIndex().isValid() && !isTyping()) {
        toggle(currentIndex().row());
    } else {
        return false;
    }
    return true;
}

/// The form sorts; a column that isn't shown sorts nothing.
void ListView::sortBy(int column) {
    if (column >= header_->count() || header_->isSectionHidden(column)) return;
    tell([this, column] {
        if (list_.onColumnClick) list_.onColumnClick(static_cast<std::size_t>(column));
    });
}

void ListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (syncing_ || !current.isValid() || current.row() == painter_->looks.selectedRow) return;
    click(current.row(), keyPick_);
}

void ListView::mouseMoveEvent(QMouseEvent* event) {
    if (pressedRow_ >= 0 && event->buttons().testFlag(Qt::LeftButton)) {
        drag(event->pos());
        return;
    }
    const QModelIndex over = indexAt(event->pos());
    hover(over.isValid() ? over.row() : -1);
}

void ListView::drag(const QPoint& to) {
    if (!list_.onRowsMove) return;
    int& dropBefore = painter_->looks.dropBefore;
    if (dropBefore < 0 && (to - pressedAt_).manhattanLength() < QApplication::startDragDistance()) {
        return;
    }
    hover(-1);
    viewport()->setCursor(Qt::ClosedHandCursor);
    // Beyond an end of the list it runs on by a row at a time.
    const int rowHeight = std::max(1, visualRect(model_.index(pressedRow_, 0)).height());
    if (to.y() < 0 || to.y() >= viewport()->height()) {
        QScrollBar* bar = verticalScrollBar();
        bar->setValue(bar->value() + (to.y() < 0 ? -rowHeight : rowHeight));
    }
    const int y = std::clamp(to.y(), 0, viewport()->height() - 1);
    const QModelIndex over = indexAt(QPoint(1, y));
    if (over.isValid()) {
        dropBefore = over.row() + (y > visualRect(over).center().y() ? 1 : 0);
    } else {
        dropBefore = model_.rowCount();
    }
    viewport()->update();
}

void ListView::endDrag(bool drop) {
    const int before = std::exchange(painter_->looks.dropBefore, -1);
    pressedRow_ = -1;
    clickIsOpen_ = false;
    viewport()->unsetCursor();
    viewport()->update();
    if (!drop || before < 0) return;
    tell([this, before] {
        if (list_.onRowsMove) list_.onRowsMove(static_cast<std::size_t>(before));
    });
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || pressedRow_ < 0) return;
    const int row = pressedRow_;
    const bool isClick = clickIsOpen_ && painter_->looks.dropBefore < 0;
    endDrag(true);
    if (isClick) click(row, Pick::Only);
}

void ListView::leaveEvent(QEvent* event) {
    hover(-1);
    QTreeView::leaveEvent(event);
}

void ListView::hover(int row) {
    if (std::exchange(painter_->looks.hoveredRow, row) != row) viewport()->update();
}

void ListView::focusInEvent(QFocusEvent* event) {
    // The base class would choose the first row of a list that has none chosen, as if it had been
    // clicked.
    const QScopedValueRollback syncing(syncing_, true);
    QTreeView::focusInEvent(event);
    syncSelection();
    focusMoved();
}

void ListView::focusOutEvent(QFocusEvent* event) {
    QTreeView::focusOutEvent(event);
    focusMoved();
}

void ListView::focusMoved() {
    painter_->looks.hasFocus = hasFocus();
    viewport()->update();
}

}  // namespace desktop
