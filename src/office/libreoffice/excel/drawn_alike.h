#pragma once

#include <string_view>

namespace libreoffice::excel {

/// Whether an SVG of the suite's looks the same when the drawing room draws it.
[[nodiscard]] bool isDrawnAlike(std::string_view svg);

}  // namespace libreoffice::excel
