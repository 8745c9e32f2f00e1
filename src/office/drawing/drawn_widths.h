#pragma once

#include <compare>
#include <memory>
#include <optional>
#include <string>

namespace office::drawing {

/// A font by its name.
struct NamedFont {
    std::string family;
    int weight = 400;
    bool isItalic = false;

    auto operator<=>(const NamedFont&) const = default;
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
