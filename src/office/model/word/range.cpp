#include "office/model/word/objects.h"

namespace office::model::word {

namespace {

/// The whole text, or its end once it has collapsed to it.
class Range : public DocumentObject<Range> {
public:
    using DocumentObject::DocumentObject;

    static const MemberTable<Range>& members() {
        using Self = Range;
        static const auto table =
            MemberTable<Self>("Range")
                .property("ParagraphFormat", {},
                          [](Self& self, const CallArguments& arguments) {
                              self.requireEnd(arguments.source());
                              return paragraphFormatObject(self.home(),
                                                           &TextDocument::changeLastParagraph);
                          })
                .property("StoryLength", [](Self& self) { return self.document().length(); })
                .method("Collapse", {"Direction"},
                        [](Self& self, const CallArguments& arguments) {
                            requireCollapseToEnd(arguments);
                            self.isAtEnd_ = true;
                        })
                .method("InsertParagraphAfter", {},
                        [](Self& self) { self.document().appendParagraph(); })
                .method("Select", {}, [](Self& self, const CallArguments& arguments) {
                    self.requireEnd(arguments.source());
                    self.document().selectEnd();
                });
        return table;
    }

private:
    void requireEnd(const std::string& source) const {
        if (!isAtEnd_) refuseCall(source, "This works on the end of the text here");
    }

    bool isAtEnd_ = false;
};

}  // namespace

void requireCollapseToEnd(const CallArguments& arguments) {
    constexpr std::int32_t toEnd = 0;
    constexpr std::int32_t toStart = 1;
    if (arguments.at(0, toStart).toLong() != toEnd)
        refuseCall(arguments.source(), "It collapses to its end here");
}

Object rangeObject(const InDocument& home) {
    return makeObject<Range>(home);
}

}  // namespace office::model::word
