#pragma once

#include <com/sun/star/text/XTextCursor.hpp>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "office/libreoffice/powerpoint/held_shape.h"

namespace libreoffice::powerpoint {

/// The text of a shape with carriage returns between paragraphs, as the object models have it.
/// `office::Failure` 1004 for a shape that holds no text.
[[nodiscard]] std::string textOf(HeldShape& shape);
void setTextOf(HeldShape& shape, std::string_view text);

[[nodiscard]] std::string fromParagraphs(const rtl::OUString& text);
[[nodiscard]] rtl::OUString toParagraphs(std::string_view text);

/// A run of characters in a shape's text, from 0.
struct TextSpan {
    std::int32_t start = 0;
    std::int32_t length = 0;
};
/// `office::Failure` 1004 for a shape that holds no text.
[[nodiscard]] uno::Reference<css::text::XTextCursor> cursorOver(HeldShape& shape,
                                                                const TextSpan& span);

/// Runs a change that makes a shape grow or shrink with its text. LibreOffice grows it to all
/// sides, PowerPoint from its left top corner: the corner is put back where it was.
void keepingCorner(HeldShape& shape, const std::function<void()>& change);

}  // namespace libreoffice::powerpoint
