#pragma once

#include "office/libreoffice/guard.h"
#include "office/libreoffice/powerpoint/impress_document.h"

namespace libreoffice::powerpoint {

/// The view in a presentation's window.
class View : public UnoObject<View> {
public:
    View(DeskPtr desk, ImpressDocumentPtr document);
    static const office::MemberTable<View>& members();

private:
    office::Value slide();
    office::Value type();
    office::Value gotoSlide(const office::CallArguments& arguments);

    ImpressDocumentPtr document_;
};

}  // namespace libreoffice::powerpoint
