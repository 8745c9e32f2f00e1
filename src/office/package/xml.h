#pragma once

#include <pugixml.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace office::package {

/// The namespaces that are read and written here. Strict documents have others.
namespace ns {
inline constexpr std::string_view presentation =
    "http://schemas.openxmlformats.org/presentationml/2006/main";
inline constexpr std::string_view drawing = "http://schemas.openxmlformats.org/drawingml/2006/main";
inline constexpr std::string_view drawing2010 =
    "http://schemas.microsoft.com/office/drawing/2010/main";
inline constexpr std::string_view relationships =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
inline constexpr std::string_view presentation2010 =
    "http://schemas.microsoft.com/office/powerpoint/2010/main";
inline constexpr std::string_view spreadsheet =
    "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
inline constexpr std::string_view spreadsheetDrawing =
    "http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing";
inline constexpr std::string_view chart = "http://schemas.openxmlformats.org/drawingml/2006/chart";
inline constexpr std::string_view word =
    "http://schemas.openxmlformats.org/wordprocessingml/2006/main";
inline constexpr std::string_view wordDrawing =
    "http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing";
inline constexpr std::string_view picture =
    "http://schemas.openxmlformats.org/drawingml/2006/picture";
inline constexpr std::string_view vml = "urn:schemas-microsoft-com:vml";
inline constexpr std::string_view officeVml = "urn:schemas-microsoft-com:office:office";
inline constexpr std::string_view compatibility =
    "http://schemas.openxmlformats.org/markup-compatibility/2006";
}  // namespace ns

/// The XML of one part, kept in all that isn't changed: blanks, comments, instructions, elements
/// of other makers.
class Xml {
public:
    /// `PackageError` Damaged for what isn't well-formed, has a document type or is nested deeper
    /// than any document of an office, TooLarge for too many elements; `part` is for its text.
    Xml(std::string_view bytes, std::string_view part);
    Xml(const Xml&) = delete;
    Xml& operator=(const Xml&) = delete;

    [[nodiscard]] pugi::xml_node root() const { return document_.document_element(); }
    /// In UTF-8.
    [[nodiscard]] std::string bytes() const;

private:
    pugi::xml_document document_;
};

/// The name of an element without its prefix.
[[nodiscard]] std::string_view localName(pugi::xml_node node);
/// Whether an element has this name, whatever prefix its document gives to the namespace.
[[nodiscard]] bool isNamed(pugi::xml_node node, std::string_view space, std::string_view name);
/// The first child that is an element; null if there is none.
[[nodiscard]] pugi::xml_node firstElement(pugi::xml_node parent);
/// The first child that goes by this name in any namespace; null if there is none.
[[nodiscard]] pugi::xml_node childCalled(pugi::xml_node parent, std::string_view name);
/// The first child of that name; null if there is none.
[[nodiscard]] pugi::xml_node childNamed(pugi::xml_node parent, std::string_view space,
                                        std::string_view name);
[[nodiscard]] std::vector<pugi::xml_node> childrenNamed(pugi::xml_node parent,
                                                        std::string_view space,
                                                        std::string_view name);
/// An attribute in a namespace, such as r:id; null if it isn't there.
[[nodiscard]] pugi::xml_attribute attributeNamed(pugi::xml_node node, std::string_view space,
                                                 std::string_view name);
/// An attribute without a namespace, made if it isn't there yet.
[[nodiscard]] pugi::xml_attribute attributeFor(pugi::xml_node node, const char* name);

/// The value of an attribute in the namespace of Word's documents, such as w:val; empty if it isn't
/// there.
[[nodiscard]] std::string_view wordValue(pugi::xml_node node, std::string_view name = "val");
/// Writes such an attribute, under the prefix that the document has for it.
void setWordValue(pugi::xml_node node, std::string_view name, const std::string& value);

/// Whether a name is one of those that a text parts by blanks.
[[nodiscard]] bool isListed(std::string_view names, std::string_view name);
/// The child of that name, made where the schema wants it if it isn't there: `order` is the
/// schema's sequence of children, parted by blanks.
pugi::xml_node childInOrder(pugi::xml_node parent, std::string_view space, std::string_view name,
                            std::string_view order);
/// Puts markup in as the last child ahead of `before`, or as the last of all. The markup is one
/// element, written with the usual prefixes of the namespaces above; those that it uses are
/// declared on it where the document has others.
pugi::xml_node insertMarkup(pugi::xml_node parent, const std::string& markup,
                            pugi::xml_node before = {});

/// Takes the children out that don't satisfy something.
template <class Test>
void keepChildren(pugi::xml_node parent, const Test& isKept) {
    for (pugi::xml_node child = parent.first_child(); child;) {
        const pugi::xml_node next = child.next_sibling();
        if (!isKept(child)) parent.remove_child(child);
        child = next;
    }
}

/// Shows all nodes below one, in their order.
template <class Visit>
void visitBelow(pugi::xml_node parent, const Visit& visit) {
    for (const pugi::xml_node child : parent.children()) {
        visit(child);
        visitBelow(child, visit);
    }
}

/// All elements below one that satisfy something, in their order.
template <class Test>
[[nodiscard]] std::vector<pugi::xml_node> elementsBelow(pugi::xml_node parent, const Test& test) {
    std::vector<pugi::xml_node> found;
    visitBelow(parent, [&](pugi::xml_node node) {
        if (node.type() == pugi::node_element && test(node)) found.push_back(node);
    });
    return found;
}

/// Puts a copy of an element of another document in as the last child. Null, and nothing is put in,
/// for one that needs a namespace which isn't known here, or that leads to other parts.
pugi::xml_node adopt(pugi::xml_node parent, pugi::xml_node element);
/// Gives an element the attributes and the children of another one.
void copyInto(pugi::xml_node from, pugi::xml_node to);

/// Without the characters that XML can't hold, and bytes that are none.
[[nodiscard]] std::string legible(std::string_view text);

}  // namespace office::package
