#include <QtCore/QLineF>
#include <QtGui/QKeyEvent>
#include <QtGui/QLinearGradient>
#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>

#include <optional>

#include "desktop/control_view.h"
#include "desktop/looks.h"
#include "desktop/painting.h"
#include "furniture/title_bar.h"

namespace desktop {

namespace {

/// One of the buttons of a title bar, drawn as strokes.
class TitleBarButton final : public QAbstractButton {
public:
    enum class Sign { Close, Minimise, Maximise };

    TitleBarButton(Sign sign, const QString& name, QWidget& parent, const ViewHost& host)
        : QAbstractButton(&parent),
          sign_(sign),
          host_(host) {
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::TabFocus);
        setAccessibleName(name);
        setToolTip(name);
    }

    void setColours(const QColor& ground, const QColor& stroke) {
        ground_ = ground;
        stroke_ = stroke;
        update();
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
            QAbstractButton::keyPressEvent(event);
            return;
        }
        // Passed on, the key would press the default button of the form.
        if (!event->isAutoRepeat()) click();
    }
    void paintEvent(QPaintEvent*) override {
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

private:
    void paintSign(QPainter& painter, const QColor& stroke) const {
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
                painter.drawLine(
                    QLineF(box.left(), box.center().y(), box.right(), box.center().y()));
                break;
            case Sign::Maximise:
                painter.drawRect(box);
                break;
        }
    }

    Sign sign_;
    const ViewHost& host_;
    QColor ground_;
    QColor stroke_;
};

/// The bar along the top of a form: two gradients, the caption, and the buttons at the right end.
/// Pressed elsewhere it lets the window system drag the form.
class TitleBarView final : public QWidget, public ControlView {
public:
    TitleBarView(furniture::TitleBar& bar, QWidget& parent, ViewHost& host)
        : QWidget(&parent),
          ControlView(bar, *this, host),
          bar_(bar) {
        using Sign = TitleBarButton::Sign;
        minimise_ = new TitleBarButton(Sign::Minimise, QStringLiteral("Minimise"), *this, host);
        maximise_ = new TitleBarButton(Sign::Maximise, QStringLiteral("Maximise"), *this, host);
        close_ = new TitleBarButton(Sign::Close, QStringLiteral("Close"), *this, host);
        const auto wire = [this](TitleBarButton* button, void (furniture::TitleBar::*press)()) {
            connect(button, &QAbstractButton::clicked, this,
                    [this, press] { tell([&bar = bar_, press] { (bar.*press)(); }); });
        };
        wire(minimise_, &furniture::TitleBar::pressMinimise);
        wire(maximise_, &furniture::TitleBar::pressMaximise);
        wire(close_, &furniture::TitleBar::pressClose);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        constexpr int captionLeft = 10;
        QPainter painter(this);
        QLinearGradient shade(0, 0, 0, height());
        shade.setColorAt(0, colourOf(shown_.topBegin));
        shade.setColorAt(0.499, colourOf(shown_.topEnd));
        shade.setColorAt(0.5, colourOf(shown_.bottomBegin));
        shade.setColorAt(1, colourOf(shown_.bottomEnd));
        painter.fillRect(rect(), shade);
        const QColor ground = colourOf(shown_.bottomEnd);
        // A box, since the pen of a line leaves half a pixel free at its end on a dense screen.
        painter.fillRect(0, height() - 1, width(), 1, blend(ground, colourOf(shown_.line), 0.14));

        QFont bold = font();
        bold.setBold(true);
        painter.setFont(bold);
        painter.setPen(colourOf(shown_.caption));
        const int end = close_->isHidden() ? width() : std::min(close_->x(), width());
        drawFittedText(painter, QRectF(captionLeft, 0, end - captionLeft, height()),
                       Qt::AlignLeft | Qt::AlignVCenter, caption().trimmed());
    }
    void resizeEvent(QResizeEvent* event) override {
        QWidget::resizeEvent(event);
        layOutButtons();
    }
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) pressedAt_ = event->pos();
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        // Not by the press itself: the window system keeps what follows it, a second press too. And
        // once only: another call would take hold of the window when the button is up again.
        if (!pressedAt_ ||
            (event->pos() - *pressedAt_).manhattanLength() < QApplication::startDragDistance()) {
            return;
        }
        pressedAt_.reset();
        if (QWindow* handle = window()->windowHandle(); handle != nullptr) {
            handle->startSystemMove();
        }
    }
    void mouseReleaseEvent(QMouseEvent*) override { pressedAt_.reset(); }
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        tell([this] { bar_.doubleClick(); });
    }

private:
    struct Drawn {
        forms::Colour topBegin, topEnd, bottomBegin, bottomEnd, caption, line;
        bool close = false, minimise = false, maximise = false;
        bool closeEnabled = false, minimiseEnabled = false, maximiseEnabled = false;
        bool operator==(const Drawn&) const = default;
    };

    bool syncOwn() override {
        const Drawn now{
            bar_.BackColorV1Begin, bar_.BackColorV1End,       bar_.BackColorV2Begin,
            bar_.BackColorV2End,   bar_.CaptionColor,         bar_.BorderColorDarkLight,
            bar_.ShowClose,        bar_.ShowMinimized,        bar_.ShowMaximized,
            bar_.ShowCloseEnabled, bar_.ShowMinimizedEnabled, bar_.ShowMaximizedEnabled};
        if (now == shown_) return false;
        shown_ = now;
        close_->setVisible(now.close);
        minimise_->setVisible(now.minimise);
        maximise_->setVisible(now.maximise);
        close_->setEnabled(now.closeEnabled);
        minimise_->setEnabled(now.minimiseEnabled);
        maximise_->setEnabled(now.maximiseEnabled);
        for (TitleBarButton* button : {minimise_, maximise_, close_}) {
            button->setColours(colourOf(now.topEnd), colourOf(now.caption));
        }
        layOutButtons();
        return true;
    }
    void layOutButtons() {
        constexpr int buttonWidth = 40;
        int right = width();
        for (TitleBarButton* button : {close_, maximise_, minimise_}) {
            if (button->isHidden()) continue;
            right -= buttonWidth;
            button->setGeometry(right, 0, buttonWidth, height());
        }
    }

    furniture::TitleBar& bar_;
    Drawn shown_;
    std::optional<QPoint> pressedAt_;
    TitleBarButton* minimise_;  ///< as the others, the toolkit's
    TitleBarButton* maximise_;
    TitleBarButton* close_;
};

}  // namespace

ControlView* makeTitleBarView(forms::Control& control, QWidget& parent, ViewHost& host) {
    return makeView<TitleBarView, furniture::TitleBar>(control, parent, host);
}

}  // namespace desktop
