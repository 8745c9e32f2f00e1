#include "office/package/document/document_styles.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "office/model/word/text_document.h"
#include "office/package/part_name.h"
#include "office/text.h"

namespace office::package {

namespace {

constexpr std::string_view stylesType =
    "application/vnd.openxmlformats-officedocument.wordprocessingml.styles+xml";
constexpr const char* emptyStyles =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
    "\n"
    R"(<w:styles xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main"/>)";

/// A style as a document gets it that has none of this name.
struct KnownStyle {
    std::int32_t number;
    std::string_view name;
    std::string_view id;
    /// How it differs from the plain one.
    std::string_view looks;
};
constexpr std::array<KnownStyle, 3> knownStyles = {{
    {office::model::word::style::caption, "caption", "Caption",
     R"(<w:uiPriority w:val="35"/><w:unhideWhenUsed/><w:qFormat/><w:pPr>)"
     R"(<w:spacing w:after="200" w:line="240" w:lineRule="auto"/></w:pPr>)"
     R"(<w:rPr><w:i/><w:iCs/><w:sz w:val="18"/><w:szCs w:val="18"/></w:rPr>)"},
    {office::model::word::style::heading1, "heading 1", "Heading1",
     R"(<w:uiPriority w:val="9"/><w:qFormat/><w:pPr><w:keepNext/><w:keepLines/>)"
     R"(<w:spacing w:before="240" w:after="0"/><w:outlineLvl w:val="0"/></w:pPr>)"
     R"(<w:rPr><w:b/><w:bCs/><w:sz w:val="32"/><w:szCs w:val="32"/></w:rPr>)"},
    {office::model::word::style::title, "Title", "Title",
     R"(<w:uiPriority w:val="10"/><w:qFormat/><w:pPr><w:contextualSpacing/></w:pPr>)"
     R"(<w:rPr><w:kern w:val="28"/><w:sz w:val="56"/><w:szCs w:val="56"/></w:rPr>)"},
}};

bool isParagraphStyle(pugi::xml_node style) {
    const std::string_view type = wordValue(style, "type");
    return type.empty() || type == "paragraph";
}

std::string nameIn(pugi::xml_node style) {
    return lowerCase(std::string(wordValue(childNamed(style, ns::word, "name"))));
}

}  // namespace

std::string lineRuleIn(pugi::xml_node properties) {
    const auto spacing = childNamed(properties, ns::word, "spacing");
    const std::string_view rule = wordValue(spacing, "lineRule");
    // A height without a rule is one in lines.
    if (rule.empty() && !wordValue(spacing, "line").empty()) return "auto";
    return std::string(rule);
}

pugi::xml_node DocumentStyles::root() {
    if (xml_) return xml_->root();
    Relationships& relationships = package_.relationshipsOf(document_);
    const Relationship* const found = relationships.ofType("styles");
    if (found == nullptr || found->isExternal) return {};
    part_ = relationships.partOf(*found);
    auto read = std::make_unique<Xml>(package_.read(part_), part_);
    if (!isNamed(read->root(), ns::word, "styles"))
        throw PackageError(Fault::Damaged, "its list of styles is none");
    xml_ = std::move(read);
    return xml_->root();
}

void DocumentStyles::addPart() {
    part_ = package_.freeName(folderOf(document_) + "/styles", ".xml");
    package_.add(part_, stylesType, emptyStyles);
    package_.relationshipsOf(document_).add("styles", part_);
    xml_ = std::make_unique<Xml>(emptyStyles, part_);
}

pugi::xml_node DocumentStyles::byId(const std::string& id) {
    for (const pugi::xml_node style : childrenNamed(root(), ns::word, "style")) {
        if (wordValue(style, "styleId") == id && isParagraphStyle(style)) return style;
    }
    return {};
}

std::string DocumentStyles::plainId() {
    for (const pugi::xml_node style : childrenNamed(root(), ns::word, "style")) {
        const std::string_view isDefault = wordValue(style, "default");
        if (isParagraphStyle(style) && (isDefault == "1" || isDefault == "true"))
            return std::string(wordValue(style, "styleId"));
    }
    return {};
}

std::string DocumentStyles::freeId(const std::string& wanted) {
    const auto styles = childrenNamed(root(), ns::word, "style");
    std::string id = wanted;
    const auto isTaken = [&](const pugi::xml_node& style) {
        return wordValue(style, "styleId") == id;
    };
    for (int n = 2; std::any_of(styles.begin(), styles.end(), isTaken); ++n)
        id = fmt::format("{}{}", wanted, n);
    return id;
}

std::string DocumentStyles::idOf(std::int32_t number) {
    const auto* const known =
        std::find_if(knownStyles.begin(), knownStyles.end(),
                     [&](const KnownStyle& one) { return one.number == number; });
    if (known == knownStyles.end()) return {};
    const std::string name = lowerCase(std::string(known->name));
    for (const pugi::xml_node style : childrenNamed(root(), ns::word, "style")) {
        if (nameIn(style) == name && isParagraphStyle(style))
            return std::string(wordValue(style, "styleId"));
    }
    if (!root()) addPart();
    const std::string plain = plainId();
    std::string id = freeId(std::string(known->id));
    const auto made = insertMarkup(
        root(), fmt::format(R"(<w:style w:type="paragraph" w:styleId="{}"><w:name w:val="{}"/>)"
                            R"(<w:basedOn/><w:next/>{}</w:style>)",
                            id, known->name, known->looks));
    for (const char* const relation : {"basedOn", "next"}) {
        const auto other = childNamed(made, ns::word, relation);
        if (!plain.empty())
            setWordValue(other, "val", plain);
        else
            pugi::xml_node(made).remove_child(other);
    }
    isChanged_ = true;
    return id;
}

std::string DocumentStyles::nextOf(const std::string& id) {
    const std::string plain = plainId();
    const auto style = byId(id.empty() ? plain : id);
    const std::string next(wordValue(childNamed(style, ns::word, "next")));
    if (next.empty()) return id;
    return next == plain ? std::string() : next;
}

std::string DocumentStyles::lineRuleOf(const std::string& id) {
    // Styles of a damaged document may be based on each other.
    constexpr int longestChain = 50;
    auto style = byId(id.empty() ? plainId() : id);
    for (int i = 0; style && i < longestChain; ++i) {
        std::string rule = lineRuleIn(childNamed(style, ns::word, "pPr"));
        if (!rule.empty()) return rule;
        const std::string_view base = wordValue(childNamed(style, ns::word, "basedOn"));
        style = base.empty() ? pugi::xml_node() : byId(std::string(base));
    }
    const auto defaults = childNamed(root(), ns::word, "docDefaults");
    return lineRuleIn(childNamed(childNamed(defaults, ns::word, "pPrDefault"), ns::word, "pPr"));
}

void DocumentStyles::write() {
    if (isChanged_) package_.replace(part_, xml_->bytes());
    isChanged_ = false;
}

}  // namespace office::package
