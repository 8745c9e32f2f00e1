// What shows something and takes no key: texts, frames, pictures, shapes, progress bars.

#include <QtCore/QBuffer>
#include <QtGui/QImageReader>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainterPath>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>

#include <utility>

#include "desktop/control_view.h"
#include "desktop/looks.h"
#include "desktop/painting.h"
#include "forms/controls.h"
#include "furniture/progress_bar.h"

namespace desktop {

namespace {

/// A text. It passes the mouse on to what lies below.
class LabelView final : public QLabel, public ControlView {
public:
    LabelView(forms::Label& label, QWidget& parent, ViewHost& host)
        : QLabel(&parent),
          ControlView(label, *this, host),
          label_(label) {
        setTextFormat(Qt::PlainText);
    }

    [[nodiscard]] bool isLightweight() const override { return true; }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintBack(painter);
        painter.setPen(textColour());
        const Qt::Alignment across = alignmentOf(alignment_) & Qt::AlignHorizontal_Mask;
        drawFittedText(painter, rect(), across | Qt::AlignTop, caption());
    }

private:
    bool syncOwn() override {
        return std::exchange(alignment_, label_.alignment) != label_.alignment;
    }
    void lookChanged() override {
        // The base class keeps the text for screen readers; it is painted here.
        setText(caption());
        // A tip has to find the mouse; otherwise the click is for whatever the text stands on.
        setAttribute(Qt::WA_TransparentForMouseEvents, look().toolTip.empty());
    }

    forms::Label& label_;
    forms::Alignment alignment_ = forms::Alignment::Left;
};

/// A group of controls: a plate with round corners and its caption along the top.
class FrameView final : public QGroupBox, public ControlView {
public:
    FrameView(forms::Frame& frame, QWidget& parent, ViewHost& host)
        : QGroupBox(&parent),
          ControlView(frame, *this, host),
          frame_(frame) {
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        if (!hasBorder_) {
            paintBack(painter);
            return;
        }
        const bool filled = look().back && !look().transparent;
        drawPlate(painter, rect(), 6, filled ? *look().back : QColor(Qt::transparent),
                  blend(look().ground, textColourOn(look().ground), 0.16));
        if (look().caption.empty()) return;
        // So near the corner that the lines of a small frame still have room below.
        constexpr int left = 8;
        constexpr int top = 3;
        QFont bold = font();
        bold.setBold(true);
        painter.setFont(bold);
        painter.setPen(textColour());
        drawFittedText(painter, QRectF(left, top, width() - 2 * left, QFontMetrics(bold).height()),
                       Qt::AlignLeft | Qt::AlignVCenter, caption().trimmed());
    }

private:
    bool syncOwn() override {
        return std::exchange(hasBorder_, frame_.hasBorder) != frame_.hasBorder;
    }
    void lookChanged() override { setTitle(caption().trimmed()); }

    forms::Frame& frame_;
    bool hasBorder_ = true;
};

/// A drawn rectangle. The mouse goes through it.
class ShapeView final : public QWidget, public ControlView {
public:
    ShapeView(forms::Shape& shape, QWidget& parent, ViewHost& host)
        : QWidget(&parent),
          ControlView(shape, *this, host),
          shape_(shape) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    [[nodiscard]] bool isLightweight() const override { return true; }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const bool filled = look().back && !look().transparent;
        painter.setBrush(filled ? QBrush(*look().back) : QBrush(Qt::NoBrush));
        painter.setPen(QPen(look().fore.value_or(accentOn(look().ground)), 2));
        const double radius = rounded_ ? 8 : 3;
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius, radius);
    }

private:
    bool syncOwn() override { return std::exchange(rounded_, shape_.rounded) != shape_.rounded; }

    forms::Shape& shape_;
    bool rounded_ = false;
};

/// A picture from a file's bytes or one of the program's own drawings.
class ImageView final : public QLabel, public ControlView {
public:
    ImageView(forms::Image& image, QWidget& parent, ViewHost& host)
        : QLabel(&parent),
          ControlView(image, *this, host),
          image_(image) {}

    [[nodiscard]] bool isLightweight() const override { return true; }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintBack(painter);
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
    void mousePressEvent(QMouseEvent*) override { secondPress_ = false; }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton || secondPress_ || !rect().contains(event->pos())) {
            return;
        }
        tell([this] {
            if (image_.onClick) image_.onClick();
        });
    }
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        secondPress_ = true;
        tell([this] {
            if (image_.onDblClick) image_.onDblClick();
        });
    }

private:
    bool syncOwn() override {
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

    /// The picture in the pixels of this screen.
    const QImage& rendered() {
        const QSize wanted = size() * devicePixelRatioF();
        if (renderedFor_ == wanted) return rendered_;
        renderedFor_ = wanted;
        if (read_.isNull() || isVector_) read(wanted);
        const bool isReduced = stretch_ && !isVector_ &&
                               (read_.width() > wanted.width() || read_.height() > wanted.height());
        rendered_ = isReduced
                        ? read_.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                        : read_;
        return rendered_;
    }
    void read(const QSize& wanted) {
        QByteArray bytes(reinterpret_cast<const char*>(picture_.bytes.data()),
                         static_cast<qsizetype>(picture_.bytes.size()));
        QBuffer buffer(&bytes);
        QImageReader reader(&buffer);
        // A drawing of lines is drawn at the size wanted; what consists of pixels is read as it is.
        isVector_ = reader.format() == QByteArrayLiteral("svg");
        if (isVector_)
            reader.setScaledSize(stretch_ ? wanted : reader.size() * devicePixelRatioF());
        read_ = reader.read();
        if (isVector_) read_.setDevicePixelRatio(devicePixelRatioF());
    }

    forms::Image& image_;
    int version_ = -1;
    bool stretch_ = false;
    forms::Picture picture_;
    QImage read_;
    QImage rendered_;
    QSize renderedFor_;
    bool isVector_ = false;
    bool secondPress_ = false;
};

/// A bar that fills from the left, or from below, with its caption over both parts.
class ProgressView final : public QProgressBar, public ControlView {
public:
    ProgressView(furniture::ProgressBar& bar, QWidget& parent, ViewHost& host)
        : QProgressBar(&parent),
          ControlView(bar, *this, host),
          bar_(bar) {
        setRange(0, 100);
        setTextVisible(false);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        constexpr double cornerRadius = 4;
        constexpr double captionGap = 6;
        QPainter painter(this);
        const QColor ground = look().back.value_or(blend(look().ground, Qt::black, 0.3));
        const QColor bar = colourOf(drawn_.bar);
        drawPlate(painter, rect(), cornerRadius, ground,
                  drawn_.borderDefault ? blend(ground, textColourOn(ground), 0.2)
                                       : colourOf(drawn_.border));

        const QRectF track = QRectF(rect()).adjusted(1, 1, -1, -1);
        const QRectF filled = filledPart(track);
        painter.setRenderHint(QPainter::Antialiasing);
        QPainterPath inside;
        inside.addRoundedRect(track, cornerRadius - 1, cornerRadius - 1);
        painter.save();
        painter.setClipPath(inside);
        painter.fillRect(filled, bar);
        painter.restore();

        // The caption changes its colour where the bar runs beneath it.
        const Qt::Alignment alignment = alignmentOf(drawn_.alignment);
        const QRectF room = track.adjusted(captionGap, 0, -captionGap, 0);
        painter.setPen(look().fore.value_or(textColourOn(ground)));
        painter.setClipRegion(QRegion(rect()).subtracted(filled.toAlignedRect()));
        drawFittedText(painter, room, alignment, caption());
        painter.setClipRect(filled.toAlignedRect());
        painter.setPen(textColourOn(bar));
        drawFittedText(painter, room, alignment, caption());
    }

private:
    struct Drawn {
        std::int32_t value = 0;
        forms::Colour bar;
        forms::Colour border;
        bool borderDefault = true;
        furniture::ProgressBar::Orientation orientation =
            furniture::ProgressBar::Orientation::Horizontal;
        forms::Alignment alignment = forms::Alignment::Centre;
        bool operator==(const Drawn&) const = default;
    };

    bool syncOwn() override {
        const Drawn now{bar_.value(),       bar_.BarColor,    bar_.BorderColor,
                        bar_.BorderDefault, bar_.orientation, bar_.Alignment};
        if (now == drawn_) return false;
        drawn_ = now;
        setValue(now.value);
        return true;
    }
    [[nodiscard]] QRectF filledPart(const QRectF& track) const {
        const double share = drawn_.value / 100.0;
        QRectF filled = track;
        if (drawn_.orientation == furniture::ProgressBar::Orientation::Vertical) {
            filled.setTop(track.bottom() - share * track.height());
        } else {
            filled.setWidth(share * track.width());
        }
        return filled;
    }

    furniture::ProgressBar& bar_;
    Drawn drawn_;
};

}  // namespace

ControlView* makeStillView(forms::Control& control, QWidget& parent, ViewHost& host) {
    switch (control.controlClass()) {
        case forms::ControlClass::Label:
            return makeView<LabelView, forms::Label>(control, parent, host);
        case forms::ControlClass::Frame:
            return makeView<FrameView, forms::Frame>(control, parent, host);
        case forms::ControlClass::Image:
            return makeView<ImageView, forms::Image>(control, parent, host);
        case forms::ControlClass::Shape:
            return makeView<ShapeView, forms::Shape>(control, parent, host);
        default:
            return makeView<ProgressView, furniture::ProgressBar>(control, parent, host);
    }
}

}  // namespace desktop
