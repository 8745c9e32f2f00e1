#include "office/drawing/outer_edges.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace office::drawing {

namespace {

// A data bar keeps two pixels from the edges of its cell.
constexpr double farthestBegin = 40;
constexpr double farthestEnd = 80;
/// The inner one of two lines is still part of the border.
constexpr double farthestBorder = 130;

}  // namespace

void OuterEdges::take(Action action, const Values& content, std::size_t behind,
                      const Mapping& mapping) {
    if (mapping.scaleX != 1 || mapping.scaleY != 1) return;
    if (action == Action::Rectangle) {
        Values corners = content;
        for (int corner = 0; corner < 2; ++corner) {
            const Point point = nextPoint(corners, behind, mapping);
            for (std::size_t axis = 0; axis < axes_.size(); ++axis)
                noteOther(axes_[axis], point[axis]);
        }
    } else if (action == Action::PolyLine) {
        takeLine(content, behind, mapping);
    }
}

OuterEdges::Point OuterEdges::nextPoint(Values& values, std::size_t behind,
                                        const Mapping& mapping) {
    Point point;
    const std::array origins = {mapping.originX, mapping.originY};
    for (std::size_t axis = 0; axis < point.size(); ++axis) {
        const double place = values.number() + origins[axis];
        point[axis] = {.behind = values.left() + behind, .place = place, .origin = origins[axis]};
    }
    return point;
}

void OuterEdges::takeLine(Values content, std::size_t behind, const Mapping& mapping) {
    constexpr std::uint16_t ends = 2;
    if (content.word() != ends) return;
    const Point start = nextPoint(content, behind, mapping);
    const Point end = nextPoint(content, behind, mapping);
    const double halfWidth = readPen(content.part(), {}, 1).width / 2;
    for (std::size_t axis = 0; axis < axes_.size(); ++axis) {
        const std::size_t other = 1 - axis;
        for (Coordinate each : {start[axis], end[axis]}) {
            each.halfWidth = halfWidth;
            // A diagonal line is no border.
            if (start[axis].place == end[axis].place)
                noteBorder(axes_[axis], each);
            else if (start[other].place == end[other].place)
                noteOther(axes_[axis], each);
        }
    }
}

void OuterEdges::noteBorder(Axis& axis, const Coordinate& coordinate) {
    if (std::abs(coordinate.place) < farthestBorder)
        axis.first.borders.push_back(coordinate);
    else if (std::abs(axis.end - coordinate.place) < farthestBorder)
        axis.last.borders.push_back(coordinate);
}

void OuterEdges::noteOther(Axis& axis, const Coordinate& coordinate) {
    if (std::abs(coordinate.place) < farthestBegin)
        axis.first.others.push_back(coordinate);
    else if (std::abs(axis.end - coordinate.place) < farthestEnd)
        axis.last.others.push_back(coordinate);
}

void OuterEdges::mend() const {
    for (const auto& [end, first, last] : axes_) {
        for (const Coordinate& each : first.others) write(each, 0);
        for (const Coordinate& each : last.others) write(each, end);
        double begins = end;
        for (const Coordinate& each : first.borders)
            begins = std::min(begins, each.place - each.halfWidth);
        for (const Coordinate& each : first.borders) write(each, each.place - begins);
        double ends = 0;
        for (const Coordinate& each : last.borders)
            ends = std::max(ends, each.place + each.halfWidth);
        for (const Coordinate& each : last.borders) write(each, each.place + end - ends);
    }
}

void OuterEdges::write(const Coordinate& coordinate, double place) const {
    const auto number = static_cast<std::int32_t>(std::lround(place - coordinate.origin));
    std::memcpy(metafile_.last(coordinate.behind + sizeof number).data(), &number, sizeof number);
}

}  // namespace office::drawing
