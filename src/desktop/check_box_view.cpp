#include "desktop/check_box_view.h"

#include "desktop/painting.h"

namespace desktop {

namespace {

constexpr double markSize = 14;

Qt::CheckState stateOf(forms::CheckBox::State value) {
    switch (value) {
        case forms::CheckBox::State::Checked:
            return Qt::Checked;
        case forms::CheckBox::State::Grey:
            return Qt::PartiallyChecked;
        case forms::CheckBox::State::Unchecked:
            break;
    }
    return Qt::Unchecked;
}

Mark markOf(Qt::CheckState state) {
    if (state == Qt::Checked) return Mark::Tick;
    return state == Qt::PartiallyChecked ? Mark::Dash : Mark::None;
}

}  // namespace

CheckBoxView::CheckBoxView(forms::CheckBox& box, QWidget& parent, ViewHost& host)
    : QCheckBox(&parent),
      ControlView(box, host),
      box_(box) {
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
}

void CheckBoxView::nextCheckState() {
    tell([this] {
        using State = forms::CheckBox::State;
        box_.setValue(box_.value() == State::Unchecked ? State::Checked : State::Unchecked);
    });
}

bool CheckBoxView::syncOwn() {
    const Qt::CheckState wanted = stateOf(box_.value());
    if (checkState() == wanted) return false;
    setTristate(wanted == Qt::PartiallyChecked);
    setCheckState(wanted);
    return true;
}

void CheckBoxView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (look().back && !look().transparent) painter.fillRect(rect(), *look().back);
    const QRectF mark(1, (height() - markSize) / 2, markSize, markSize);
    drawCheckMark(painter, mark, markOf(checkState()), look().ground, isEnabled(), underMouse());
    if (marksFocus()) drawFocusRing(painter, mark.adjusted(-1, -1, 1, 1), 4, look().ground);
    painter.setPen(textColour());
    drawFittedText(painter, QRectF(rect()).adjusted(markSize + 7, 0, 0, 0),
                   Qt::AlignLeft | Qt::AlignVCenter, caption().trimmed());
}

}  // namespace desktop
