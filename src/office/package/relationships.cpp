#include "office/package/relationships.h"

#include <fmt/format.h>

#include <algorithm>

#include "office/package/package.h"
#include "office/package/part_name.h"
#include "office/package/xml.h"

namespace office::package {

namespace {

constexpr std::string_view relationshipsSpace =
    "http://schemas.openxmlformats.org/package/2006/relationships";
constexpr std::string_view transitional =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
constexpr std::string_view strict = "http://purl.oclc.org/ooxml/officeDocument/relationships/";
constexpr std::string_view none =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
    "<Relationships "
    "xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\"></Relationships>";

/// The transitional address of a type, however it is named.
std::string fullType(std::string_view type) {
    if (type.starts_with(strict)) type.remove_prefix(strict.size());
    const bool isFull = type.find(':') != std::string_view::npos;
    return isFull ? std::string(type) : fmt::format("{}{}", transitional, type);
}

}  // namespace

Relationships::Relationships(std::string source, std::string_view xml)
    : source_(std::move(source)),
      xml_(xml.empty() ? none : xml) {
    const std::string part = relationshipsPartOf(source_);
    const Xml document(xml_, part);
    if (!isNamed(document.root(), relationshipsSpace, "Relationships"))
        throw PackageError(Fault::Damaged,
                           fmt::format("its part {} holds no relationships", shown(part)));
    for (const pugi::xml_node node : document.root().children()) {
        if (!isNamed(node, relationshipsSpace, "Relationship")) continue;
        Relationship found{node.attribute("Id").value(), node.attribute("Type").value(),
                           node.attribute("Target").value(),
                           std::string_view(node.attribute("TargetMode").value()) == "External"};
        // Of two with one id the first counts, as in the programs that read such files at all.
        ids_.insert(found.id);
        places_.try_emplace(found.id, all_.size());
        byDestination_.try_emplace(destinationOf(found), found.id);
        all_.push_back(std::move(found));
    }
}

const Relationship* Relationships::withId(std::string_view id) const {
    const auto found = places_.find(std::string(id));
    return found == places_.end() ? nullptr : &all_[found->second];
}

const Relationship* Relationships::ofType(std::string_view type) const {
    const std::string full = fullType(type);
    const auto found = std::find_if(all_.begin(), all_.end(), [&](const Relationship& one) {
        return fullType(one.type) == full;
    });
    return found == all_.end() ? nullptr : &*found;
}

std::string Relationships::partOf(const Relationship& relationship) const {
    if (relationship.isExternal)
        throw PackageError(Fault::Damaged, fmt::format("a relationship of {} leads out of the file",
                                                       shown(source_)));
    return partOfTarget(source_, relationship.target);
}

/// Empty for one that leads out or nowhere.
std::string Relationships::destinationOf(const Relationship& relationship) const {
    try {
        return fmt::format("{} {}", fullType(relationship.type), partKey(partOf(relationship)));
    } catch (const PackageError&) {
        return {};
    }
}

std::string Relationships::freeId() {
    std::string id;
    do {
        id = fmt::format("rId{}", ++lastNumber_);
    } while (ids_.contains(id));
    return id;
}

std::string Relationships::add(std::string_view type, std::string_view part) {
    const Relationship added{{}, fullType(type), targetOf(source_, part), false};
    const std::string destination = destinationOf(added);
    if (const auto found = byDestination_.find(destination); found != byDestination_.end())
        return found->second;
    byDestination_.emplace(destination, append(added));
    return all_.back().id;
}

std::string Relationships::addExternal(std::string_view type, const std::string& address) {
    return append({{}, fullType(type), address, true});
}

std::string Relationships::append(Relationship added) {
    added.id = freeId();
    ids_.insert(added.id);
    added_.insert(added.id);
    places_.emplace(added.id, all_.size());
    all_.push_back(std::move(added));
    return all_.back().id;
}

void Relationships::removeAll(const std::set<std::string>& ids) {
    const auto count =
        std::erase_if(all_, [&](const Relationship& one) { return ids.contains(one.id); });
    if (count == 0) return;
    places_.clear();
    for (std::size_t place = 0; place < all_.size(); ++place)
        places_.try_emplace(all_[place].id, place);
    for (const std::string& id : ids) {
        if (added_.erase(id) == 0) removed_.insert(id);
    }
    std::erase_if(byDestination_, [&](const auto& one) { return ids.contains(one.second); });
    for (const Relationship& one : all_) byDestination_.try_emplace(destinationOf(one), one.id);
}

std::string Relationships::xml() const {
    if (!isChanged()) return xml_;
    const Xml document(xml_, relationshipsPartOf(source_));
    pugi::xml_node root = document.root();
    keepChildren(root, [&](pugi::xml_node node) {
        return !isNamed(node, relationshipsSpace, "Relationship") ||
               !removed_.contains(node.attribute("Id").value());
    });
    // In the prefix of the root: "Relationship" is "Relationships" without its last letter.
    std::string name = root.name();
    name.pop_back();
    for (const Relationship& one : all_) {
        if (!added_.contains(one.id)) continue;
        pugi::xml_node node = root.append_child(name.c_str());
        node.append_attribute("Id").set_value(one.id.c_str());
        node.append_attribute("Type").set_value(one.type.c_str());
        node.append_attribute("Target").set_value(one.target.c_str());
        if (one.isExternal) node.append_attribute("TargetMode").set_value("External");
    }
    return document.bytes();
}

}  // namespace office::package
