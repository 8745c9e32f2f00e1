#pragma once

#include "office/libreoffice/powerpoint/slide_members.h"

namespace libreoffice::powerpoint {

/// The slides selected in a window: the one in view.
class SlideRange : public UnoObject<SlideRange>, public SlideMembers {
public:
    SlideRange(const DeskPtr& desk, const ImpressDocumentPtr& document, const HeldPagePtr& slide)
        : UnoObject(desk, document),
          SlideMembers(desk, document, slide) {}

    static const office::MemberTable<SlideRange>& members();

private:
    office::Value item(const office::CallArguments& arguments);
};

}  // namespace libreoffice::powerpoint
