#pragma once

#include "office/libreoffice/guard.h"
#include "office/libreoffice/powerpoint/impress_document.h"

namespace libreoffice::powerpoint {

/// The open presentations.
class Presentations : public UnoObject<Presentations> {
public:
    explicit Presentations(DeskPtr desk);
    static const office::MemberTable<Presentations>& members();

private:
    office::Value count();
    office::Value item(const office::CallArguments& arguments);
    office::Value open(const office::CallArguments& arguments);
    office::Value add(const office::CallArguments& arguments);

    /// The open presentation of a file; null if it is not open.
    [[nodiscard]] ImpressDocumentPtr openedFrom(const rtl::OUString& url) const;
    [[nodiscard]] office::Value object(const ImpressDocumentPtr& document) const;
    /// Whether a document is to have no window that is shown.
    [[nodiscard]] bool isHidden(const office::Value& withWindow) const;
};

}  // namespace libreoffice::powerpoint
