#pragma once

#include "office/libreoffice/powerpoint/slide_members.h"

namespace libreoffice::powerpoint {

/// One slide of a presentation.
class Slide : public UnoObject<Slide>, public SlideMembers {
public:
    Slide(const DeskPtr& desk, const ImpressDocumentPtr& document, const HeldPagePtr& slide)
        : UnoObject(desk, document),
          SlideMembers(desk, document, slide) {}

    static const office::MemberTable<Slide>& members();
};

}  // namespace libreoffice::powerpoint
