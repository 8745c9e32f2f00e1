#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace office::package {

/// The namespaces that are read and written here. Strict documents have others.
namespace ns {
inline constexpr std::string_view presentation =
    "http://schemas.openxmlformats.org/presentationml/2006/main";
inline constexpr std::string_view drawing = "http://schemas.openxmlformats.org/drawingml/2006/main";
inline constexpr std::string_view relationships =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
inline constexpr std::string_view presentation2010 =
    "http://schemas.microsoft.com/office/powerpoint/2010/main";
}  // namespace ns

/// The XML of one part, kept in all that isn't changed: blanks, comments, instructions, elements
/// of other makers.
class Xml {
public:
    /// `PackageError` Damaged for what isn't well-formed, has a document type or is nested deeper
    /// than any document of an office; `part` is for its text.
    Xml(std::string_view bytes, std::string_view part);
    Xml(const Xml&) = delete;
    Xml& operator=(const Xml&) = delete;

    [[nodiscard]] pugi::xml_node root() const { return document_.document_element(); }
    /// In UTF-8.
    [[nodiscard]] std::string bytes() const;

private:
    pugi::xml_document document_;
};

/// Whether an element has this name, whatever prefix its document gives to the namespace.
[[nodiscard]] bool isNamed(pugi::xml_node node, std::string_view space, std::string_view name);
/// The first child of that name; null if there is none.
[[nodiscard]] pugi::xml_node childNamed(pugi::xml_node parent, std::string_view space,
                                        std::string_view name);
/// The value of an attribute in a namespace, such as r:id; empty if it isn't there.
[[nodiscard]] std::string attributeNamed(pugi::xml_node node, std::string_view space,
                                         std::string_view name);
/// The name for an element or attribute here, with the prefix that the namespace has at `at`. A
/// namespace without a prefix there gets one, declared on the document's root.
[[nodiscard]] std::string nameAt(pugi::xml_node at, std::string_view space, std::string_view name);

}  // namespace office::package
