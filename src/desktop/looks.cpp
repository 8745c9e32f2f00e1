#include "desktop/looks.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <cmath>

namespace desktop {

QString textOf(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string textOf(const QString& text) {
    return text.toStdString();
}

int pixelsOf(forms::Twips length) {
    return static_cast<int>(std::lround(static_cast<double>(length) / forms::twipsPerPixel));
}

forms::Twips twipsOf(int pixels) {
    return pixels * forms::twipsPerPixel;
}

QRect pixelsOf(const forms::Place& place) {
    const QPoint topLeft(pixelsOf(place.left), pixelsOf(place.top));
    const QPoint end(pixelsOf(place.left + place.width), pixelsOf(place.top + place.height));
    return {topLeft, QSize(std::max(0, end.x() - topLeft.x()), std::max(0, end.y() - topLeft.y()))};
}

Qt::Alignment alignmentOf(forms::Alignment alignment) {
    const Qt::Alignment across = alignment == forms::Alignment::Centre  ? Qt::AlignHCenter
                                 : alignment == forms::Alignment::Right ? Qt::AlignRight
                                                                        : Qt::AlignLeft;
    return across | Qt::AlignVCenter;
}

QColor colourOf(forms::Colour colour) {
    return {colour.red, colour.green, colour.blue};
}

QColor blend(const QColor& under, const QColor& over, double share) {
    const auto mix = [share](int low, int high) {
        return static_cast<int>(std::lround(low + (high - low) * share));
    };
    return {mix(under.red(), over.red()), mix(under.green(), over.green()),
            mix(under.blue(), over.blue())};
}

bool isDark(const QColor& ground) {
    // The eye's weights of the three colours.
    return 0.299 * ground.red() + 0.587 * ground.green() + 0.114 * ground.blue() < 140;
}

QColor textColourOn(const QColor& ground) {
    return isDark(ground) ? QColor(0xff, 0xff, 0xff) : QColor(0x0f, 0x17, 0x2a);
}

QColor accentOn(const QColor& ground) {
    return isDark(ground) ? QColor(0x60, 0xa5, 0xfa) : strongAccent;
}

QColor hollowOn(const QColor& ground) {
    return isDark(ground) ? blend(ground, Qt::black, 0.25) : blend(ground, Qt::white, 0.8);
}

QFont fontOf(const forms::Font& font) {
    QFont result(textOf(font.name));
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double dotsPerInch = screen == nullptr ? 96 : screen->logicalDotsPerInchY();
    result.setPointSizeF(font.sizePt * 96 / dotsPerInch);
    result.setBold(font.bold);
    return result;
}

}  // namespace desktop
