#pragma once

#include <vector>

#include "office/libreoffice/guard.h"
#include "office/libreoffice/powerpoint/impress_document.h"

namespace libreoffice::powerpoint {

/// The windows of presentations, one each: the one that LibreOffice was in last.
class DocumentWindows : public UnoObject<DocumentWindows> {
public:
    DocumentWindows(DeskPtr desk, std::vector<ImpressDocumentPtr> documents);
    static const office::MemberTable<DocumentWindows>& members();

private:
    office::Value item(const office::CallArguments& arguments);

    std::vector<ImpressDocumentPtr> documents_;
};

}  // namespace libreoffice::powerpoint
