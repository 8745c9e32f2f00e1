#include "desktop/text_box_view.h"

#include <utility>

#include "desktop/looks.h"
#include "desktop/painting.h"

namespace desktop {

TextBoxView::TextBoxView(forms::TextBox& box, QWidget& parent, ViewHost& host)
    : QLineEdit(&parent),
      ControlView(box, host),
      box_(box) {
    setFrame(false);
    setTextMargins(5, 0, 5, 0);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& typed) {
        tell([this, text = textOf(typed)] { box_.setText(text); });
    });
}

bool TextBoxView::syncOwn() {
    if (const QString wanted = textOf(box_.text()); text() != wanted) {
        const int cursor = cursorPosition();
        setText(wanted);
        // A text that the form has mended under the typist's hands leaves the cursor with him; one
        // that has come from elsewhere is read from its beginning.
        setCursorPosition(hasFocus() ? std::min(cursor, static_cast<int>(wanted.size())) : 0);
    }
    setReadOnly(box_.readOnly);
    const Qt::Alignment wanted = alignmentOf(box_.alignment);
    if (alignment() != wanted) setAlignment(wanted);
    return std::exchange(hasBorder_, box_.hasBorder) != box_.hasBorder;
}

void TextBoxView::lookChanged() {
    const QColor ground = look().back.value_or(QColor(Qt::white));
    const QColor ink = look().fore.value_or(textColourOn(ground));
    QPalette colours = palette();
    colours.setColor(QPalette::Base, Qt::transparent);
    colours.setColor(QPalette::Text, ink);
    colours.setColor(QPalette::Disabled, QPalette::Text, blend(ground, ink, 0.45));
    colours.setColor(QPalette::PlaceholderText, blend(ground, ink, 0.5));
    colours.setColor(QPalette::Highlight, QColor(0x25, 0x63, 0xeb));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    setPalette(colours);
}

void TextBoxView::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        const QColor ground = look().back.value_or(QColor(Qt::white));
        const QColor line = hasBorder_ ? blend(ground, textColourOn(ground), 0.28) : ground;
        drawPlate(painter, rect(), hasBorder_ ? 3 : 0, ground, line);
        if (hasFocus() && !isReadOnly()) drawFocusRing(painter, rect(), 3, ground);
    }
    QLineEdit::paintEvent(event);
}

}  // namespace desktop
