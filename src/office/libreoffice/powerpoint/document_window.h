#pragma once

#include "office/libreoffice/guard.h"
#include "office/libreoffice/powerpoint/impress_document.h"

namespace libreoffice::powerpoint {

/// The window of a presentation.
class DocumentWindow : public UnoObject<DocumentWindow> {
public:
    DocumentWindow(DeskPtr desk, ImpressDocumentPtr document);
    static const office::MemberTable<DocumentWindow>& members();

private:
    office::Value caption();
    office::Value viewType();
    void setViewType(const office::Value& viewType);
    office::Value view();
    office::Value selection();
    office::Value presentation();
    office::Value activate(const office::CallArguments& arguments);

    ImpressDocumentPtr document_;
};

}  // namespace libreoffice::powerpoint
