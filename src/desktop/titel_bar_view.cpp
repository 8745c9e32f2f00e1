#include "desktop/titel_bar_view.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QWindow>

#include "desktop/looks.h"
#include "desktop/painting.h"
#include "desktop/titel_bar_button.h"

namespace desktop {

namespace {

constexpr int buttonWidth = 40;
constexpr int captionLeft = 10;

}  // namespace

TitelBarView::TitelBarView(furniture::TitelBar& bar, QWidget& parent, ViewHost& host)
    : QWidget(&parent),
      ControlView(bar, host),
      bar_(bar),
      minimise_(new TitelBarButton(TitelBarButton::Sign::Minimise, *this, host)),
      maximise_(new TitelBarButton(TitelBarButton::Sign::Maximise, *this, host)),
      close_(new TitelBarButton(TitelBarButton::Sign::Close, *this, host)) {
    connect(minimise_, &QAbstractButton::clicked, this,
            [this] { tell([this] { bar_.pressMinimise(); }); });
    connect(maximise_, &QAbstractButton::clicked, this,
            [this] { tell([this] { bar_.pressMaximise(); }); });
    connect(close_, &QAbstractButton::clicked, this,
            [this] { tell([this] { bar_.pressClose(); }); });
}

bool TitelBarView::syncOwn() {
    const Drawn now{bar_.BackColorV1Begin, bar_.BackColorV1End,       bar_.BackColorV2Begin,
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
    for (TitelBarButton* button : {minimise_, maximise_, close_}) {
        button->setColours(colourOf(now.topEnd), colourOf(now.caption));
    }
    layOutButtons();
    return true;
}

void TitelBarView::layOutButtons() {
    int right = width();
    for (TitelBarButton* button : {close_, maximise_, minimise_}) {
        if (button->isHidden()) continue;
        right -= buttonWidth;
        button->setGeometry(right, 0, buttonWidth, height());
    }
}

void TitelBarView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layOutButtons();
}

void TitelBarView::paintEvent(QPaintEvent*) {
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

void TitelBarView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    if (QWindow* handle = window()->windowHandle(); handle != nullptr) handle->startSystemMove();
}

void TitelBarView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    tell([this] { bar_.pressMaximise(); });
}

}  // namespace desktop
