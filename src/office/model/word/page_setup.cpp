#include <fmt/format.h>

#include <utility>

#include "office/model/word/objects.h"

namespace office::model::word {

namespace {

/// The columns of the text, here the one with the caret: a cell and a frame count as one.
class TextColumns : public DocumentObject<TextColumns> {
public:
    using DocumentObject::DocumentObject;

    static const MemberTable<TextColumns>& members() {
        using Self = TextColumns;
        static const auto table =
            MemberTable<Self>("TextColumns").property("Width", [](Self& self) {
                return self.document().lineWidth();
            });
        return table;
    }
};

class PageSetup : public DocumentObject<PageSetup> {
public:
    using DocumentObject::DocumentObject;
    static const MemberTable<PageSetup>& members();

private:
    void turn(const Value& orientation);
};

const MemberTable<PageSetup>& PageSetup::members() {
    using Self = PageSetup;
    static const auto table = [] {
        MemberTable<Self> made("PageSetup");
        const auto length = [&](const char* name, double Page::*side) {
            made.property(
                name, [side](Self& self) { return self.document().page().*side; },
                [side, source = fmt::format("PageSetup.{}", name)](Self& self,
                                                                   const Value& points) {
                    Page page = self.document().page();
                    page.*side = numberWithin(0, furthestPt, points, source);
                    self.document().setPage(page);
                });
        };
        length("PageWidth", &Page::width);
        length("PageHeight", &Page::height);
        length("LeftMargin", &Page::leftMargin);
        length("RightMargin", &Page::rightMargin);
        length("TopMargin", &Page::topMargin);
        length("BottomMargin", &Page::bottomMargin);
        made.property("TextColumns",
                      [](Self& self) { return makeObject<TextColumns>(self.home()); });
        made.property(
            "Orientation",
            [](Self& self) {
                const Page page = self.document().page();
                return page.width > page.height ? 1 : 0;
            },
            &Self::turn);
        return made;
    }();
    return table;
}

void PageSetup::turn(const Value& orientation) {
    Page page = document().page();
    const bool isLandscape = page.width > page.height;
    if (isLandscape == (numberWithin(0, 1, orientation, "PageSetup.Orientation") == 1)) return;
    std::swap(page.width, page.height);
    document().setPage(page);
}

}  // namespace

Object pageSetupObject(const InDocument& home) {
    return makeObject<PageSetup>(home);
}

}  // namespace office::model::word
