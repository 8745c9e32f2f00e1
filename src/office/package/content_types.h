#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace office::package {

/// Which part is of which type: by its own entry, or else by its extension.
class ContentTypes {
public:
    /// From the XML that says so. `PackageError` Damaged.
    explicit ContentTypes(std::string xml);

    /// Empty for a part without one.
    [[nodiscard]] std::string of(std::string_view part) const;
    /// By an entry of the part's own unless its extension says the same.
    void set(std::string_view part, std::string_view type);
    /// By its extension where that has no type yet, else as `set`.
    void setByExtension(std::string_view part, std::string_view type);
    void remove(std::string_view part);

    [[nodiscard]] bool isChanged() const { return isChanged_; }
    /// The XML again, by the smallest edit of what it was read as.
    [[nodiscard]] std::string xml() const;

private:
    using Types = std::unordered_map<std::string, std::string>;

    std::string xml_;
    Types byExtension_;
    /// By the key of the part.
    Types byPart_;
    std::vector<std::string> newExtensions_;
    std::vector<std::string> newParts_;
    bool isChanged_ = false;
};

}  // namespace office::package
