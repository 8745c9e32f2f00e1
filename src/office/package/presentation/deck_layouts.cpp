#include "office/package/presentation/deck_layouts.h"

#include <algorithm>
#include <array>

#include "office/package/part_name.h"
#include "office/text.h"

namespace office::package {

namespace {

/// A layout's number and its kind as its part says it.
struct LayoutKind {
    std::int32_t number;
    std::string_view type;
};

constexpr std::array<LayoutKind, 6> kinds = {{
    {powerpoint::layout::title, "title"},
    {powerpoint::layout::titleOnly, "titleOnly"},
    {powerpoint::layout::blank, "blank"},
    {powerpoint::layout::text, "tx"},
    {powerpoint::layout::object, "obj"},
    {powerpoint::layout::twoObjects, "twoObj"},
}};

/// By its kind alone.
std::int32_t kindNumberOf(const Xml& layout) {
    const std::string_view type = layout.root().attribute("type").value();
    const auto* const found = std::find_if(
        kinds.begin(), kinds.end(), [&](const LayoutKind& kind) { return kind.type == type; });
    return found != kinds.end() ? found->number : powerpoint::layout::other;
}

std::string layoutName(const Xml& layout) {
    return childNamed(layout.root(), ns::presentation, "cSld").attribute("name").value();
}

std::size_t titlesIn(const std::vector<Placeholder>& content) {
    return static_cast<std::size_t>(std::count_if(content.begin(), content.end(),
                                                  [](const auto& one) { return one.isTitle(); }));
}

/// How badly a layout of these placeholders serves for a number; the best is 0.
std::size_t misfit(std::int32_t number, const std::vector<Placeholder>& content) {
    const std::size_t titles = titlesIn(content);
    const std::size_t others = content.size() - titles;
    if (number == powerpoint::layout::blank) return content.size();
    const bool isTitleSlide =
        titles > 0 &&
        std::any_of(content.begin(), content.end(), [](auto& p) { return p.type == "ctrTitle"; });
    if (number == powerpoint::layout::title)
        return isTitleSlide ? 0 : 1 + (titles == 0 ? 100 : others);
    return (titles == 0 ? 100 : 0) + others;
}

}  // namespace

std::optional<Placeholder> placeholderOf(pugi::xml_node shape) {
    const auto inner = childNamed(firstElement(shape), ns::presentation, "nvPr");
    const pugi::xml_node found = childNamed(inner, ns::presentation, "ph");
    if (!found) return std::nullopt;
    return Placeholder{found.attribute("type").as_string("obj"),
                       found.attribute("idx").as_string("0")};
}

pugi::xml_node shapeTreeOf(const Xml& page) {
    return childNamed(childNamed(page.root(), ns::presentation, "cSld"), ns::presentation,
                      "spTree");
}

const Xml& DeckLayouts::page(const std::string& part) {
    auto& held = pages_[part];
    if (!held) held = std::make_unique<Xml>(package_.read(part), part);
    return *held;
}

std::string DeckLayouts::masterOf(const std::string& layout) {
    std::string master = package_.partOfType(layout, "slideMaster");
    if (master.empty())
        throw PackageError(Fault::Damaged, "its layout " + shown(layout) + " has no master");
    return master;
}

std::vector<std::string> DeckLayouts::layoutsOf(const std::string& master) {
    std::vector<std::string> found;
    const auto list = childNamed(page(master).root(), ns::presentation, "sldLayoutIdLst");
    for (const auto& entry : childrenNamed(list, ns::presentation, "sldLayoutId")) {
        const auto id = attributeNamed(entry, ns::relationships, "id");
        if (std::string part = package_.partOfId(master, id.value()); !part.empty())
            found.push_back(std::move(part));
    }
    return found;
}

std::vector<Placeholder> DeckLayouts::contentOf(const std::string& layout) {
    std::vector<Placeholder> found;
    for (const pugi::xml_node shape : shapeTreeOf(page(layout)).children()) {
        const auto placeholder = placeholderOf(shape);
        if (placeholder && !placeholder->isFoot()) found.push_back(*placeholder);
    }
    return found;
}

std::string DeckLayouts::firstOf(const std::string& master) {
    const auto layouts = layoutsOf(master);
    if (layouts.empty())
        throw PackageError(Fault::Damaged, "its master " + shown(master) + " has no layouts");
    return layouts.front();
}

std::string DeckLayouts::find(std::int32_t number, const std::string& neighbour) {
    const std::string master = masterOf(neighbour);
    std::string& found = found_[{number, master}];
    if (!found.empty()) return found;
    auto layouts = layoutsOf(master);
    // A master that lists none still has the one that is in use.
    if (layouts.empty()) layouts.push_back(neighbour);
    const auto where = [&](const auto& fits) {
        return std::find_if(layouts.begin(), layouts.end(), fits);
    };
    // What is a title layout by its kind may have lost its title.
    const auto suits = [&](const std::string& layout) {
        return number == powerpoint::layout::blank || titlesIn(contentOf(layout)) > 0;
    };
    auto chosen = where([&](const std::string& layout) {
        return kindNumberOf(page(layout)) == number && suits(layout);
    });
    if (chosen == layouts.end())
        chosen = where([&](const std::string& layout) {
            return sameIgnoringCase(layoutName(page(layout)), powerpoint::layout::nameOf(number)) &&
                   suits(layout);
        });
    if (chosen == layouts.end())
        chosen = std::min_element(layouts.begin(), layouts.end(), [&](auto& left, auto& right) {
            return misfit(number, contentOf(left)) < misfit(number, contentOf(right));
        });
    return found = *chosen;
}

std::int32_t DeckLayouts::numberOf(const std::string& layout) {
    const Xml& xml = page(layout);
    if (xml.root().attribute("type")) return kindNumberOf(xml);
    const std::string name = layoutName(xml);
    for (const std::int32_t given : powerpoint::layout::given) {
        if (sameIgnoringCase(name, powerpoint::layout::nameOf(given))) return given;
    }
    return powerpoint::layout::other;
}

std::vector<Placeholder> DeckLayouts::placeholdersFor(std::int32_t number,
                                                      const std::string& layout) {
    std::vector<Placeholder> wanted;
    if (number == powerpoint::layout::blank) return wanted;
    for (const Placeholder& placeholder : contentOf(layout)) {
        const bool isSubtitle = placeholder.type == "subTitle";
        if (placeholder.isTitle() || (number == powerpoint::layout::title && isSubtitle))
            wanted.push_back(placeholder);
    }
    if (titlesIn(wanted) == 0) wanted.push_back({"title", "0"});
    return wanted;
}

std::optional<Placeholder> DeckLayouts::placeFor(const Placeholder& placeholder,
                                                 const std::string& layout) {
    for (const pugi::xml_node shape : shapeTreeOf(page(layout)).children()) {
        auto other = placeholderOf(shape);
        if (other && (placeholder.isTitle() ? other->isTitle() : other->type == placeholder.type))
            return other;
    }
    return std::nullopt;
}

std::vector<pugi::xml_node> DeckLayouts::ancestorsOf(const Placeholder& placeholder,
                                                     const std::string& layout) {
    std::vector<pugi::xml_node> found;
    // A slide's placeholder is found on its layout by its place among them, the title by what it
    // is; on the master by what it is.
    const auto look = [&](const std::string& part, bool byIndex) {
        for (const pugi::xml_node shape : shapeTreeOf(page(part)).children()) {
            const auto other = placeholderOf(shape);
            if (!other) continue;
            const bool fits = placeholder.isTitle() ? other->isTitle()
                              : byIndex             ? other->index == placeholder.index
                              : placeholder.type == "subTitle" || placeholder.type == "obj"
                                  ? other->type == "body"
                                  : other->type == placeholder.type;
            if (!fits) continue;
            found.push_back(shape);
            return;
        }
    };
    look(layout, true);
    look(masterOf(layout), false);
    return found;
}

pugi::xml_node DeckLayouts::shownTextOf(const Placeholder& placeholder, const std::string& layout) {
    if (masterTextOf(&placeholder, layout)) return {};
    pugi::xml_node nearest;
    for (const auto& shape : ancestorsOf(placeholder, layout)) {
        const auto body = childNamed(shape, ns::presentation, "txBody");
        if (firstElement(childNamed(body, ns::drawing, "lstStyle"))) return {};
        if (!nearest) nearest = childNamed(body, ns::drawing, "p");
    }
    return nearest;
}

pugi::xml_node DeckLayouts::masterTextOf(const Placeholder* placeholder,
                                         const std::string& layout) {
    const auto styles = childNamed(page(masterOf(layout)).root(), ns::presentation, "txStyles");
    const char* const kind = placeholder == nullptr   ? "otherStyle"
                             : placeholder->isTitle() ? "titleStyle"
                                                      : "bodyStyle";
    return childNamed(childNamed(styles, ns::presentation, kind), ns::drawing, "lvl1pPr");
}

}  // namespace office::package
