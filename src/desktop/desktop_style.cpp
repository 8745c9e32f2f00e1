#include "desktop/desktop_style.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

#include "desktop/looks.h"

namespace desktop {

namespace {

constexpr int barWidth = 12;
constexpr int shortestHandle = 28;

QRect handleOf(const QStyleOptionSlider& bar) {
    const bool upright = bar.orientation == Qt::Vertical;
    const int room = upright ? bar.rect.height() : bar.rect.width();
    const int range = bar.maximum - bar.minimum;
    if (range <= 0) return bar.rect;
    const auto share = static_cast<double>(bar.pageStep) / (range + bar.pageStep);
    const int length = std::min(room, std::max(shortestHandle, static_cast<int>(room * share)));
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      room - length, bar.upsideDown);
    return upright ? QRect(bar.rect.left(), bar.rect.top() + start, bar.rect.width(), length)
                   : QRect(bar.rect.left() + start, bar.rect.top(), length, bar.rect.height());
}

void drawScrollBar(const QStyleOptionSlider& bar, QPainter& painter) {
    const QColor ground = bar.palette.color(QPalette::Base);
    painter.save();
    painter.fillRect(bar.rect, blend(ground, textColourOn(ground), 0.05));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const bool held = bar.state.testFlag(QStyle::State_Sunken);
    const bool hovered = bar.state.testFlag(QStyle::State_MouseOver);
    painter.setBrush(blend(ground, textColourOn(ground), held ? 0.5 : hovered ? 0.4 : 0.28));
    painter.drawRoundedRect(QRectF(handleOf(bar)).adjusted(3, 3, -3, -3), 3, 3);
    painter.restore();
}

}  // namespace

DesktopStyle::DesktopStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void DesktopStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr) {
        drawScrollBar(*bar, *painter);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect DesktopStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                   SubControl part, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || bar == nullptr) {
        return QProxyStyle::subControlRect(control, option, part, widget);
    }
    const QRect handle = handleOf(*bar);
    const bool upright = bar->orientation == Qt::Vertical;
    QRect area = bar->rect;
    switch (part) {
        case SC_ScrollBarSlider:
            return handle;
        case SC_ScrollBarGroove:
            return area;
        case SC_ScrollBarSubPage:
            upright ? area.setBottom(handle.top() - 1) : area.setRight(handle.left() - 1);
            return area;
        case SC_ScrollBarAddPage:
            upright ? area.setTop(handle.bottom() + 1) : area.setLeft(handle.right() + 1);
            return area;
        default:
            return {};
    }
}

void DesktopStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    if (element == PE_FrameFocusRect) return;
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int DesktopStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
    if (metric == PM_ScrollBarExtent) return barWidth;
    if (metric == PM_ScrollBarSliderMin) return shortestHandle;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int DesktopStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* answer) const {
    // Tips soon enough to be read, and no animation: an idle program shall do nothing.
    if (hint == SH_ToolTip_WakeUpDelay) return 450;
    if (hint == SH_Widget_Animation_Duration) return 0;
    if (hint == SH_ScrollBar_Transient) return 0;
    return QProxyStyle::styleHint(hint, option, widget, answer);
}

}  // namespace desktop
