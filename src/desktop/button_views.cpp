// Buttons, check boxes and options.

#include <QtGui/QKeyEvent>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

#include <algorithm>
#include <utility>

#include "desktop/control_view.h"
#include "desktop/looks.h"
#include "desktop/painting.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace desktop {

namespace {

constexpr double cornerRadius = 4;
/// The box of a check box and the ring of an option.
constexpr double markSize = 14;
const QColor plainFace(0xe1, 0xe5, 0xea);

/// A flat push button in its own colour.
class ButtonView final : public QPushButton, public ControlView {
public:
    ButtonView(forms::CommandButton& button, QWidget& parent, ViewHost& host)
        : QPushButton(&parent),
          ControlView(button, *this, host),
          button_(button) {
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::StrongFocus);
        connect(this, &QPushButton::clicked, this, [this] { tell([this] { button_.press(); }); });
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QColor face =
            buttonFace(look().back.value_or(plainFace), isEnabled(), underMouse(), isDown());
        drawPlate(painter, rect(), cornerRadius, face,
                  blend(face, Qt::black, isEnabled() ? 0.22 : 0.1));
        // The ring stands inside the button: around it there may be no room.
        if (marksFocus()) drawFocusRing(painter, rect(), cornerRadius, QColor(Qt::white));
        paintCaption(painter, face);
    }

private:
    bool syncOwn() override { return false; }
    void lookChanged() override { setText(caption().trimmed()); }

    void paintCaption(QPainter& painter, const QColor& ground) {
        QColor ink = textColourOn(ground);
        if (!isEnabled()) ink = blend(ground, ink, 0.55);
        const QRectF inside = QRectF(rect()).adjusted(3, 2, -3, -2).translated(0, isDown() ? 1 : 0);
        // The arrow glyphs of this font are drawn: few machines have it.
        const std::string& sign = look().caption;
        if (look().font.name == "Marlett" && (sign == "5" || sign == "6")) {
            const double side = std::min({inside.width(), inside.height(), 11.0});
            QRectF box(0, 0, side, side);
            box.moveCenter(inside.center());
            drawArrow(painter, box, sign == "5", ink);
            return;
        }
        painter.setPen(ink);
        drawFittedText(painter, inside, Qt::AlignCenter, caption().trimmed());
    }

    forms::CommandButton& button_;
};

class CheckBoxView final : public QCheckBox, public ControlView {
public:
    CheckBoxView(forms::CheckBox& box, QWidget& parent, ViewHost& host)
        : QCheckBox(&parent),
          ControlView(box, *this, host),
          box_(box) {
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintBack(painter);
        const QRectF mark(1, (height() - markSize) / 2, markSize, markSize);
        const Mark drawn = checkState() == Qt::Checked            ? Mark::Tick
                           : checkState() == Qt::PartiallyChecked ? Mark::Dash
                                                                  : Mark::None;
        drawCheckMark(painter, mark, drawn, look().ground, isEnabled(), underMouse());
        if (marksFocus()) drawFocusRing(painter, mark.adjusted(-1, -1, 1, 1), 4, look().ground);
        painter.setPen(textColour());
        drawFittedText(painter, QRectF(rect()).adjusted(markSize + 7, 0, 0, 0),
                       Qt::AlignLeft | Qt::AlignVCenter, caption().trimmed());
    }
    /// The model flips, and this follows.
    void nextCheckState() override {
        tell([this] {
            using State = forms::CheckBox::State;
            box_.setValue(box_.value() == State::Unchecked ? State::Checked : State::Unchecked);
        });
    }
    [[nodiscard]] bool hitButton(const QPoint& at) const override { return rect().contains(at); }

private:
    bool syncOwn() override {
        using State = forms::CheckBox::State;
        const Qt::CheckState wanted = box_.value() == State::Checked ? Qt::Checked
                                      : box_.value() == State::Grey  ? Qt::PartiallyChecked
                                                                     : Qt::Unchecked;
        if (checkState() == wanted) return false;
        setTristate(wanted == Qt::PartiallyChecked);
        setCheckState(wanted);
        return true;
    }
    void lookChanged() override { setText(caption()); }

    forms::CheckBox& box_;
};

/// The options of one container, from its upper left corner on, as the eye follows them.
std::vector<forms::OptionButton*> groupOf(const forms::OptionButton& option) {
    std::vector<forms::OptionButton*> group;
    for (forms::Control* control : option.form().controls()) {
        auto* other = dynamic_cast<forms::OptionButton*>(control);
        if (other != nullptr && other->container() == option.container()) group.push_back(other);
    }
    std::stable_sort(group.begin(), group.end(), [](const auto* one, const auto* other) {
        return std::pair(one->place.top, one->place.left) <
               std::pair(other->place.top, other->place.left);
    });
    return group;
}

/// One of several choices: a dot in a ring. Tab comes to the chosen one of a group, the arrow keys
/// go from one to the next.
class OptionView final : public QRadioButton, public ControlView {
public:
    OptionView(forms::OptionButton& option, QWidget& parent, ViewHost& host)
        : QRadioButton(&parent),
          ControlView(option, *this, host),
          option_(option) {
        setAttribute(Qt::WA_Hover);
        setAutoExclusive(false);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintBack(painter);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor& ground = look().ground;
        const QRectF ring(1.5, (height() - markSize) / 2 + 0.5, markSize - 1, markSize - 1);
        const QColor accent = isEnabled() ? strongAccent : blend(ground, textColourOn(ground), 0.3);
        QColor line = blend(ground, textColourOn(ground), isEnabled() ? 0.45 : 0.25);
        if (isEnabled() && underMouse()) line = accentOn(ground);
        painter.setPen(QPen(isChecked() ? accent : line, 1));
        painter.setBrush(isChecked() ? accent : hollowOn(ground));
        painter.drawEllipse(ring);
        if (isChecked()) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(isEnabled() ? QColor(Qt::white) : textColour());
            painter.drawEllipse(ring.center(), 2.75, 2.75);
        }
        if (marksFocus()) {
            drawFocusRing(painter, ring.adjusted(-2, -2, 2, 2), markSize / 2 + 1.5, ground);
        }
        painter.setPen(textColour());
        drawFittedText(painter, QRectF(rect()).adjusted(markSize + 7, 0, 0, 0),
                       Qt::AlignLeft | Qt::AlignVCenter, caption().trimmed());
    }
    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
            case Qt::Key_Left:
            case Qt::Key_Up:
                chooseNext(-1);
                return;
            case Qt::Key_Right:
            case Qt::Key_Down:
                chooseNext(1);
                return;
            default:
                QRadioButton::keyPressEvent(event);
        }
    }
    /// The model chooses, and this follows.
    void nextCheckState() override {
        tell([this] { option_.setValue(true); });
    }
    [[nodiscard]] bool hitButton(const QPoint& at) const override { return rect().contains(at); }

private:
    bool syncOwn() override {
        const std::vector<forms::OptionButton*> group = groupOf(option_);
        const bool noneChosen = std::none_of(group.begin(), group.end(),
                                             [](const auto* other) { return other->value(); });
        const bool chosen = option_.value();
        setFocusPolicy(chosen || noneChosen ? Qt::StrongFocus : Qt::ClickFocus);
        if (isChecked() == chosen) return false;
        setChecked(chosen);
        return true;
    }
    void lookChanged() override { setText(caption().trimmed()); }

    /// `step` 1 or -1 along the group, past what cannot be chosen, and round its ends.
    void chooseNext(int step) {
        tell([this, step] {
            const std::vector<forms::OptionButton*> group = groupOf(option_);
            const auto count = static_cast<int>(group.size());
            const auto own = static_cast<int>(
                std::distance(group.begin(), std::find(group.begin(), group.end(), &option_)));
            for (int away = 1; away < count; ++away) {
                forms::OptionButton* other =
                    group[static_cast<std::size_t>((own + step * away + count * count) % count)];
                if (!other->enabled || !other->visible) continue;
                other->form().focus = other;
                other->setValue(true);
                return;
            }
        });
    }

    forms::OptionButton& option_;
};

}  // namespace

ControlView* makeButtonView(forms::Control& control, QWidget& parent, ViewHost& host) {
    switch (control.controlClass()) {
        case forms::ControlClass::CheckBox:
            return makeView<CheckBoxView, forms::CheckBox>(control, parent, host);
        case forms::ControlClass::OptionButton:
            return makeView<OptionView, forms::OptionButton>(control, parent, host);
        default:
            return makeView<ButtonView, forms::CommandButton>(control, parent, host);
    }
}

}  // namespace desktop
