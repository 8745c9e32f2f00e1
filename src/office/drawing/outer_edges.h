#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "office/drawing/metafile_action.h"
#include "office/drawing/metafile_parts.h"

namespace office::drawing {

/// In hundredths of a millimetre.
inline constexpr std::int32_t screenPixel = 26;
/// What is less wide or high has no room for an edge on each side.
inline constexpr std::int32_t leastSide = 10 * screenPixel;

/// The outer edges of the fills and borders in a metafile of cells. LibreOffice places them by
/// whole pixels of the screen: at the left and the top half of a border lies outside of the
/// picture, at the right and the bottom both end up to three pixels early, fills ahead of borders.
class OuterEdges {
public:
    /// What is to be put right, and the size of the picture in it, in hundredths of a millimetre.
    OuterEdges(std::span<char> metafile, double width, double height);

    /// Notes a rectangle or a straight line. `behind` is what follows the content.
    void take(Action action, const Values& content, std::size_t behind, const Mapping& mapping);
    /// Leads what was noted to the edges of the picture: fills right there, borders beside them.
    /// What lies further inside stays, as does all of a picture of a few pixels.
    void mend() const;

private:
    struct Coordinate {
        /// What follows it.
        std::size_t behind = 0;
        double place = 0;
        double origin = 0;
        /// Of the border that lies there.
        double halfWidth = 0;
    };
    /// Across and down.
    using Point = std::array<Coordinate, 2>;
    struct Axis {
        double end = 0;
        /// How far from the end what belongs there may lie.
        double farthest = 0;
        std::vector<Coordinate> fills;
        std::vector<Coordinate> borders;
        /// Both ends of borders along other edges.
        std::vector<std::array<Coordinate, 2>> lengths;
    };

    static Point nextPoint(Values& values, std::size_t behind, const Mapping& mapping);
    void takeLine(Values content, std::size_t behind, const Mapping& mapping);
    void mendFills(const Axis& axis) const;
    void mendLengths(const Axis& axis) const;
    void mendBorders(const Axis& axis) const;
    void write(const Coordinate& coordinate, double place) const;

    std::span<char> metafile_;
    std::array<Axis, 2> axes_;
};

}  // namespace office::drawing
