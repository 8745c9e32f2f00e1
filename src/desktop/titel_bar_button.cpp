#include "desktop/titel_bar_button.h"

#include <QtCore/QLineF>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>

#include "desktop/looks.h"
#include "desktop/painting.h"

namespace desktop {

TitelBarButton::TitelBarButton(Sign sign, QWidget& parent, const ViewHost& host)
    : QAbstractButton(&parent),
      sign_(sign),
      host_(host) {
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    const QString name = sign == Sign::Close      ? QStringLiteral("Close")
                         : sign == Sign::Minimise ? QStringLiteral("Minimise")
                                                  : QStringLiteral("Maximise");
    setAccessibleName(name);
    setToolTip(name);
}

void TitelBarButton::setColours(const QColor& ground, const QColor& stroke) {
    ground_ = ground;
    stroke_ = stroke;
    update();
}

void TitelBarButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QAbstractButton::keyPressEvent(event);
        return;
    }
    // Passed on, the key would press the default button of the form.
    if (!event->isAutoRepeat()) click();
}

void TitelBarButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QColor stroke = isEnabled() ? stroke_ : blend(ground_, stroke_, 0.35);
    if (isEnabled() && (underMouse() || isDown())) {
        const bool closes = sign_ == Sign::Close;
        QColor face = closes ? QColor(0xdc, 0x26, 0x26) : blend(ground_, stroke_, 0.16);
        if (isDown()) face = blend(face, Qt::black, 0.2);
        painter.fillRect(rect(), face);
        if (closes) stroke = Qt::white;
    }
    if (hasFocus() && host_.keyboardInUse()) drawFocusRing(painter, rect(), 2, ground_);
    paintSign(painter, stroke);
}

void TitelBarButton::paintSign(QPainter& painter, const QColor& stroke) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(stroke, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
    QRectF box(0, 0, 9, 9);
    box.moveCenter(QRectF(rect()).center());
    switch (sign_) {
        case Sign::Close:
            painter.drawLine(QLineF(box.topLeft(), box.bottomRight()));
            painter.drawLine(QLineF(box.topRight(), box.bottomLeft()));
            break;
        case Sign::Minimise:
            painter.drawLine(QLineF(box.left(), box.center().y(), box.right(), box.center().y()));
            break;
        case Sign::Maximise:
            painter.drawRect(box);
            break;
    }
}

}  // namespace desktop
