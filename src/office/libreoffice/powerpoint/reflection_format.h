#pragma once

#include "office/libreoffice/powerpoint/shape_part.h"

namespace libreoffice::powerpoint {

/// The reflection of a shape. LibreOffice draws none; it stands in the saved PowerPoint file.
class ReflectionFormat : public ShapePart<ReflectionFormat> {
public:
    using ShapePart::ShapePart;
    static const office::MemberTable<ReflectionFormat>& members();
};

}  // namespace libreoffice::powerpoint
