#include "desktop/option_view.h"

#include <QtGui/QKeyEvent>

#include <algorithm>
#include <utility>
#include <vector>

#include "desktop/button_view.h"
#include "desktop/looks.h"
#include "desktop/painting.h"
#include "forms/form.h"

namespace desktop {

namespace {

constexpr double ringSize = 14;

/// The options that share a choice with this one, as they are read: line by line from the left.
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

bool noneChosen(const forms::OptionButton& option) {
    for (const forms::OptionButton* other : groupOf(option)) {
        if (other->value()) return false;
    }
    return true;
}

}  // namespace

OptionView::OptionView(forms::OptionButton& option, QWidget& parent, ViewHost& host)
    : QRadioButton(&parent),
      ControlView(option, host),
      option_(option) {
    setAttribute(Qt::WA_Hover);
    setAutoExclusive(false);
    setFocusPolicy(Qt::StrongFocus);
}

void OptionView::nextCheckState() {
    tell([this] { option_.setValue(true); });
}

bool OptionView::syncOwn() {
    const bool chosen = option_.value();
    setFocusPolicy(chosen || noneChosen(option_) ? Qt::StrongFocus : Qt::ClickFocus);
    const bool styleDiffers = std::exchange(graphical_, option_.graphical) != option_.graphical;
    if (isChecked() == chosen) return styleDiffers;
    setChecked(chosen);
    return true;
}

void OptionView::keyPressEvent(QKeyEvent* event) {
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

void OptionView::chooseNext(int step) {
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

void OptionView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (graphical_) {
        paintAsButton(painter);
    } else {
        paintAsDot(painter);
    }
}

void OptionView::paintAsButton(QPainter& painter) {
    const QColor own = look().back.value_or(QColor(0xe1, 0xe5, 0xea));
    const QColor chosen(0x25, 0x63, 0xeb);
    const QColor face =
        buttonFace(isChecked() ? blend(own, chosen, isDark(own) ? 0.55 : 0.25) : own, isEnabled(),
                   underMouse(), isDown());
    const QColor line = isChecked() ? accentOn(own) : blend(face, textColourOn(face), 0.2);
    drawPlate(painter, rect(), 4, face, line);
    if (marksFocus()) drawFocusRing(painter, rect(), 4, own);
    painter.setPen(textColour());
    drawFittedText(painter, QRectF(rect()).adjusted(4, 2, -4, -2), Qt::AlignCenter,
                   caption().trimmed());
}

void OptionView::paintAsDot(QPainter& painter) {
    if (look().back && !look().transparent) painter.fillRect(rect(), *look().back);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor& ground = look().ground;
    const QRectF ring(1.5, (height() - ringSize) / 2 + 0.5, ringSize - 1, ringSize - 1);
    const QColor accent =
        isEnabled() ? QColor(0x25, 0x63, 0xeb) : blend(ground, textColourOn(ground), 0.3);
    QColor line = blend(ground, textColourOn(ground), isEnabled() ? 0.45 : 0.25);
    if (isEnabled() && underMouse()) line = accentOn(ground);
    const QColor hollow = blend(ground, isDark(ground) ? QColor(Qt::black) : QColor(Qt::white),
                                isDark(ground) ? 0.25 : 0.8);
    painter.setPen(QPen(isChecked() ? accent : line, 1));
    painter.setBrush(isChecked() ? accent : hollow);
    painter.drawEllipse(ring);
    if (isChecked()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isEnabled() ? QColor(Qt::white) : textColour());
        painter.drawEllipse(ring.center(), 2.75, 2.75);
    }
    if (marksFocus()) {
        drawFocusRing(painter, ring.adjusted(-2, -2, 2, 2), ringSize / 2 + 1.5, ground);
    }
    painter.setPen(textColour());
    drawFittedText(painter, QRectF(rect()).adjusted(ringSize + 7, 0, 0, 0),
                   Qt::AlignLeft | Qt::AlignVCenter, caption().trimmed());
}

}  // namespace desktop
