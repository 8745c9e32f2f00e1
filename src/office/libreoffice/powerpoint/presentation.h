#pragma once

#include "office/libreoffice/guard.h"
#include "office/libreoffice/powerpoint/impress_document.h"

namespace libreoffice::powerpoint {

/// One open presentation.
class Presentation : public UnoObject<Presentation> {
public:
    Presentation(DeskPtr desk, ImpressDocumentPtr document);
    static const office::MemberTable<Presentation>& members();

private:
    office::Value name();
    office::Value fullName();
    office::Value path();
    office::Value saved();
    void setSaved(const office::Value& saved);
    office::Value slides();
    office::Value pageSetup();
    office::Value windows();
    office::Value slideShowWindow();
    office::Value saveCopyAs(const office::CallArguments& arguments);
    office::Value saveAs(const office::CallArguments& arguments);
    office::Value close(const office::CallArguments& arguments);

    ImpressDocumentPtr document_;
};

}  // namespace libreoffice::powerpoint
