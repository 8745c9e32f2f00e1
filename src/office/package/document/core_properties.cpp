#include "office/package/document/core_properties.h"

#include "office/package/xml.h"

namespace office::package {

namespace {

constexpr std::string_view coreProperties =
    "http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties";
constexpr std::string_view corePropertiesType =
    "application/vnd.openxmlformats-package.core-properties+xml";
constexpr std::string_view dublinCore = "http://purl.org/dc/elements/1.1/";
constexpr const char* noProperties =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
    "\n"
    R"(<cp:coreProperties)"
    R"( xmlns:cp="http://schemas.openxmlformats.org/package/2006/metadata/core-properties"/>)";

}  // namespace

std::string titleOf(Package& package) {
    const std::string part = package.partOfType("/", coreProperties);
    if (part.empty()) return {};
    const Xml properties(package.read(part), part);
    return childNamed(properties.root(), dublinCore, "title").text().get();
}

void setTitleOf(Package& package, const std::string& title) {
    std::string part = package.partOfType("/", coreProperties);
    if (part.empty()) {
        part = package.freeName("/docProps/core", ".xml");
        package.add(part, corePropertiesType, noProperties);
        package.relationshipsOf("/").add(coreProperties, part);
    }
    const Xml properties(package.read(part), part);
    auto element = childNamed(properties.root(), dublinCore, "title");
    if (!element)
        element = insertMarkup(properties.root(),
                               R"(<dc:title xmlns:dc="http://purl.org/dc/elements/1.1/"/>)");
    element.text().set(legible(title).c_str());
    package.replace(part, properties.bytes());
}

}  // namespace office::package
