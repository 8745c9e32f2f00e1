#pragma once

#include <concepts>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "office/failure.h"
#include "office/model/model_object.h"
#include "office/model/word/text_document.h"
#include "office/text.h"

/// The classes of Word's object model, made here and reached by their members only.
namespace office::model::word {

/// The labels that captions can have, beside those that Word comes with. They belong to the
/// application, whichever document they are used in.
class CaptionLabelNames {
public:
    [[nodiscard]] bool has(const std::string& name) const {
        return names_.contains(lowerCase(name));
    }
    void add(const std::string& name) { names_.insert(lowerCase(name)); }

private:
    std::set<std::string> names_ = {"equation", "figure", "table"};
};

/// What every object of a document holds: its document, and what its members run through.
struct InDocument {
    GuardPtr guard;
    TextDocumentPtr document;
    std::shared_ptr<CaptionLabelNames> labels;
};

/// Base of the classes that stand for something in a document.
template <class Self, class Kind = TextDocument>
class DocumentObject : public HomedObject<Self, PartOf<InDocument, Kind>> {
public:
    DocumentObject(InDocument home, std::shared_ptr<Kind> part)
        : HomedObject<Self, PartOf<InDocument, Kind>>({std::move(home), std::move(part)}) {}
    explicit DocumentObject(const InDocument& home) requires std::same_as<Kind, TextDocument>
        : DocumentObject(home, home.document) {}

    [[nodiscard]] TextDocument& document() const { return *this->home().document; }
    [[nodiscard]] Kind& part() const { return *this->home().part; }
};

/// Reads a property that is written only: nothing needs to know what it was. `Failure` 5.
template <class Self>
[[nodiscard]] Value unread(Self& /*self*/, const CallArguments& arguments) {
    refuseCall(arguments.source(), arguments.source() + " can be set here, not read");
}

/// `Failure` 5 for a `Collapse` to anything but the end.
void requireCollapseToEnd(const CallArguments& arguments);

/// Beyond this Word takes no length.
inline constexpr double furthestPt = 1584;

[[nodiscard]] Object applicationObject(const GuardPtr& guard, TextDocumentsPtr documents);
[[nodiscard]] Object documentObject(const InDocument& home);
/// All text of a document.
[[nodiscard]] Object rangeObject(const InDocument& home);
/// What is selected in a document, or its caret.
[[nodiscard]] Object selectionObject(const InDocument& home);
/// How paragraphs look, by what changes them.
using ChangeParagraph = void (TextDocument::*)(const ParagraphChange&);
[[nodiscard]] Object paragraphFormatObject(const InDocument& home, ChangeParagraph change);
/// What has been set in a format of no paragraph. `Failure` 13 for what is no format.
[[nodiscard]] ParagraphChange collectedIn(const Value& format, const std::string& source);
/// A style that is known here, by its number. `Failure` 5 for another one.
[[nodiscard]] std::int32_t styleOf(const Value& number, const std::string& source);
/// The page that the caret stands on.
[[nodiscard]] Object pageSetupObject(const InDocument& home);
[[nodiscard]] Object inlineShapesObject(const InDocument& home);
[[nodiscard]] Object shapesObject(const InDocument& home);
/// The one object over the text that is selected, or that a paste has just made. `Failure` 1004 if
/// there is none.
[[nodiscard]] Object selectedShapeObject(const InDocument& home, const std::string& source);
/// The object in a line that a paste has just made, as a collection of one; else an empty one.
[[nodiscard]] Object selectedInlineShapesObject(const InDocument& home);

}  // namespace office::model::word
