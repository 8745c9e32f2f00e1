#include "office/libreoffice/excel/suite_svg.h"

#include <fmt/format.h>
#include <pugixml.hpp>

#include <algorithm>
#include <sstream>
#include <string_view>
#include <vector>

#include "office/package/xml.h"

namespace libreoffice::excel {

namespace {

using office::package::elementsBelow;

constexpr unsigned asWritten =
    pugi::parse_default | pugi::parse_ws_pcdata | pugi::parse_doctype | pugi::parse_declaration;

constexpr std::string_view rotation = "rotate(";
constexpr std::string_view opacity = "opacity: ";

bool is(const pugi::xml_node& node, std::string_view name) {
    return node.name() == name;
}

bool isEmptyGroup(const pugi::xml_node& node) {
    return is(node, "g") && !node.first_child();
}

bool isLostOpacity(const pugi::xml_node& node) {
    return isEmptyGroup(node) &&
           std::string_view(node.attribute("style").value()).starts_with(opacity);
}

pugi::xml_node nextElement(pugi::xml_node node) {
    do node = node.next_sibling();
    while (node && node.type() != pugi::node_element);
    return node;
}

bool isTurnedText(const pugi::xml_node& node) {
    return is(node, "text") &&
           std::string_view(node.attribute("transform").value()).starts_with(rotation);
}

pugi::xml_node placeOf(const pugi::xml_node& text) {
    return text.find_node([](const pugi::xml_node& node) { return node.attribute("x"); });
}

/// The exporter turns a text around the place of the one before it.
void turnAroundItself(const pugi::xml_node& text) {
    pugi::xml_attribute transform = text.attribute("transform");
    const std::string_view written = transform.value();
    const pugi::xml_node place = placeOf(text);
    const std::size_t end = written.find(' ');
    if (end == std::string_view::npos || !place) return;
    transform.set_value(fmt::format("{} {} {})", written.substr(0, end),
                                    place.attribute("x").value(), place.attribute("y").value())
                            .c_str());
}

/// The exporter closes the group of what is seen through as soon as it is clipped, so that it holds
/// nothing. What it should hold is known only if that has one clip and no other.
void giveBack(pugi::xml_node group) {
    pugi::xml_node content = nextElement(group);
    if (is(content, "defs")) content = nextElement(content);
    const pugi::xml_node after = nextElement(content);
    if (!is(content, "g") || !content.attribute("clip-path") || content.child("g")) return;
    if (after && !(isEmptyGroup(after) && after.attribute("clip-path"))) return;
    content.append_attribute("style").set_value(group.attribute("style").value());
    group.parent().remove_child(group);
}

bool isClipped(const pugi::xml_node& node) {
    return is(node, "g") && node.attribute("clip-path");
}

bool isClip(const pugi::xml_node& node) {
    return is(node, "clipPath");
}

/// A clip along the edges of the page cuts nothing off, and has every text of a table drawn through
/// a mask.
void dropClipsOfPage(pugi::xml_document& document, const SuiteSvg& page) {
    const std::string outline =
        fmt::format("M 0,0 L {0},0 {0},{1} 0,{1} 0,0 Z ", page.pageWidth, page.pageHeight);
    std::vector<std::string> ofPage;
    for (const pugi::xml_node& clip : elementsBelow(document, isClip)) {
        const pugi::xml_node path = clip.child("path");
        if (outline == path.attribute("d").value() && !nextElement(path))
            ofPage.push_back(fmt::format("url(#{})", clip.attribute("id").value()));
    }
    for (pugi::xml_node& group : elementsBelow(document, isClipped)) {
        if (std::find(ofPage.begin(), ofPage.end(), group.attribute("clip-path").value()) !=
            ofPage.end())
            group.remove_attribute("clip-path");
    }
}

}  // namespace

std::string mended(const SuiteSvg& page) {
    pugi::xml_document document;
    if (!document.load_buffer(page.text.data(), page.text.size(), asWritten)) return {};
    pugi::xml_node svg = document.child("svg");
    const auto set = [&](const char* name, const std::string& value) {
        pugi::xml_attribute attribute = svg.attribute(name);
        if (!attribute) attribute = svg.append_attribute(name);
        attribute.set_value(value.c_str());
    };
    if (!svg) return {};
    // The exporter gives the extent in whole millimetres.
    set("width", fmt::format("{}mm", page.widthMm));
    set("height", fmt::format("{}mm", page.heightMm));
    set("viewBox", fmt::format("0 0 {} {}", page.pageWidth, page.pageHeight));
    set("preserveAspectRatio", "none");
    // What has no width of its own inherits this one.
    set("stroke-width", fmt::format("{:.3f}", page.hairline));
    for (const pugi::xml_node& text : elementsBelow(document, isTurnedText)) turnAroundItself(text);
    for (const pugi::xml_node& group : elementsBelow(document, isLostOpacity)) giveBack(group);
    dropClipsOfPage(document, page);
    std::ostringstream written;
    document.save(written, "", pugi::format_raw);
    return written.str();
}

}  // namespace libreoffice::excel
