#pragma once

#include <optional>

#include "office/libreoffice/powerpoint/shape_part.h"
#include "office/libreoffice/powerpoint/shape_text.h"

namespace libreoffice::powerpoint {

/// The text of a shape, or some characters of it.
class TextRange : public ShapePart<TextRange> {
public:
    /// Without a span: the whole text, also when it changes.
    explicit TextRange(ShapeOfDocument whole, std::optional<TextSpan> span = std::nullopt)
        : ShapePart(std::move(whole)),
          span_(span) {}

    static const office::MemberTable<TextRange>& members();

private:
    office::Value text();
    void setText(const office::Value& text);
    office::Value length();
    office::Value characters(const office::CallArguments& arguments);
    office::Value font();

    std::optional<TextSpan> span_;
};

}  // namespace libreoffice::powerpoint
