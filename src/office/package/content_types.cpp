#include "office/package/content_types.h"

#include <algorithm>
#include <unordered_set>

#include "office/package/package.h"
#include "office/package/part_name.h"
#include "office/package/xml.h"

namespace office::package {

namespace {

constexpr std::string_view space = "http://schemas.openxmlformats.org/package/2006/content-types";
constexpr std::string_view ownPart = "/[Content_Types].xml";

/// Some makers leave the first slash out.
std::string keyOf(std::string_view name) {
    return partKey(name.starts_with('/') ? std::string(name) : "/" + std::string(name));
}

/// In the prefix of the root.
pugi::xml_node append(pugi::xml_node root, const char* name) {
    const std::string types = root.name();
    return root.append_child((types.substr(0, types.size() - 5) + name).c_str());
}

}  // namespace

ContentTypes::ContentTypes(std::string xml) : xml_(std::move(xml)) {
    const Xml document(xml_, ownPart);
    if (!isNamed(document.root(), space, "Types"))
        throw PackageError(Fault::Damaged, "its content types are of an unknown kind");
    for (const pugi::xml_node node : document.root().children()) {
        const std::string type = node.attribute("ContentType").value();
        if (isNamed(node, space, "Default")) {
            byExtension_.try_emplace(partKey(node.attribute("Extension").value()), type);
        } else if (isNamed(node, space, "Override")) {
            byPart_.try_emplace(keyOf(node.attribute("PartName").value()), type);
        }
    }
}

std::string ContentTypes::of(std::string_view part) const {
    if (const auto own = byPart_.find(partKey(part)); own != byPart_.end()) return own->second;
    const auto common = byExtension_.find(extensionOf(part));
    return common == byExtension_.end() ? std::string() : common->second;
}

void ContentTypes::set(std::string_view part, std::string_view type) {
    if (of(part) == type) return;
    const auto [own, isNew] = byPart_.insert_or_assign(partKey(part), std::string(type));
    if (isNew) newParts_.emplace_back(part);
    isChanged_ = true;
}

void ContentTypes::setByExtension(std::string_view part, std::string_view type) {
    const std::string extension = extensionOf(part);
    if (!extension.empty() && byExtension_.try_emplace(extension, type).second) {
        newExtensions_.push_back(extension);
        isChanged_ = true;
    }
    set(part, type);
}

void ContentTypes::remove(std::string_view part) {
    const std::string key = partKey(part);
    if (byPart_.erase(key) == 0) return;
    std::erase_if(newParts_, [&](const std::string& one) { return partKey(one) == key; });
    isChanged_ = true;
}

std::string ContentTypes::xml() const {
    if (!isChanged_) return xml_;
    const Xml document(xml_, ownPart);
    pugi::xml_node root = document.root();
    std::unordered_set<std::string> written;
    keepChildren(root, [&](pugi::xml_node node) {
        if (!isNamed(node, space, "Override")) return true;
        const std::string key = keyOf(node.attribute("PartName").value());
        written.insert(key);
        const auto own = byPart_.find(key);
        if (own == byPart_.end()) return false;
        if (own->second != node.attribute("ContentType").value())
            attributeFor(node, "ContentType").set_value(own->second.c_str());
        return true;
    });
    for (const std::string& extension : newExtensions_) {
        pugi::xml_node node = append(root, "Default");
        node.append_attribute("Extension").set_value(extension.c_str());
        node.append_attribute("ContentType").set_value(byExtension_.at(extension).c_str());
    }
    for (const std::string& name : newParts_) {
        if (!written.insert(partKey(name)).second) continue;
        pugi::xml_node node = append(root, "Override");
        node.append_attribute("PartName").set_value(name.c_str());
        node.append_attribute("ContentType").set_value(byPart_.at(partKey(name)).c_str());
    }
    return document.bytes();
}

}  // namespace office::package
