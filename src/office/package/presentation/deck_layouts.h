#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "office/model/powerpoint/deck_slide.h"
#include "office/package/package.h"
#include "office/package/xml.h"

namespace office::package {

namespace powerpoint = model::powerpoint;

/// A placeholder as its shape names it: what it is for, and which of several.
struct Placeholder {
    std::string type;
    std::string index;

    [[nodiscard]] bool isTitle() const { return type == "title" || type == "ctrTitle"; }
    /// Date, footer, number: what a new slide does without.
    [[nodiscard]] bool isFoot() const {
        return type == "dt" || type == "ftr" || type == "sldNum" || type == "hdr";
    }
};

/// The placeholder that a shape is; nothing for any other shape.
[[nodiscard]] std::optional<Placeholder> placeholderOf(pugi::xml_node shape);
/// The tree of shapes of a slide, a layout or a master.
[[nodiscard]] pugi::xml_node shapeTreeOf(const Xml& page);

/// The layouts and masters of a deck, as far as slides need them.
class DeckLayouts {
public:
    explicit DeckLayouts(Package& package) : package_(package) {}

    /// The layout of PowerPoint's number for a new slide, among those of the master that the layout
    /// `neighbour` has; its part. By its kind, by its English name, or else by its placeholders.
    /// `PackageError` Damaged if the master has none at all.
    [[nodiscard]] std::string find(std::int32_t number, const std::string& neighbour);
    /// The first layout of a master.
    [[nodiscard]] std::string firstOf(const std::string& master);
    /// PowerPoint's number of a layout.
    [[nodiscard]] std::int32_t numberOf(const std::string& layout);
    /// What a new slide of this layout holds: a title in any case, unless it is to be blank.
    [[nodiscard]] std::vector<Placeholder> placeholdersFor(std::int32_t number,
                                                           const std::string& layout);
    /// The layout's own placeholder of this kind; nothing if it has none.
    [[nodiscard]] std::optional<Placeholder> placeFor(const Placeholder& placeholder,
                                                      const std::string& layout);
    /// The shapes that a placeholder inherits from, the nearest first: on the layout, on its
    /// master.
    [[nodiscard]] std::vector<pugi::xml_node> ancestorsOf(const Placeholder& placeholder,
                                                          const std::string& layout);
    /// The paragraph that shows on the layout what a placeholder's text looks like, where nothing
    /// else says it: some makers put the look of their titles there alone, and what isn't a style
    /// is not inherited. Null if a style says it.
    [[nodiscard]] pugi::xml_node shownTextOf(const Placeholder& placeholder,
                                             const std::string& layout);
    /// The master's texts of titles, bodies and others: the properties of their first level.
    [[nodiscard]] pugi::xml_node masterTextOf(const Placeholder* placeholder,
                                              const std::string& layout);

private:
    [[nodiscard]] const Xml& page(const std::string& part);
    [[nodiscard]] std::string masterOf(const std::string& layout);
    [[nodiscard]] std::vector<std::string> layoutsOf(const std::string& master);
    [[nodiscard]] std::vector<Placeholder> contentOf(const std::string& layout);

    Package& package_;
    std::map<std::string, std::unique_ptr<Xml>> pages_;
    std::map<std::pair<std::int32_t, std::string>, std::string> found_;
};

}  // namespace office::package
