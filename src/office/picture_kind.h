#pragma once

#include <optional>
#include <string_view>

namespace office {

/// The kinds of picture files that applications hand to each other.
enum class PictureKind {
    Png,
    /// Vectors that browsers read. A program that does not know them shows a PNG in their place.
    Svg,
    /// The vectors of Windows.
    Emf
};

/// "PNG", "svg", ...: as filters are called and files end, without the point. None for other
/// words.
[[nodiscard]] std::optional<PictureKind> pictureKindCalled(std::string_view name);

/// How files of the kind end: ".svg".
[[nodiscard]] const char* endingOf(PictureKind kind);

}  // namespace office
