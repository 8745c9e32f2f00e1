#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "office/package/package.h"
#include "office/package/xml.h"

namespace office::package {

/// How the height of lines is reckoned by the properties of a paragraph or a style: "exact",
/// "atLeast", "auto"; empty if they don't say.
[[nodiscard]] std::string lineRuleIn(pugi::xml_node properties);

/// The styles of a document. Those that every document has are written into it once they are used.
class DocumentStyles {
public:
    /// `document` is the part of the document's text. The package has to outlive it.
    DocumentStyles(Package& package, std::string document)
        : package_(package),
          document_(std::move(document)) {}

    /// The id of a style by Word's number, which is one of `office::model::word::style`; empty for
    /// the style that paragraphs have which name none. `PackageError`.
    [[nodiscard]] std::string idOf(std::int32_t number);
    /// What the paragraph behind one of this style has; `id` is empty as above. `PackageError`.
    [[nodiscard]] std::string nextOf(const std::string& id);
    /// How the lines of a style are reckoned, by itself, by what it is based on, or by what all
    /// have in common; `id` is empty as above. `PackageError`.
    [[nodiscard]] std::string lineRuleOf(const std::string& id);
    /// Hands changed styles to the package.
    void write();

private:
    /// Null for a document without styles.
    [[nodiscard]] pugi::xml_node root();
    void addPart();
    [[nodiscard]] std::string plainId();
    [[nodiscard]] pugi::xml_node byId(const std::string& id);
    [[nodiscard]] std::string freeId(const std::string& wanted);

    Package& package_;
    std::string document_;
    std::string part_;
    std::unique_ptr<Xml> xml_;
    bool isChanged_ = false;
};

}  // namespace office::package
