#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "office/size.h"

/// What the shapes of a slide look like. Colours are 0xBBGGRR, as the object models write them.
namespace office::model::powerpoint {

/// In points, from the slide's upper left corner.
struct Point {
    double left = 0;
    double top = 0;
};

/// The outlines that matter here, by PowerPoint's numbers.
enum class Outline : std::int32_t { Rectangle = 1, RoundedRectangle = 5, Other = 138 };

struct Shadow {
    bool isVisible = false;
    double blurPt = 0;
    /// Of the shape's own size.
    double sizePercent = 100;
    double offsetXPt = 0;
    double offsetYPt = 0;
    std::int32_t colour = 0;
};

struct Reflection {
    /// Between the shape and its mirror image.
    double offsetPt = 0;
    /// How much of the shape is mirrored; 0 is no reflection.
    double sizePercent = 0;
};

/// What changes of a font; the rest stays.
struct FontChange {
    std::optional<std::string> name;
    std::optional<double> sizePt;
    std::optional<std::int32_t> colour;
};

}  // namespace office::model::powerpoint
