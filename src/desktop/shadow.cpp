#include "desktop/shadow.h"

#include <QtGui/QGradient>
#include <QtGui/QGuiApplication>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string>

namespace desktop {

namespace {

/// Fades faster near its outer end, as a blur does.
void setFade(QGradient& gradient, const Shadow& shadow) {
    constexpr int steps = 8;
    for (int i = 0; i <= steps; ++i) {
        const double away = static_cast<double>(i) / steps;
        const double strength = (1 - away) * (1 - away);
        QColor colour = shadow.colour;
        colour.setAlpha(static_cast<int>(strength * shadow.opacity));
        gradient.setColorAt(away, colour);
    }
}

void paintSide(QPainter& painter, const QRectF& box, const QPointF& from, const QPointF& to,
               const Shadow& shadow) {
    QLinearGradient fade(from, to);
    setFade(fade, shadow);
    painter.fillRect(box, fade);
}

void paintCorner(QPainter& painter, const QPointF& corner, const QRectF& box,
                 const Shadow& shadow) {
    QRadialGradient fade(corner, shadow.depthPx);
    setFade(fade, shadow);
    painter.fillRect(box, fade);
}

bool hasCompositor(xcb_connection_t* connection, int screen) {
    const std::string name = "_NET_WM_CM_S" + std::to_string(screen);
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    if (atom == nullptr) return false;
    const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom),
                                      nullptr),
        &std::free);
    return owner != nullptr && owner->owner != XCB_WINDOW_NONE;
}

}  // namespace

void paintShadow(QPainter& painter, const QRectF& form, const Shadow& shadow) {
    if (shadow.depthPx <= 0 || shadow.opacity <= 0) return;
    const double d = shadow.depthPx;
    const double l = form.left();
    const double t = form.top();
    const double r = form.right();
    const double b = form.bottom();
    paintSide(painter, {l, t - d, form.width(), d}, {l, t}, {l, t - d}, shadow);
    paintSide(painter, {l, b, form.width(), d}, {l, b}, {l, b + d}, shadow);
    paintSide(painter, {l - d, t, d, form.height()}, {l, t}, {l - d, t}, shadow);
    paintSide(painter, {r, t, d, form.height()}, {r, t}, {r + d, t}, shadow);
    paintCorner(painter, {l, t}, {l - d, t - d, d, d}, shadow);
    paintCorner(painter, {r, t}, {r, t - d, d, d}, shadow);
    paintCorner(painter, {l, b}, {l - d, b, d, d}, shadow);
    paintCorner(painter, {r, b}, {r, b, d, d}, shadow);
    painter.setPen(QPen(QColor(0x33, 0x41, 0x55), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(form.adjusted(-0.5, -0.5, 0.5, 0.5));
}

bool canBlendWindows() {
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || x11->connection() == nullptr) return true;
    return hasCompositor(x11->connection(), 0);
}

}  // namespace desktop
