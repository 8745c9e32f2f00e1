#pragma once

#include "office/libreoffice/guard.h"
#include "office/libreoffice/powerpoint/impress_document.h"

namespace libreoffice::powerpoint {

/// The slides of a presentation.
class Slides : public UnoObject<Slides> {
public:
    Slides(DeskPtr desk, ImpressDocumentPtr document);
    static const office::MemberTable<Slides>& members();

private:
    office::Value count();
    office::Value item(const office::CallArguments& arguments);
    office::Value add(const office::CallArguments& arguments);

    ImpressDocumentPtr document_;
};

}  // namespace libreoffice::powerpoint
