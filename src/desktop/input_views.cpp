// Text boxes and sliders.

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSlider>

#include <algorithm>
#include <utility>

#include "desktop/control_view.h"
#include "desktop/looks.h"
#include "desktop/painting.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace desktop {

namespace {

class TextBoxView final : public QLineEdit, public ControlView {
public:
    TextBoxView(forms::TextBox& box, QWidget& parent, ViewHost& host)
        : QLineEdit(&parent),
          ControlView(box, *this, host),
          box_(box) {
        setFrame(false);
        setTextMargins(5, 0, 5, 0);
        connect(this, &QLineEdit::textEdited, this, [this](const QString& typed) {
            tell([this, text = textOf(typed)] { box_.setText(text); });
        });
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        {
            QPainter painter(this);
            const QColor ground = look().back.value_or(QColor(Qt::white));
            const QColor line = hasBorder_ ? blend(ground, textColourOn(ground), 0.28) : ground;
            drawPlate(painter, rect(), hasBorder_ ? 3 : 0, ground, line);
            if (hasFocus() && !isReadOnly()) drawFocusRing(painter, rect(), 3, ground);
        }
        QLineEdit::paintEvent(event);
    }
    void keyPressEvent(QKeyEvent* event) override {
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        const int step = enter || event->key() == Qt::Key_Down ? 1
                         : event->key() == Qt::Key_Up          ? -1
                                                               : 0;
        if (step == 0 || !box_.onStep) {
            QLineEdit::keyPressEvent(event);
            return;
        }
        if (enter && event->isAutoRepeat()) return;
        tell([this, step] { box_.onStep(step); });
    }

private:
    bool syncOwn() override {
        if (const QString wanted = textOf(box_.text()); text() != wanted) {
            const int cursor = cursorPosition();
            setText(wanted);
            // A text that the form has mended during typing leaves the cursor where it was; one
            // that has come from elsewhere is read from its beginning.
            setCursorPosition(hasFocus() ? std::min(cursor, static_cast<int>(wanted.size())) : 0);
        }
        if (std::exchange(selections_, box_.selections()) != box_.selections()) selectAll();
        setReadOnly(box_.readOnly);
        const Qt::Alignment wanted = alignmentOf(box_.alignment);
        if (alignment() != wanted) setAlignment(wanted);
        return std::exchange(hasBorder_, box_.hasBorder) != box_.hasBorder;
    }
    void lookChanged() override {
        const QColor ground = look().back.value_or(QColor(Qt::white));
        const QColor ink = look().fore.value_or(textColourOn(ground));
        QPalette colours = palette();
        colours.setColor(QPalette::Base, Qt::transparent);
        colours.setColor(QPalette::Text, ink);
        colours.setColor(QPalette::Disabled, QPalette::Text, blend(ground, ink, 0.45));
        colours.setColor(QPalette::PlaceholderText, blend(ground, ink, 0.5));
        colours.setColor(QPalette::Highlight, strongAccent);
        colours.setColor(QPalette::HighlightedText, Qt::white);
        setPalette(colours);
    }

    forms::TextBox& box_;
    int selections_ = 0;
    bool hasBorder_ = true;
};

class SliderView final : public QSlider, public ControlView {
public:
    SliderView(forms::Slider& slider, QWidget& parent, ViewHost& host)
        : QSlider(slider.orientation == forms::Slider::Orientation::Vertical ? Qt::Vertical
                                                                             : Qt::Horizontal,
                  &parent),
          ControlView(slider, *this, host),
          slider_(slider) {
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_Hover);
        connect(this, &QSlider::valueChanged, this,
                [this](int value) { tell([this, value] { slider_.setValue(value); }); });
    }

protected:
    void paintEvent(QPaintEvent*) override {
        constexpr double handleRadius = 7;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        paintBack(painter);
        const QColor& ground = look().ground;
        const bool upright = orientation() == Qt::Vertical;
        const QRectF all = rect();
        const QRectF track = upright ? QRectF(all.center().x() - 2, handleRadius + 1, 4,
                                              all.height() - 2 * handleRadius - 2)
                                     : QRectF(handleRadius + 1, all.center().y() - 2,
                                              all.width() - 2 * handleRadius - 2, 4);
        const QPointF handle = pointAt(track, sliderPosition());
        QRectF filled = track;
        if (upright) {
            filled.setTop(handle.y());
        } else {
            filled.setRight(handle.x());
        }
        const QColor full = isEnabled() ? strongAccent : blend(ground, textColourOn(ground), 0.3);
        painter.setPen(Qt::NoPen);
        painter.setBrush(blend(ground, textColourOn(ground), 0.22));
        painter.drawRoundedRect(track, 2, 2);
        painter.setBrush(full);
        painter.drawRoundedRect(filled, 2, 2);
        paintTicks(painter, track);

        painter.setPen(QPen(full, 2));
        painter.setBrush(
            buttonFace(QColor(0xe2, 0xe8, 0xf0), isEnabled(), underMouse(), isSliderDown()));
        painter.drawEllipse(handle, handleRadius - 1, handleRadius - 1);
        if (!hasFocus()) return;
        QRectF ring(0, 0, 2 * handleRadius + 4, 2 * handleRadius + 4);
        ring.moveCenter(handle);
        drawFocusRing(painter, ring, handleRadius + 2, ground);
    }

private:
    struct Drawn {
        std::int32_t value = 0, minimum = 0, maximum = 0, smallChange = 0, largeChange = 0;
        std::int32_t tickFrequency = -1;
        bool operator==(const Drawn&) const = default;
    };

    bool syncOwn() override {
        const Drawn now{slider_.value(),     slider_.minimum,     slider_.maximum,
                        slider_.smallChange, slider_.largeChange, slider_.tickFrequency};
        if (now == shown_ && now.value == value()) return false;
        shown_ = now;
        const QSignalBlocker quiet(this);
        setRange(now.minimum, now.maximum);
        setSingleStep(now.smallChange);
        setPageStep(now.largeChange);
        setTickInterval(now.tickFrequency);
        setValue(now.value);
        return true;
    }

    /// Where a position stands in the middle of the track; upright ones begin below.
    [[nodiscard]] QPointF pointAt(const QRectF& track, int position) const {
        const double share = maximum() == minimum() ? 0
                                                    : static_cast<double>(position - minimum()) /
                                                          (maximum() - minimum());
        return orientation() == Qt::Vertical
                   ? QPointF(track.center().x(), track.bottom() - share * track.height())
                   : QPointF(track.left() + share * track.width(), track.center().y());
    }
    void paintTicks(QPainter& painter, const QRectF& track) const {
        if (tickInterval() <= 0) return;
        painter.setPen(QPen(blend(look().ground, textColourOn(look().ground), 0.35), 1));
        const bool upright = orientation() == Qt::Vertical;
        for (int position = minimum(); position <= maximum(); position += tickInterval()) {
            const QPointF at = pointAt(track, position);
            const QPointF from =
                upright ? QPointF(track.right() + 6, at.y()) : QPointF(at.x(), track.bottom() + 6);
            painter.drawLine(from, from + (upright ? QPointF(3, 0) : QPointF(0, 3)));
        }
    }

    forms::Slider& slider_;
    Drawn shown_;
};

}  // namespace

ControlView* makeInputView(forms::Control& control, QWidget& parent, ViewHost& host) {
    if (control.controlClass() == forms::ControlClass::Slider)
        return makeView<SliderView, forms::Slider>(control, parent, host);
    return makeView<TextBoxView, forms::TextBox>(control, parent, host);
}

}  // namespace desktop
