#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <tuple>

namespace office::drawing {

/// What stands in for a font that isn't there, by LibreOffice's numbers of what it calls families.
enum class FontKind : std::uint16_t { Any = 0, Roman = 3, Swiss = 5 };

/// A font by its name.
struct NamedFont {
    std::string family;
    int weight = 400;
    bool isItalic = false;
    FontKind kind = FontKind::Any;

    bool operator<(const NamedFont& other) const {
        return std::tie(family, weight, isItalic, kind) <
               std::tie(other.family, other.weight, other.isItalic, other.kind);
    }
};

/// How wide texts are in the fonts that drawings come out in. For one thread.
class DrawnWidths {
public:
    DrawnWidths();
    DrawnWidths(const DrawnWidths&) = delete;
    DrawnWidths& operator=(const DrawnWidths&) = delete;
    ~DrawnWidths();

    /// Of a line, in shares of the font's size; none if no font here has all of its characters.
    [[nodiscard]] std::optional<double> of(const std::string& line, const NamedFont& font) const;

private:
    struct Context;
    std::unique_ptr<Context> context_;
};

}  // namespace office::drawing
