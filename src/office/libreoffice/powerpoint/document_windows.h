#pragma once

#include "office/libreoffice/guard.h"
#include "office/libreoffice/powerpoint/impress_document.h"

namespace libreoffice::powerpoint {

/// The windows of a presentation: the one that LibreOffice was in last.
class DocumentWindows : public UnoObject<DocumentWindows> {
public:
    DocumentWindows(DeskPtr desk, ImpressDocumentPtr document);
    static const office::MemberTable<DocumentWindows>& members();

private:
    office::Value item(const office::CallArguments& arguments);

    ImpressDocumentPtr document_;
};

}  // namespace libreoffice::powerpoint
