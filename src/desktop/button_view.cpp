#include "desktop/button_view.h"

#include "desktop/looks.h"
#include "desktop/painting.h"

namespace desktop {

namespace {

constexpr double cornerRadius = 4;

/// The font of window furniture, of which the forms use two arrows. They are drawn here, as few
/// machines have it.
bool isArrow(const std::string& fontName, const std::string& caption) {
    return fontName == "Marlett" && (caption == "5" || caption == "6");
}

}  // namespace

QColor buttonFace(const QColor& own, bool enabled, bool hovered, bool down) {
    const bool dark = isDark(own);
    if (!enabled) return blend(own, QColor(0x80, 0x84, 0x8c), dark ? 0.25 : 0.55);
    if (down) return blend(own, Qt::black, dark ? 0.3 : 0.18);
    if (hovered) return blend(own, Qt::white, dark ? 0.12 : 0.5);
    return own;
}

ButtonView::ButtonView(forms::CommandButton& button, QWidget& parent, ViewHost& host)
    : QPushButton(&parent),
      ControlView(button, host),
      button_(button) {
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QPushButton::clicked, this, [this] { tell([this] { button_.press(); }); });
}

void ButtonView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor own = look().back.value_or(QColor(0xe1, 0xe5, 0xea));
    const QColor face = buttonFace(own, isEnabled(), underMouse(), isDown());
    drawPlate(painter, rect(), cornerRadius, face,
              blend(face, Qt::black, isEnabled() ? 0.22 : 0.1));
    // The ring stands inside the button: around it there may be no room.
    if (marksFocus()) drawFocusRing(painter, rect(), cornerRadius, QColor(Qt::white));
    paintCaption(painter, face);
}

void ButtonView::paintCaption(QPainter& painter, const QColor& ground) {
    QColor ink = textColourOn(ground);
    if (!isEnabled()) ink = blend(ground, ink, 0.55);
    const QRectF inside = QRectF(rect()).adjusted(3, 2, -3, -2).translated(0, isDown() ? 1 : 0);
    if (isArrow(look().font.name, look().caption)) {
        const double side = std::min({inside.width(), inside.height(), 11.0});
        QRectF box(0, 0, side, side);
        box.moveCenter(inside.center());
        drawArrow(painter, box, look().caption == "5", ink);
        return;
    }
    painter.setPen(ink);
    drawFittedText(painter, inside, Qt::AlignCenter, caption().trimmed());
}

}  // namespace desktop
