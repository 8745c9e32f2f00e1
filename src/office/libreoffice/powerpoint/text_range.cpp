#include "office/libreoffice/powerpoint/text_range.h"

#include <com/sun/star/text/XTextCursor.hpp>

#include <algorithm>

#include "office/libreoffice/powerpoint/font.h"
#include "office/libreoffice/powerpoint/shape_text.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Value;

const office::MemberTable<TextRange>& TextRange::members() {
    static const auto table =
        office::MemberTable<TextRange>("TextRange")
            .property("Text", &TextRange::text, &TextRange::setText)
            .property("Length", &TextRange::length)
            .property("Characters", {"Start", "Length"}, &TextRange::characters)
            .property("Font", &TextRange::font)
            // The shape is selected already when its text is, and nothing asks for the caret.
            .method("Select", {}, [](TextRange&, const CallArguments&) { return Value(); });
    return table;
}

Value TextRange::text() {
    return span_ ? Value(fromParagraphs(cursorOver(shape(), *span_)->getString()))
                 : Value(textOf(shape()));
}

void TextRange::setText(const Value& text) {
    if (!span_) return setTextOf(shape(), text.toText());
    keepingCorner(shape(), [&] {
        const rtl::OUString words = toParagraphs(text.toText());
        cursorOver(shape(), *span_)->setString(words);
        span_->length = words.getLength();
    });
}

Value TextRange::length() {
    return toUno(text().toText()).getLength();
}

Value TextRange::characters(const CallArguments& arguments) {
    const std::int32_t all = length().toLong();
    const std::int32_t first = std::clamp(arguments.at(0, 1).toLong(), 1, all + 1);
    const std::int32_t count = std::clamp(arguments.at(1, all).toLong(), 0, all - first + 1);
    return makeObject<TextRange>(whole(), TextSpan{(span_ ? span_->start : 0) + first - 1, count});
}

Value TextRange::font() {
    return makeObject<Font>(whole(), span_);
}

}  // namespace libreoffice::powerpoint
