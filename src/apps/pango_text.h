#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "session/host.h"

namespace apps {

/// How much room a text takes: by Pango, in the fonts that Fontconfig finds, as most programs of
/// this platform draw it. What it has learnt of the fonts is kept, since that costs far more than
/// measuring.
class TextMeasure {
public:
    TextMeasure();

    [[nodiscard]] office::Size sizeOf(std::string_view text, const office::Font& font,
                                      std::optional<double> widthPt) const;

private:
    std::shared_ptr<void> fonts_;
    std::shared_ptr<void> context_;
};

}  // namespace apps
