#pragma once

#include "office/libreoffice/guard.h"
#include "office/libreoffice/powerpoint/impress_document.h"

namespace libreoffice::powerpoint {

/// The size of a presentation's slides.
class PageSetup : public UnoObject<PageSetup> {
public:
    PageSetup(DeskPtr desk, ImpressDocumentPtr document);
    static const office::MemberTable<PageSetup>& members();

private:
    ImpressDocumentPtr document_;
};

}  // namespace libreoffice::powerpoint
