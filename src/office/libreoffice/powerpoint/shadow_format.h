#pragma once

#include "office/libreoffice/powerpoint/shape_part.h"

namespace libreoffice::powerpoint {

/// The shadow of a shape. Whatever is set of a shape that has none gives it one, straight behind
/// the shape at first.
class ShadowFormat : public ShapePart<ShadowFormat> {
public:
    using ShapePart::ShapePart;
    static const office::MemberTable<ShadowFormat>& members();

private:
    office::Value visible();
    void setVisible(const office::Value& on);
    office::Value size();
    void setSize(const office::Value& percent);
    office::Value transparency();
    void setTransparency(const office::Value& share);
    office::Value foreColor();
    void setColour(std::int32_t colour);

    void switchOn(double offsetPt);
    void switchOnBehind();
};

}  // namespace libreoffice::powerpoint
