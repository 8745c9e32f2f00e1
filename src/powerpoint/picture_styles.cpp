#include "powerpoint/picture_styles.h"

#include <array>
#include <cstddef>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

#include "office/failure_patterns.h"

namespace powerpoint {

namespace {

using office::Object;
using office::Value;
using session::PictureLook;

enum class Part { Itself, Shadow, ShadowColour, Reflection, FirstAdjustment };

struct Setting {
    Part part;
    std::string_view member;
    Value value;
};
using Look = std::vector<Setting>;

constexpr double shadowOffsetPt = 8.12132;
constexpr int roundedRectangle = 5;

const Look& lookOf(PictureLook look) {
    // By their numbers.
    static const std::array<Look, 6> looks = {{
        {},
        {
            {Part::Shadow, "Blur", 25},
            {Part::Shadow, "Size", 100},
            {Part::ShadowColour, "RGB", 0},
        },
        {
            {Part::Shadow, "Visible", 1},
            {Part::ShadowColour, "RGB", 0},
            {Part::Shadow, "Size", 100},
            {Part::Shadow, "OffsetX", shadowOffsetPt},
            {Part::Shadow, "OffsetY", shadowOffsetPt},
        },
        {
            {Part::Itself, "AutoShapeType", roundedRectangle},
            {Part::FirstAdjustment, "Item", 0.05},
        },
        {
            {Part::Reflection, "Offset", 1},
            {Part::Reflection, "Size", 20},
            {Part::FirstAdjustment, "Item", 0.03},
            {Part::Shadow, "Visible", 1},
        },
        // A plain picture has no corners to adjust until it has become a rounded rectangle: of the
        // two adjustments the later one makes the corners.
        {
            {Part::Reflection, "Offset", 1},
            {Part::Reflection, "Size", 20},
            {Part::FirstAdjustment, "Item", 0.03},
            {Part::Shadow, "Visible", 1},
            {Part::Itself, "AutoShapeType", roundedRectangle},
            {Part::FirstAdjustment, "Item", 0.05},
        },
    }};
    return looks.at(static_cast<std::size_t>(look));
}

/// A shape and those of its parts that settings have asked for, each looked up once.
class StyledShape {
public:
    explicit StyledShape(Object shape) : shape_(std::move(shape)) {}

    void apply(const Setting& setting) {
        if (setting.part == Part::FirstAdjustment) {
            partOf(setting.part).put(setting.member, 1, setting.value);
        } else {
            partOf(setting.part).put(setting.member, setting.value);
        }
    }

private:
    const Object& partOf(Part part) {
        if (part == Part::Itself) return shape_;
        Object& held = parts_[part];
        if (!held) held = lookUp(part);
        return held;
    }

    Object lookUp(Part part) {
        switch (part) {
            case Part::Shadow:
                return shape_.get("Shadow").toObject();
            case Part::ShadowColour:
                return partOf(Part::Shadow).get("ForeColor").toObject();
            case Part::Reflection:
                return shape_.get("Reflection").toObject();
            case Part::FirstAdjustment:
                return shape_.get("Adjustments").toObject();
            case Part::Itself:
                break;
        }
        return shape_;
    }

    Object shape_;
    std::map<Part, Object> parts_;
};

}  // namespace

void ApplyPictureStyle(PictureLook look, const Object& shape) {
    office::ContinueOnFailure scope;
    StyledShape styled(shape);
    for (const Setting& setting : lookOf(look)) {
        scope.attempt([&] { styled.apply(setting); });
    }
}

}  // namespace powerpoint
