#pragma once

#include "office/libreoffice/guard.h"
#include "office/libreoffice/powerpoint/impress_document.h"

namespace libreoffice::powerpoint {

/// What is selected in a presentation's window: shapes, or else the slide in view.
class Selection : public UnoObject<Selection> {
public:
    Selection(DeskPtr desk, ImpressDocumentPtr document);
    static const office::MemberTable<Selection>& members();

private:
    office::Value type();
    office::Value slideRange();
    office::Value shapeRange();
    office::Value unselect(const office::CallArguments& arguments);

    ImpressDocumentPtr document_;
};

}  // namespace libreoffice::powerpoint
