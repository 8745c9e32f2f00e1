#include "desktop/list_parts.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <utility>

#include "desktop/looks.h"
#include "desktop/painting.h"

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
        case markedRole:
            return rows_->isMarked(row);
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

namespace {

constexpr int headerIconSide = 10;

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

    const int headerGap = box.width() < 70 ? 4 : 6;
    QRect inside = box.adjusted(headerGap, 0, -headerGap, 0);
    const std::string icon =
        textOf(model()->headerData(section, Qt::Horizontal, RowsModel::iconRole).toString());
    if (!icon.empty() && inside.width() > 3 * headerIconSide) {
        const QRect place(inside.right() - headerIconSide + 1,
                          inside.center().y() - headerIconSide / 2 + 1, headerIconSide,
                          headerIconSide);
        if (drawIcon(*painter, place, icon)) inside.setRight(place.left() - 1);
    }
    QFont bold = font();
    bold.setBold(true);
    painter->setFont(bold);
    painter->setPen(blend(ground_, ink, 0.85));
    const Qt::Alignment alignment(
        model()->headerData(section, Qt::Horizontal, Qt::TextAlignmentRole).toInt());
    drawFittedText(*painter, inside, alignment,
                   model()->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString());
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

namespace {

constexpr int boxSize = 14;
constexpr int iconSize = 16;
constexpr int gap = 5;

}  // namespace

QRect RowPainter::checkBoxIn(const QRect& cell) {
    return {cell.left() + gap, cell.center().y() - boxSize / 2 + 1, boxSize, boxSize};
}

QSize RowPainter::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    constexpr int anyWidth = 100;
    const int besideText = anyWidth - textBoxIn({0, 0, anyWidth, 1}, index).width();
    const QString text = index.data(Qt::DisplayRole).toString();
    return {option.fontMetrics.horizontalAdvance(text) + besideText,
            std::max(option.fontMetrics.height() + 8, iconSize + 6)};
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
    const bool isSelected = index.row() == looks.selectedRow;
    if (index.data(RowsModel::markedRole).toBool() || (isSelected && !looks.hasMarks)) {
        ground = blend(ground, accent, looks.hasFocus ? (dark ? 0.42 : 0.32) : (dark ? 0.26 : 0.2));
    } else if (isSelected || index.row() == looks.hoveredRow) {
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
    if (looks.checkBoxes) box.setLeft(box.left() + boxSize + gap);
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
