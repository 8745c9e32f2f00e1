#include "office/libreoffice/powerpoint/shape_text.h"

#include <algorithm>

#include "office/failure.h"
#include "office/libreoffice/powerpoint/title_look.h"
#include "office/text.h"

namespace libreoffice::powerpoint {

namespace {

const uno::Reference<css::text::XText>& requiredText(HeldShape& shape) {
    const auto& text = shape.text();
    if (!text.is())
        throw office::Failure(office::FailureNumber::ApplicationDefined, "Shape.TextFrame",
                              "The shape holds no text");
    return text;
}

}  // namespace

std::string textOf(HeldShape& shape) {
    return fromParagraphs(requiredText(shape)->getString());
}

void setTextOf(HeldShape& shape, std::string_view text) {
    const auto& target = requiredText(shape);
    keepingCorner(shape, [&] { target->setString(toParagraphs(text)); });
    if (text.empty()) return;
    if (const auto look = shape.takeLook()) look->applyToText(shape);
}

std::string fromParagraphs(const rtl::OUString& text) {
    return fromUno(text.replace('\n', '\r'));
}

rtl::OUString toParagraphs(std::string_view text) {
    return toUno(office::replaceAll(office::replaceAll(text, "\r\n", "\n"), "\r", "\n"));
}

uno::Reference<css::text::XTextCursor> cursorOver(HeldShape& shape, const TextSpan& span) {
    // The cursor counts in 16 bits.
    constexpr std::int32_t longestStep = 0x7FFF;
    const auto cursor = requiredText(shape)->createTextCursor();
    const auto move = [&](std::int32_t count, bool expand) {
        for (std::int32_t left = count; left > 0; left -= longestStep)
            cursor->goRight(static_cast<sal_Int16>(std::min(left, longestStep)), expand);
    };
    cursor->gotoStart(false);
    move(span.start, false);
    move(span.length, true);
    return cursor;
}

void keepingCorner(HeldShape& shape, const std::function<void()>& change) {
    // A placeholder stays where the layout has it; once it is put somewhere it would no longer
    // follow the layout.
    if (shape.isPlaceholder()) return change();
    const css::awt::Point corner = shape.position();
    change();
    shape.shape()->setPosition(corner);
}

}  // namespace libreoffice::powerpoint
