#include "office/colour.h"

#include <fmt/format.h>

#include <cstdlib>

namespace office {

std::string hexColour(std::int32_t colour) {
    return fmt::format("{:06X}", swapRedAndBlue(colour));
}

std::int32_t colourOfHex(const char* text) {
    return swapRedAndBlue(static_cast<std::int32_t>(std::strtol(text, nullptr, 16)));
}

std::string colourText(std::int32_t colour) {
    return fmt::format("#{:06x}", swapRedAndBlue(colour));
}

}  // namespace office
