#include "office/package/xml.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <set>
#include <utility>

#include "office/package/package.h"
#include "office/package/part_name.h"
#include "office/text.h"

namespace office::package {

namespace {

constexpr unsigned int keepEverything = pugi::parse_full | pugi::parse_ws_pcdata;
/// The deepest that Office itself reads.
constexpr int deepest = 256;
/// Namespaces are looked for in the attributes of each element above, which has to stay quick.
constexpr std::ptrdiff_t mostAttributes = 500;
/// What makes a node or an attribute of the tree, each of which takes up to 70 bytes twice.
constexpr std::ptrdiff_t mostMarks = 4'000'000;

constexpr std::array<std::pair<std::string_view, std::string_view>, 9> ownPrefixes = {{
    {"xmlns:p", ns::presentation},
    {"xmlns:a", ns::drawing},
    {"xmlns:r", ns::relationships},
    {"xmlns:w", ns::word},
    {"xmlns:wp", ns::wordDrawing},
    {"xmlns:pic", ns::picture},
    {"xmlns:c", ns::chart},
    {"xmlns:v", ns::vml},
    {"xmlns:o", ns::officeVml},
}};

/// The namespace that a prefix stands for at an element; of the empty one the default namespace.
std::string_view namespaceOf(pugi::xml_node at, std::string_view prefix) {
    const std::string declaration = prefix.empty() ? "xmlns" : fmt::format("xmlns:{}", prefix);
    for (; at; at = at.parent()) {
        if (const auto found = at.attribute(declaration.c_str())) return found.value();
    }
    return {};
}

std::pair<std::string_view, std::string_view> split(std::string_view qualified) {
    const auto colon = qualified.find(':');
    if (colon == std::string_view::npos) return {{}, qualified};
    return {qualified.substr(0, colon), qualified.substr(colon + 1)};
}

class Checker : public pugi::xml_tree_walker {
public:
    bool for_each(pugi::xml_node& node) override {
        hasDocumentType = hasDocumentType || node.type() == pugi::node_doctype;
        const auto attributes = node.attributes();
        isTooRich = depth() > deepest ||
                    std::distance(attributes.begin(), attributes.end()) > mostAttributes;
        return !hasDocumentType && !isTooRich;
    }

    bool hasDocumentType = false;
    bool isTooRich = false;
};

/// Whether an element and all in it are understood where they stand, and need no other part.
bool isIndependent(pugi::xml_node node) {
    const auto isKnown = [&](std::string_view prefix) {
        return node.type() != pugi::node_element || !namespaceOf(node, prefix).empty();
    };
    const auto attributes = node.attributes();
    return isKnown(split(node.name()).first) &&
           std::all_of(
               attributes.begin(), attributes.end(),
               [&](const pugi::xml_attribute& attribute) {
                   const auto prefix = split(attribute.name()).first;
                   return prefix.empty() || prefix == "xml" || prefix == "xmlns" ||
                          (isKnown(prefix) && namespaceOf(node, prefix) != ns::relationships);
               }) &&
           std::all_of(node.begin(), node.end(), isIndependent);
}

struct BytesWriter : pugi::xml_writer {
    void write(const void* data, size_t size) override {
        bytes.append(static_cast<const char*>(data), size);
    }
    std::string bytes;
};

/// The prefixes that an element and all in it are written with.
std::set<std::string_view> usedPrefixes(pugi::xml_node element) {
    std::set<std::string_view> used;
    const auto take = [&](pugi::xml_node node) {
        used.insert(split(node.name()).first);
        for (const pugi::xml_attribute attribute : node.attributes())
            used.insert(split(attribute.name()).first);
    };
    take(element);
    visitBelow(element, take);
    return used;
}

/// Declares the prefixes of an element that stands where its document has others or none.
void declarePrefixes(pugi::xml_node element) {
    const std::set<std::string_view> used = usedPrefixes(element);
    for (const auto& [declaration, space] : ownPrefixes) {
        const std::string_view prefix = split(declaration).second;
        if (used.contains(prefix) && namespaceOf(element, prefix) != space)
            element.append_attribute(std::string(declaration).c_str())
                .set_value(std::string(space).c_str());
    }
}

/// The name of an element here, in our own prefix where the document has none for it.
std::string nameAt(pugi::xml_node at, std::string_view space, std::string_view name) {
    if (namespaceOf(at, {}) == space) return std::string(name);
    for (pugi::xml_node node = at; node; node = node.parent()) {
        for (const pugi::xml_attribute attribute : node.attributes()) {
            const auto [kind, prefix] = split(attribute.name());
            if (kind == "xmlns" && space == attribute.value() && namespaceOf(at, prefix) == space)
                return fmt::format("{}:{}", prefix, name);
        }
    }
    const auto* own = std::find_if(ownPrefixes.begin(), ownPrefixes.end(),
                                   [&](const auto& prefix) { return prefix.second == space; });
    return fmt::format("{}:{}", split(own->first).second, name);
}

/// Where a name begins in a text that parts names by blanks; its end for one that isn't there.
std::size_t placeIn(std::string_view names, std::string_view name) {
    for (std::size_t at = 0; at < names.size();) {
        const auto end = std::min(names.find(' ', at), names.size());
        if (names.substr(at, end - at) == name) return at;
        at = end + 1;
    }
    return names.size();
}

}  // namespace

Xml::Xml(std::string_view bytes, std::string_view part) {
    if (std::count_if(bytes.begin(), bytes.end(), [](char c) { return c == '<' || c == '='; }) >
        mostMarks)
        throw PackageError(Fault::TooLarge,
                           fmt::format("its part {} holds too many elements", shown(part)));
    const auto result = document_.load_buffer(bytes.data(), bytes.size(), keepEverything);
    if (!result)
        throw PackageError(Fault::Damaged, fmt::format("its part {} is no XML ({})", shown(part),
                                                       result.description()));
    Checker checker;
    document_.traverse(checker);
    if (checker.hasDocumentType)
        throw PackageError(
            Fault::Damaged,
            fmt::format("its part {} has a document type, which none may", shown(part)));
    if (checker.isTooRich)
        throw PackageError(Fault::Damaged,
                           fmt::format("its part {} is nested as no document is", shown(part)));
    // Whatever it was read as, it is written as UTF-8.
    if (const auto encoding = document_.child("xml").attribute("encoding"))
        document_.first_child().attribute("encoding").set_value("UTF-8");
}

std::string Xml::bytes() const {
    BytesWriter writer;
    document_.save(writer, "", pugi::format_raw, pugi::encoding_utf8);
    return std::move(writer.bytes);
}

std::string_view localName(pugi::xml_node node) {
    return split(node.name()).second;
}

bool isNamed(pugi::xml_node node, std::string_view space, std::string_view name) {
    const auto [prefix, own] = split(node.name());
    return own == name && namespaceOf(node, prefix) == space;
}

pugi::xml_node firstElement(pugi::xml_node parent) {
    return parent.find_child(
        [](const pugi::xml_node& child) { return child.type() == pugi::node_element; });
}

pugi::xml_node childCalled(pugi::xml_node parent, std::string_view name) {
    return parent.find_child([&](const pugi::xml_node& child) { return localName(child) == name; });
}

pugi::xml_node childNamed(pugi::xml_node parent, std::string_view space, std::string_view name) {
    return parent.find_child(
        [&](const pugi::xml_node& child) { return isNamed(child, space, name); });
}

std::vector<pugi::xml_node> childrenNamed(pugi::xml_node parent, std::string_view space,
                                          std::string_view name) {
    std::vector<pugi::xml_node> found;
    for (const pugi::xml_node child : parent.children()) {
        if (isNamed(child, space, name)) found.push_back(child);
    }
    return found;
}

pugi::xml_attribute attributeNamed(pugi::xml_node node, std::string_view space,
                                   std::string_view name) {
    return node.find_attribute([&](const pugi::xml_attribute& attribute) {
        const auto [prefix, own] = split(attribute.name());
        return !prefix.empty() && own == name && namespaceOf(node, prefix) == space;
    });
}

pugi::xml_attribute attributeFor(pugi::xml_node node, const char* name) {
    const auto found = node.attribute(name);
    return found ? found : node.append_attribute(name);
}

std::string_view wordValue(pugi::xml_node node, std::string_view name) {
    return attributeNamed(node, ns::word, name).value();
}

void setWordValue(pugi::xml_node node, std::string_view name, const std::string& value) {
    auto attribute = attributeNamed(node, ns::word, name);
    if (!attribute) {
        const bool isUsual = namespaceOf(node, "w") == ns::word;
        std::string_view prefix = split(node.name()).first;
        if (isUsual || prefix.empty()) prefix = "w";
        attribute = node.append_attribute(fmt::format("{}:{}", prefix, name).c_str());
        declarePrefixes(node);
    }
    attribute.set_value(value.c_str());
}

bool isListed(std::string_view names, std::string_view name) {
    return placeIn(names, name) < names.size();
}

pugi::xml_node childInOrder(pugi::xml_node parent, std::string_view space, std::string_view name,
                            std::string_view order) {
    if (const auto found = childNamed(parent, space, name)) return found;
    const std::string qualified = nameAt(parent, space, name);
    const std::string_view later = order.substr(placeIn(order, name));
    const pugi::xml_node follower = parent.find_child(
        [&](const pugi::xml_node& child) { return isListed(later, localName(child)); });
    pugi::xml_node made = follower ? parent.insert_child_before(qualified.c_str(), follower)
                                   : parent.append_child(qualified.c_str());
    if (!isNamed(made, space, name)) declarePrefixes(made);
    return made;
}

pugi::xml_node insertMarkup(pugi::xml_node parent, const std::string& markup,
                            pugi::xml_node before) {
    pugi::xml_document fragment;
    fragment.load_buffer(markup.data(), markup.size(), keepEverything);
    const pugi::xml_node element = fragment.document_element();
    pugi::xml_node inserted =
        before ? parent.insert_copy_before(element, before) : parent.append_copy(element);
    declarePrefixes(inserted);
    return inserted;
}

pugi::xml_node adopt(pugi::xml_node parent, pugi::xml_node element) {
    pugi::xml_node copy = parent.append_copy(element);
    if (isIndependent(copy)) return copy;
    parent.remove_child(copy);
    return {};
}

void copyInto(pugi::xml_node from, pugi::xml_node to) {
    for (const pugi::xml_attribute attribute : from.attributes()) to.append_copy(attribute);
    for (const pugi::xml_node child : from.children()) to.append_copy(child);
}

std::string legible(std::string_view text) {
    std::string out;
    for (const auto& [bytes, code] : charactersOf(text)) {
        const bool isControl = code < 0x20 && code != '\t' && code != '\n' && code != '\r';
        const bool isStray = bytes.size() == 1 && code >= 0x80;
        // The only ones beside control characters.
        const bool isNone = code == 0xFFFE || code == 0xFFFF;
        if (!isControl && !isStray && !isNone) out += bytes;
    }
    return out;
}

}  // namespace office::package
