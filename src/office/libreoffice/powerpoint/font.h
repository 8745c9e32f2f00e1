#pragma once

#include <optional>

#include "office/libreoffice/powerpoint/shape_part.h"
#include "office/libreoffice/powerpoint/shape_text.h"

namespace libreoffice::powerpoint {

/// The font of a shape's text, or of some characters of it.
class Font : public ShapePart<Font> {
public:
    explicit Font(ShapeOfDocument whole, std::optional<TextSpan> span)
        : ShapePart(std::move(whole)),
          span_(span) {}

    static const office::MemberTable<Font>& members();

private:
    office::Value name();
    void setName(const office::Value& name);
    office::Value size();
    void setSize(const office::Value& points);
    office::Value bold();
    void setBold(const office::Value& on);
    office::Value color();
    void setColor(const office::Value& colour);

    /// What carries the character properties: the shape for all of its text, else a cursor.
    [[nodiscard]] uno::Reference<css::beans::XPropertySet> carrier();
    template <class Type>
    [[nodiscard]] Type valueOf(const char* property);
    template <class Type>
    void setValue(const char* property, const Type& value);

    std::optional<TextSpan> span_;
};

}  // namespace libreoffice::powerpoint
