#include "desktop/label_view.h"

#include <utility>

#include "desktop/looks.h"
#include "desktop/painting.h"

namespace desktop {

LabelView::LabelView(forms::Label& label, QWidget& parent, ViewHost& host)
    : QLabel(&parent),
      ControlView(label, host),
      label_(label) {
    setTextFormat(Qt::PlainText);
}

bool LabelView::syncOwn() {
    return std::exchange(alignment_, label_.alignment) != label_.alignment;
}

void LabelView::lookChanged() {
    // What the base class would paint is painted here; it keeps the text for screen readers.
    setText(caption());
    // A tip has to find the mouse; otherwise the click is for whatever the text stands on.
    setAttribute(Qt::WA_TransparentForMouseEvents, look().toolTip.empty());
}

void LabelView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (look().back && !look().transparent) painter.fillRect(rect(), *look().back);
    painter.setPen(textColour());
    const Qt::Alignment across = alignmentOf(alignment_) & Qt::AlignHorizontal_Mask;
    drawFittedText(painter, rect(), across | Qt::AlignTop, caption());
}

}  // namespace desktop
