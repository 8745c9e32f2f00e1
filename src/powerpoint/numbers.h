#pragma once

#include <cstdint>

/// PowerPoint's own numbers for what several routes to a slide ask of it.
namespace powerpoint::number {

/// `Slide.Layout`.
constexpr std::int32_t titleLayout = 1;
constexpr std::int32_t titleOnlyLayout = 11;
constexpr std::int32_t blankLayout = 12;

/// What `Shapes.PasteSpecial` pastes the clipboard as.
constexpr std::int32_t defaultData = 0;
constexpr std::int32_t enhancedMetafile = 2;
constexpr std::int32_t png = 6;
constexpr std::int32_t oleObject = 10;

}  // namespace powerpoint::number
