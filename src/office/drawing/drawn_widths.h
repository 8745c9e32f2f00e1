#pragma once

#include <memory>
#include <optional>
#include <string>
#include <tuple>

namespace office::drawing {

/// A font by its name.
struct NamedFont {
    std::string family;
    int weight = 400;
    bool isItalic = false;

    bool operator<(const NamedFont& other) const {
        return std::tie(family, weight, isItalic) <
               std::tie(other.family, other.weight, other.isItalic);
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
