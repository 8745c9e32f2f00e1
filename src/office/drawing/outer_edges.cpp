#include "office/drawing/outer_edges.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace office::drawing {

namespace {

/// A data bar begins two pixels inside of its cell.
constexpr double farthestBegin = screenPixel;
/// Sides of fills that differ by less end with the same cell.
constexpr double closeEnough = 10;

}  // namespace

OuterEdges::OuterEdges(std::span<char> metafile, double width, double height)
    : metafile_(metafile),
      axes_{Axis{width, 2 * screenPixel, {}, {}, {}}, Axis{height, 3 * screenPixel, {}, {}, {}}} {}

void OuterEdges::take(Action action, const Values& content, std::size_t behind,
                      const Mapping& mapping) {
    if (mapping.scaleX != 1 || mapping.scaleY != 1) return;
    if (action == Action::Rectangle) {
        Values corners = content;
        for (int corner = 0; corner < 2; ++corner) {
            const Point point = nextPoint(corners, behind, mapping);
            for (std::size_t axis = 0; axis < axes_.size(); ++axis)
                axes_[axis].fills.push_back(point[axis]);
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
        const std::size_t along = 1 - axis;
        // A diagonal line is no border.
        if (start[axis].place != end[axis].place) continue;
        for (Coordinate each : {start[axis], end[axis]}) {
            each.halfWidth = halfWidth;
            axes_[axis].borders.push_back(each);
        }
        if (start[along].place < end[along].place)
            axes_[along].lengths.push_back({start[along], end[along]});
        else
            axes_[along].lengths.push_back({end[along], start[along]});
    }
}

void OuterEdges::mend() const {
    for (const Axis& axis : axes_) {
        if (axis.end < leastSide) continue;
        mendFills(axis);
        mendLengths(axis);
        mendBorders(axis);
    }
}

void OuterEdges::mendFills(const Axis& axis) const {
    double last = 0;
    for (const Coordinate& each : axis.fills) last = std::max(last, each.place);
    for (const Coordinate& each : axis.fills) {
        if (std::abs(each.place) <= farthestBegin) write(each, 0);
        if (axis.end - last <= axis.farthest && last - each.place < closeEnough)
            write(each, axis.end);
    }
}

void OuterEdges::mendLengths(const Axis& axis) const {
    for (const auto& [start, end] : axis.lengths) {
        // Dashes lie one behind the other.
        if (end.place - start.place <= axis.farthest) continue;
        if (std::abs(start.place) <= farthestBegin) write(start, 0);
        if (std::abs(axis.end - end.place) <= axis.farthest) write(end, axis.end);
    }
}

void OuterEdges::mendBorders(const Axis& axis) const {
    const auto shift = [&](double edge, double farthest, double inwards) {
        const auto isOuter = [&](const Coordinate& border) {
            return std::abs(border.place - edge) <= farthest;
        };
        // Inwards from the edge; less than 0 outside of it.
        double outermost = axis.end;
        double widest = 0;
        for (const Coordinate& border : axis.borders) {
            if (!isOuter(border)) continue;
            outermost = std::min(outermost, (border.place - edge) * inwards - border.halfWidth);
            widest = std::max(widest, 2 * border.halfWidth);
        }
        // Of a double border the inner line goes along.
        const double reach = outermost + std::max(widest, farthestBegin) * 3;
        for (const Coordinate& border : axis.borders) {
            if (outermost < axis.end && (border.place - edge) * inwards < reach)
                write(border, border.place - outermost * inwards);
        }
    };
    shift(0, farthestBegin + screenPixel / 2.0, 1);
    shift(axis.end, axis.farthest, -1);
}

void OuterEdges::write(const Coordinate& coordinate, double place) const {
    const auto number = static_cast<std::int32_t>(std::lround(place - coordinate.origin));
    std::memcpy(metafile_.last(coordinate.behind + sizeof number).data(), &number, sizeof number);
}

}  // namespace office::drawing
