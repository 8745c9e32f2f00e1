#include "desktop/painting.h"

#include <QtCore/QFile>
#include <QtGui/QIcon>

#include <algorithm>
#include <array>
#include <map>
#include <string>

#include "desktop/looks.h"

namespace desktop {

namespace {

/// In percent; narrower letters look squeezed.
constexpr int narrowestStretch = 82;

/// The font in the width that lets the text into the box, or in its narrowest.
QFont narrowed(const QFont& font, const QString& text, double room) {
    QFont narrow = font;
    double needed = QFontMetricsF(font).horizontalAdvance(text);
    for (int stretch = static_cast<int>(100 * room / needed) + 1;
         needed > room && stretch >= narrowestStretch; --stretch) {
        narrow.setStretch(stretch);
        needed = QFontMetricsF(narrow).horizontalAdvance(text);
    }
    return narrow;
}

bool fitsWrapped(const QPainter& painter, const QRectF& box, const QString& text) {
    const QRectF needed = painter.fontMetrics().boundingRect(
        box.toAlignedRect().adjusted(0, 0, 0, 4000), Qt::TextWordWrap, text);
    return needed.height() <= box.height() + 1 && needed.width() <= box.width() + 1;
}

}  // namespace

void drawFittedText(QPainter& painter, const QRectF& box, Qt::Alignment alignment,
                    const QString& text) {
    if (text.isEmpty() || box.isEmpty()) return;
    const QFont narrow = narrowed(painter.font(), text, box.width());
    const bool severalLines = text.contains(QLatin1Char('\n'));
    const bool fits = QFontMetricsF(narrow).horizontalAdvance(text) <= box.width();
    if (severalLines || (!fits && fitsWrapped(painter, box, text))) {
        painter.drawText(box, static_cast<int>(alignment) | Qt::TextWordWrap, text);
        return;
    }
    painter.save();
    painter.setFont(narrow);
    painter.drawText(box, static_cast<int>(alignment) | Qt::TextSingleLine,
                     fits ? text
                          : painter.fontMetrics().elidedText(text, Qt::ElideRight,
                                                             static_cast<int>(box.width()) + 1));
    painter.restore();
}

void drawPlate(QPainter& painter, const QRectF& box, double radius, const QColor& fill,
               const QColor& line) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(line, 1));
    painter.setBrush(fill);
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.restore();
}

void drawFocusRing(QPainter& painter, const QRectF& box, double radius, const QColor& ground) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(accentOn(ground), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(1, 1, -1, -1), radius, radius);
    painter.restore();
}

void drawCheckMark(QPainter& painter, const QRectF& box, Mark mark, const QColor& ground,
                   bool enabled, bool hovered) {
    const QColor text = textColourOn(ground);
    QColor fill = hollowOn(ground);
    QColor line = hovered ? accentOn(ground) : blend(ground, text, 0.45);
    QColor stroke = Qt::white;
    if (mark == Mark::Tick) {
        fill = enabled ? strongAccent : blend(ground, text, 0.3);
        line = fill;
        if (!enabled) stroke = blend(ground, text, 0.75);
    } else if (mark == Mark::Dash) {
        stroke = enabled ? accentOn(ground) : blend(ground, text, 0.4);
    }
    if (!enabled && mark != Mark::Tick) line = blend(ground, text, 0.25);
    drawPlate(painter, box, 3, fill, line);
    if (mark == Mark::None) return;

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(stroke, box.width() / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&box](double x, double y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    if (mark == Mark::Tick) {
        const std::array points{at(0.25, 0.53), at(0.43, 0.7), at(0.75, 0.32)};
        painter.drawPolyline(points.data(), static_cast<int>(points.size()));
    } else {
        painter.drawLine(at(0.27, 0.5), at(0.73, 0.5));
    }
    painter.restore();
}

bool drawIcon(QPainter& painter, const QRectF& box, std::string_view name) {
    constexpr std::string_view prefix = "icon:";
    if (name.starts_with(prefix)) name.remove_prefix(prefix.size());
    static std::map<std::string, QIcon, std::less<>> known;
    auto icon = known.find(name);
    if (icon == known.end()) {
        const QString file = QStringLiteral(":/icons/%1.svg").arg(textOf(name));
        icon = known.emplace(name, QFile::exists(file) ? QIcon(file) : QIcon()).first;
    }
    if (icon->second.isNull()) return false;
    icon->second.paint(&painter, box.toRect());
    return true;
}

void drawArrow(QPainter& painter, const QRectF& box, bool up, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre = box.center();
    const double half = std::min(box.width(), box.height()) / 2;
    const double rise = up ? -half * 0.55 : half * 0.55;
    painter.setPen(QPen(colour, half / 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(colour);
    const std::array points{centre + QPointF(-half * 0.85, -rise), centre + QPointF(0, rise),
                            centre + QPointF(half * 0.85, -rise)};
    painter.drawPolygon(points.data(), static_cast<int>(points.size()));
    painter.restore();
}

QColor buttonFace(const QColor& own, bool enabled, bool hovered, bool down) {
    const bool dark = isDark(own);
    if (!enabled) return blend(own, QColor(0x80, 0x84, 0x8c), dark ? 0.25 : 0.55);
    if (down) return blend(own, Qt::black, dark ? 0.3 : 0.18);
    if (hovered) return blend(own, Qt::white, dark ? 0.12 : 0.5);
    return own;
}

}  // namespace desktop
