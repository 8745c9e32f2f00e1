#include <fmt/format.h>

#include <utility>

#include "office/model/word/objects.h"

namespace office::model::word {

namespace {

/// Base of the objects that stand for no document of their own.
template <class Self>
class ApplicationObject : public ModelObject<Self> {
public:
    using Labels = std::shared_ptr<CaptionLabelNames>;

    ApplicationObject(const GuardPtr& guard, TextDocumentsPtr documents, Labels labels)
        : ModelObject<Self>(guard),
          documents_(std::move(documents)),
          labels_(std::move(labels)) {}

    [[nodiscard]] TextDocuments& documents() const { return *documents_; }
    [[nodiscard]] CaptionLabelNames& labels() const { return *labels_; }
    [[nodiscard]] InDocument in(TextDocumentPtr document) const {
        return {this->guard(), std::move(document), labels_};
    }
    [[nodiscard]] InDocument active(const std::string& source) const {
        auto document = documents().active();
        if (!document) refuse(source, "No document is open");
        return in(std::move(document));
    }
    /// Another object of the same application.
    template <class Other>
    [[nodiscard]] Object other() const {
        return makeObject<Other>(this->guard(), documents_, labels_);
    }

private:
    TextDocumentsPtr documents_;
    Labels labels_;
};

class Documents : public ApplicationObject<Documents> {
public:
    using ApplicationObject::ApplicationObject;
    static const MemberTable<Documents>& members();

private:
    [[nodiscard]] Object object(TextDocumentPtr document) const {
        return documentObject(in(std::move(document)));
    }
    Object open(const CallArguments& arguments);
    Object add(const CallArguments& arguments);
};

const MemberTable<Documents>& Documents::members() {
    using Self = Documents;
    static const auto table =
        MemberTable<Self>("Documents")
            .property("Count", [](Self& self) { return countOf(self.documents().open().size()); })
            .method("Open",
                    {"FileName", "ConfirmConversions", "ReadOnly", "AddToRecentFiles", "Visible"},
                    &Self::open)
            .method("Add", {"Template", "NewTemplate", "DocumentType", "Visible"}, &Self::add);
    return table;
}

Object Documents::open(const CallArguments& arguments) {
    constexpr std::size_t readOnly = 2;
    constexpr std::size_t visible = 4;
    if (arguments.at(readOnly, false).toBool())
        refuseCall(arguments.source(), "A document is opened here to be changed");
    return object(documents().load(arguments.at(0).toText(), arguments.at(visible, true).toBool()));
}

Object Documents::add(const CallArguments& arguments) {
    constexpr std::size_t visible = 3;
    if (arguments.has(0) || arguments.at(1, false).toBool())
        refuseCall(arguments.source(), "A new document is made without a template here");
    return object(documents().create(arguments.at(visible, true).toBool()));
}

class CaptionLabels : public ApplicationObject<CaptionLabels> {
public:
    using ApplicationObject::ApplicationObject;

    static const MemberTable<CaptionLabels>& members() {
        static const auto table = MemberTable<CaptionLabels>("CaptionLabels")
                                      .method("Add", {"Name"}, &CaptionLabels::add);
        return table;
    }

private:
    void add(const CallArguments& arguments) {
        const std::string name = arguments.at(0).toText();
        if (name.empty()) refuse(arguments.source(), "A label has at least one letter");
        if (labels().has(name))
            refuse(arguments.source(), fmt::format("There is a label \"{}\" already", name));
        labels().add(name);
    }
};

class Application : public ApplicationObject<Application> {
public:
    using ApplicationObject::ApplicationObject;

    static const MemberTable<Application>& members() {
        using Self = Application;
        static const auto table =
            MemberTable<Self>("Application")
                .property("Documents", [](Self& self) { return self.other<Documents>(); })
                .property("CaptionLabels", [](Self& self) { return self.other<CaptionLabels>(); })
                .property("ActiveDocument", {},
                          [](Self& self, const CallArguments& arguments) {
                              return documentObject(self.active(arguments.source()));
                          })
                .property("Selection", {},
                          [](Self& self, const CallArguments& arguments) {
                              return selectionObject(self.active(arguments.source()));
                          })
                // Windows are shown or hidden when their documents are opened.
                .property(
                    "Visible", [](Self&) { return true; }, [](Self&, const Value&) {})
                .method("Activate", {},
                        [](Self& self) {
                            if (const auto document = self.documents().active())
                                document->activate();
                        })
                .method("Quit", {"SaveChanges"},
                        [](Self& self, const CallArguments&) { self.documents().quit(); });
        return table;
    }
};

}  // namespace

Object applicationObject(const GuardPtr& guard, TextDocumentsPtr documents) {
    return makeObject<Application>(guard, std::move(documents),
                                   std::make_shared<CaptionLabelNames>());
}

}  // namespace office::model::word
