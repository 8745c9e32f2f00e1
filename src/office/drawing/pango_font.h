#pragma once

#include <pango/pangocairo.h>

#include <memory>

#include "office/drawing/drawn_widths.h"
#include "office/drawing/released_by.h"

namespace office::drawing {

using PangoFontOwned =
    std::unique_ptr<PangoFontDescription, ReleasedBy<&pango_font_description_free>>;

/// What Pango finds a font by; the size is in pixels.
[[nodiscard]] PangoFontOwned pangoFontOf(const NamedFont& font, double size);

}  // namespace office::drawing
