#pragma once

#include <cairo.h>

#include <functional>
#include <string>

namespace office::drawing {

/// Paints vectors over the whole of a picture of so many pixels, through a context that is not
/// scaled. `Failure` 1004 if that can't be done.
using Painting = std::function<void(cairo_t* context, double width, double height)>;

/// `Failure` 1004.
[[noreturn]] void failToDraw(const std::string& reason);

}  // namespace office::drawing
