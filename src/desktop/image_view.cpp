#include "desktop/image_view.h"

#include <QtCore/QBuffer>
#include <QtGui/QImageReader>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include <utility>

#include "desktop/icons.h"

namespace desktop {

ImageView::ImageView(forms::Image& image, QWidget& parent, ViewHost& host)
    : QLabel(&parent),
      ControlView(image, host),
      image_(image) {}

bool ImageView::syncOwn() {
    const bool clickable = image_.onClick || image_.onDblClick;
    setAttribute(Qt::WA_TransparentForMouseEvents, !clickable && image_.toolTip.empty());
    if (clickable != testAttribute(Qt::WA_SetCursor)) {
        if (clickable) {
            setCursor(Qt::PointingHandCursor);
        } else {
            unsetCursor();
        }
    }
    if (version_ == image_.version() && stretch_ == image_.stretch) return false;
    version_ = image_.version();
    stretch_ = image_.stretch;
    picture_ = image_.picture();
    read_ = rendered_ = QImage();
    renderedFor_ = QSize();
    return true;
}

void ImageView::read(const QSize& wanted) {
    QByteArray bytes(reinterpret_cast<const char*>(picture_.bytes.data()),
                     static_cast<qsizetype>(picture_.bytes.size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    // A drawing of lines is drawn at the size wanted; what consists of pixels is read as it is.
    isVector_ = reader.format() == QByteArrayLiteral("svg");
    if (isVector_) reader.setScaledSize(stretch_ ? wanted : reader.size() * devicePixelRatioF());
    read_ = reader.read();
    if (isVector_) read_.setDevicePixelRatio(devicePixelRatioF());
}

const QImage& ImageView::rendered() {
    const QSize wanted = size() * devicePixelRatioF();
    if (renderedFor_ == wanted) return rendered_;
    renderedFor_ = wanted;
    if (read_.isNull() || isVector_) read(wanted);
    const bool isReduced = stretch_ && !isVector_ &&
                           (read_.width() > wanted.width() || read_.height() > wanted.height());
    rendered_ =
        isReduced ? read_.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : read_;
    return rendered_;
}

void ImageView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (look().back && !look().transparent) painter.fillRect(rect(), *look().back);
    if (!picture_.drawing.empty()) {
        drawIcon(painter, rect(), picture_.drawing);
        return;
    }
    if (picture_.bytes.empty() || size().isEmpty()) return;
    const QImage& shown = rendered();
    if (shown.isNull()) return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (stretch_) {
        painter.drawImage(rect(), shown);
    } else {
        painter.drawImage(QPoint(0, 0), shown);
    }
}

void ImageView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || secondPress_ || !rect().contains(event->pos())) return;
    tell([this] {
        if (image_.onClick) image_.onClick();
    });
}

void ImageView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    secondPress_ = true;
    tell([this] {
        if (image_.onDblClick) image_.onDblClick();
    });
}

}  // namespace desktop
