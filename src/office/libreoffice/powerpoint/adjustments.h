#pragma once

#include "office/libreoffice/powerpoint/shape_part.h"

namespace libreoffice::powerpoint {

/// The adjustments of a shape's outline. A plain picture has none: writing one is `Failure` 9.
class Adjustments : public ShapePart<Adjustments> {
public:
    using ShapePart::ShapePart;
    static const office::MemberTable<Adjustments>& members();

private:
    office::Value item(const office::CallArguments& arguments);
    void setItem(const office::CallArguments& arguments, const office::Value& value);
};

}  // namespace libreoffice::powerpoint
