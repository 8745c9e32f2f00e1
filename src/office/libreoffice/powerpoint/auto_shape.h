#pragma once

#include <cstdint>

#include "office/libreoffice/powerpoint/held_shape.h"

namespace libreoffice::powerpoint {

class ImpressDocument;

/// The outlines that matter here, by PowerPoint's numbers.
namespace outline {
inline constexpr std::int32_t rectangle = 1;
inline constexpr std::int32_t roundedRectangle = 5;
inline constexpr std::int32_t oval = 9;
/// Some other outline.
inline constexpr std::int32_t notPrimitive = 138;
}  // namespace outline

/// The outline of a shape. A picture's is a rectangle.
[[nodiscard]] std::int32_t outlineOf(HeldShape& shape);

/// Gives a shape another outline. `office::Failure` 5 for one other than the three, 1004 for a
/// shape that has no outline of its own: a chart, a table, a placeholder.
///
/// A picture of LibreOffice is always a rectangle. For another outline a shape of that outline,
/// filled with the picture, takes its place on the slide and in `shape`.
void setOutline(ImpressDocument& document, const HeldShapePtr& shape, std::int32_t outlineNumber);

/// The numbers that shape an outline: of a rounded rectangle its radius, as a share of its shorter
/// side. A plain picture has none.
[[nodiscard]] std::int32_t adjustmentCount(HeldShape& shape);
/// Both: `office::Failure` 9 for a place outside 1 to the count.
[[nodiscard]] double adjustment(HeldShape& shape, std::int32_t place);
void setAdjustment(HeldShape& shape, std::int32_t place, double value);

}  // namespace libreoffice::powerpoint
