#include <fmt/format.h>

#include "office/model/word/objects.h"

namespace office::model::word {

namespace {

/// Of the properties of a document, its title.
class DocumentProperty : public DocumentObject<DocumentProperty> {
public:
    using DocumentObject::DocumentObject;

    static const MemberTable<DocumentProperty>& members() {
        using Self = DocumentProperty;
        static const auto table =
            MemberTable<Self>("DocumentProperty")
                .property(
                    "Value", [](Self& self) { return self.document().title(); },
                    [](Self& self, const Value& title) {
                        self.document().setTitle(title.toText());
                    });
        return table;
    }
};

/// Of those that Word keeps itself, the page with the caret: here the one that the text ends on.
class PageBookmark : public DocumentObject<PageBookmark> {
public:
    using DocumentObject::DocumentObject;

    static const MemberTable<PageBookmark>& members() {
        using Self = PageBookmark;
        static const auto table = MemberTable<Self>("Bookmark").property("Empty", [](Self& self) {
            return self.document().isLastPageEmpty();
        });
        return table;
    }
};

class Window : public DocumentObject<Window> {
public:
    using DocumentObject::DocumentObject;

    static const MemberTable<Window>& members() {
        using Self = Window;
        static const auto table = MemberTable<Self>("Window").property(
            "Selection", [](Self& self) { return selectionObject(self.home()); });
        return table;
    }
};

class Document : public DocumentObject<Document> {
public:
    using DocumentObject::DocumentObject;
    static const MemberTable<Document>& members();

private:
    Object property(const CallArguments& arguments);
    Object bookmark(const CallArguments& arguments);
    void exportAsFixedFormat(const CallArguments& arguments);
    void close(const CallArguments& arguments);
};

const MemberTable<Document>& Document::members() {
    using Self = Document;
    static const auto table =
        MemberTable<Self>("Document")
            .property("Name", [](Self& self) { return self.document().name(); })
            .property("FullName", [](Self& self) { return self.document().fullName(); })
            .property("ReadOnly", [](Self& self) { return self.document().isReadOnly(); })
            .property("Range", [](Self& self) { return rangeObject(self.home()); })
            .property("ActiveWindow", [](Self& self) { return makeObject<Window>(self.home()); })
            .property("InlineShapes", [](Self& self) { return inlineShapesObject(self.home()); })
            .property("Shapes", [](Self& self) { return shapesObject(self.home()); })
            .property("BuiltInDocumentProperties", {"Index"}, &Self::property)
            .property("Bookmarks", {"Index"}, &Self::bookmark)
            .method("Activate", {}, [](Self& self) { self.document().activate(); })
            .method("SaveCopyAs", {"FileName"},
                    [](Self& self, const CallArguments& arguments) {
                        self.document().saveCopy(arguments.at(0).toText());
                    })
            .method("ExportAsFixedFormat",
                    {"OutputFileName", "ExportFormat", "OpenAfterExport", "OptimizeFor", "Range",
                     "From", "To", "Item", "IncludeDocProps", "KeepIRM", "CreateBookmarks",
                     "DocStructureTags"},
                    &Self::exportAsFixedFormat)
            .method("Close", {"SaveChanges"}, &Self::close);
    return table;
}

Object Document::property(const CallArguments& arguments) {
    if (!sameIgnoringCase(arguments.at(0).toText(), "Title"))
        refuseCall(arguments.source(),
                   fmt::format("There is no property \"{}\" here", arguments.at(0).toText()));
    return makeObject<DocumentProperty>(home());
}

Object Document::bookmark(const CallArguments& arguments) {
    if (!sameIgnoringCase(arguments.at(0).toText(), "\\page"))
        refuseCall(arguments.source(),
                   fmt::format("There is no bookmark \"{}\" here", arguments.at(0).toText()));
    return makeObject<PageBookmark>(home());
}

void Document::exportAsFixedFormat(const CallArguments& arguments) {
    constexpr std::int32_t pdf = 17;
    constexpr std::size_t createBookmarks = 10;
    constexpr std::size_t structureTags = 11;
    if (arguments.at(1).toLong() != pdf || arguments.at(2, false).toBool())
        refuseCall(arguments.source(), "A document is exported as PDF here, without opening it");
    PdfOptions options;
    options.headingBookmarks = arguments.at(createBookmarks, 0).toLong() != 0;
    options.structureTags = arguments.at(structureTags, true).toBool();
    document().exportPdf(arguments.at(0).toText(), options);
}

void Document::close(const CallArguments& arguments) {
    if (arguments.at(0, true).toBool())
        refuseCall(arguments.source(), "A document is closed here without saving");
    document().close();
}

}  // namespace

Object documentObject(const InDocument& home) {
    return makeObject<Document>(home);
}

}  // namespace office::model::word
