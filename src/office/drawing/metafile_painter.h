#pragma once

#include <string>

#include "office/drawing/painting.h"

namespace office::drawing {

/// As LibreOffice itself draws a metafile on a screen of so many pixels. `Failure` 1004 for one
/// that is damaged, or holds what can't be drawn (`Metafile::unknown`).
[[nodiscard]] Painting paintingOfMetafile(const std::string& metafile);

}  // namespace office::drawing
