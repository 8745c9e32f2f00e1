#include <fmt/format.h>

#include "office/model/word/objects.h"
#include "office/text.h"

namespace office::model::word {

namespace {

/// What is selected, or the caret.
class Selection : public DocumentObject<Selection> {
public:
    using DocumentObject::DocumentObject;
    static const MemberTable<Selection>& members();

private:
    void moveDown(const CallArguments& arguments);
    void moveLeft(const CallArguments& arguments);
    void paste(PasteAs as, Anchoring anchoring, const std::string& source);
    void pasteSpecial(const CallArguments& arguments);
    void pasteExcelTable(const CallArguments& arguments);
    void insertCaption(const CallArguments& arguments);
    void setFormat(const CallArguments& arguments, const Value& value);
    void setStyle(const CallArguments& arguments, const Value& number);
};

std::string inOneLine(const std::string& text) {
    std::string all;
    for (const std::string& line : linesOf(replaceAll(text, "\t", " ")))
        all += (all.empty() ? "" : " ") + line;
    return all;
}

/// Lines, the only unit of a move here, and what an unset one means.
void requireLines(const CallArguments& arguments) {
    constexpr std::int32_t line = 5;
    const Value unit = arguments.at(0, line);
    if (!unit.isEmpty() && unit.toLong() != line)
        refuseCall(arguments.source(), "Moves go by lines here");
}

const MemberTable<Selection>& Selection::members() {
    using Self = Selection;
    static const auto table =
        MemberTable<Self>("Selection")
            .property("Text", [](Self& self) { return self.document().selectedText(); })
            .property("PageSetup", [](Self& self) { return pageSetupObject(self.home()); })
            .property(
                "ParagraphFormat", {},
                [](Self& self, const CallArguments&) {
                    return paragraphFormatObject(self.home(), &TextDocument::changeParagraph);
                },
                &Self::setFormat)
            .property("ShapeRange", {},
                      [](Self& self, const CallArguments& arguments) {
                          return selectedShapeObject(self.home(), arguments.source());
                      })
            .property("Style", {}, unread<Self>, &Self::setStyle)
            .method("TypeText", {"Text"},
                    [](Self& self, const CallArguments& arguments) {
                        self.document().typeText(arguments.at(0).toText());
                    })
            .method("TypeParagraph", {}, [](Self& self) { self.document().typeParagraph(); })
            .method("TypeBackspace", {}, [](Self& self) { self.document().typeBackspace(); })
            .property("InlineShapes",
                      [](Self& self) { return selectedInlineShapesObject(self.home()); })
            .method("MoveDown", {"Unit", "Count", "Extend"}, &Self::moveDown)
            .method("MoveLeft", {"Unit", "Count", "Extend"}, &Self::moveLeft)
            .method("Collapse", {"Direction"},
                    [](Self&, const CallArguments& at) { requireCollapseToEnd(at); })
            .method("HomeKey", {"Unit", "Extend"},
                    [](Self& self, const CallArguments& arguments) {
                        requireLines(arguments);
                        self.document().moveToLineStart();
                    })
            .method("Paste", {},
                    [](Self& self, const CallArguments& arguments) {
                        self.paste(PasteAs::Default, Anchoring::Inline, arguments.source());
                    })
            .method("PasteSpecial",
                    {"IconIndex", "Link", "Placement", "DisplayAsIcon", "DataType", "IconFileName",
                     "IconLabel"},
                    &Self::pasteSpecial)
            .method("PasteExcelTable", {"LinkedToExcel", "WordFormatting", "RTF"},
                    &Self::pasteExcelTable)
            .method("InsertCaption",
                    {"Label", "Title", "TitleAutoText", "Position", "ExcludeLabel"},
                    &Self::insertCaption);
    return table;
}

void Selection::moveDown(const CallArguments& arguments) {
    requireLines(arguments);
    document().moveDown(arguments.at(1, 1).toLong());
}

/// By one character, and over what has just been pasted: it counts as selected here in any case,
/// and the caret stays behind it.
void Selection::moveLeft(const CallArguments& arguments) {
    constexpr std::int32_t character = 1;
    constexpr std::int32_t extend = 1;
    if (arguments.at(0, character).toLong() != character || arguments.at(1, 1).toLong() != 1 ||
        arguments.at(2, 0).toLong() != extend || !document().pasted())
        refuseCall(arguments.source(),
                   "The caret moves left over what was pasted, and nothing else, here");
}

void Selection::paste(PasteAs as, Anchoring anchoring, const std::string& source) {
    const CopiedPtr copied = document().copied();
    if (!copied) refuse(source, "Nothing has been copied");
    document().paste(*copied, as, anchoring);
}

void Selection::pasteSpecial(const CallArguments& arguments) {
    constexpr std::size_t linkArgument = 1;
    constexpr std::size_t placement = 2;
    constexpr std::size_t icon = 3;
    constexpr std::size_t dataType = 4;
    constexpr std::int32_t floatOverText = 1;
    constexpr std::int32_t oleObject = 0;

    const std::string& source = arguments.source();
    if (arguments.at(icon, false).toBool()) refuseCall(source, "Nothing is shown as an icon here");
    const auto anchoring = arguments.at(placement, 0).toLong() == floatOverText
                               ? Anchoring::Floating
                               : Anchoring::Inline;
    if (arguments.at(linkArgument, false).toBool()) {
        paste(PasteAs::Linked, anchoring, source);
        return;
    }
    if (!arguments.has(dataType)) {
        paste(PasteAs::Default, anchoring, source);
        return;
    }
    if (const std::int32_t wanted = arguments.at(dataType).toLong(); wanted != oleObject)
        refuseCall(source, fmt::format("There is no data type {} here", wanted));
    paste(PasteAs::Embedded, anchoring, source);
}

void Selection::pasteExcelTable(const CallArguments& arguments) {
    const std::string& source = arguments.source();
    if (arguments.at(0).toBool()) refuseCall(source, "A table is not linked here");
    const CopiedPtr copied = document().copied();
    if (!copied || copied->source().kind != CopySource::Kind::Cells)
        refuse(source, "No cells have been copied");
    document().paste(*copied, PasteAs::Default, Anchoring::Inline);
}

void Selection::insertCaption(const CallArguments& arguments) {
    const std::string label = arguments.at(0).toText();
    if (!home().labels->has(label))
        refuse(arguments.source(), fmt::format("There is no label \"{}\"", label));
    document().insertCaption({inOneLine(label), inOneLine(arguments.at(1, "").toText())});
}

/// All that is set in a duplicate, in one step.
void Selection::setFormat(const CallArguments& arguments, const Value& value) {
    document().changeParagraph(collectedIn(value, arguments.source()));
}

void Selection::setStyle(const CallArguments& arguments, const Value& number) {
    ParagraphChange change;
    change.style = styleOf(number, arguments.source());
    document().changeParagraph(change);
}

}  // namespace

Object selectionObject(const InDocument& home) {
    return makeObject<Selection>(home);
}

}  // namespace office::model::word
