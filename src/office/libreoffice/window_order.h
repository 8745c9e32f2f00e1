#pragma once

#include <com/sun/star/frame/XController.hpp>

#include <cstdint>
#include <optional>
#include <vector>

#include "office/libreoffice/uno_values.h"

namespace libreoffice {

/// How the windows on the screen lie above each other. Empty where the system does not tell, as
/// without a screen or under Wayland.
class WindowOrder {
public:
    [[nodiscard]] static WindowOrder now();

    /// How many windows lie below that of a document; nothing if it has none on the screen.
    [[nodiscard]] std::optional<std::size_t> placeOf(
        const uno::Reference<css::frame::XController>& document) const;

    bool operator==(const WindowOrder&) const = default;

private:
    std::vector<std::uint32_t> fromLowest_;
};

}  // namespace libreoffice
