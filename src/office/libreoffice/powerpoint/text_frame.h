#pragma once

#include "office/libreoffice/powerpoint/shape_part.h"

namespace libreoffice::powerpoint {

/// The text frame of a shape.
class TextFrame : public ShapePart<TextFrame> {
public:
    using ShapePart::ShapePart;
    static const office::MemberTable<TextFrame>& members();

private:
    office::Value wordWrap();
    void setWordWrap(const office::Value& on);
};

}  // namespace libreoffice::powerpoint
