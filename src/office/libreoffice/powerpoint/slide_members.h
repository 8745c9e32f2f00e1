#pragma once

#include <string>
#include <utility>

#include "office/libreoffice/guard.h"
#include "office/libreoffice/powerpoint/impress_document.h"
#include "office/member_table.h"

namespace libreoffice::powerpoint {

/// What a slide and a range of one slide have in common.
class SlideMembers {
public:
    SlideMembers(DeskPtr desk, ImpressDocumentPtr document, HeldPagePtr slide)
        : desk_(std::move(desk)),
          document_(std::move(document)),
          slide_(std::move(slide)) {}

    [[nodiscard]] const ImpressDocumentPtr& document() const { return document_; }
    [[nodiscard]] const HeldPagePtr& slide() const { return slide_; }

    office::Value slideIndex();
    office::Value slideId();
    office::Value name();
    void setName(const office::Value& name);
    office::Value layout();
    void setLayout(const office::Value& number);
    office::Value shapes();
    office::Value select(const office::CallArguments& arguments);
    office::Value remove(const office::CallArguments& arguments);

private:
    DeskPtr desk_;
    ImpressDocumentPtr document_;
    HeldPagePtr slide_;
};

/// The table of those members, for a class that has them as a base.
template <class Self>
[[nodiscard]] office::MemberTable<Self> slideMemberTable(std::string className) {
    return office::MemberTable<Self>(std::move(className))
        .property("SlideIndex", &Self::slideIndex)
        .property("SlideNumber", &Self::slideIndex)
        .property("SlideID", &Self::slideId)
        .property("Name", &Self::name, &Self::setName)
        .property("Layout", &Self::layout, &Self::setLayout)
        .property("Shapes", &Self::shapes)
        .method("Select", {}, &Self::select)
        .method("Delete", {}, &Self::remove);
}

}  // namespace libreoffice::powerpoint
