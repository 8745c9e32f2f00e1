#pragma once

#include "office/libreoffice/guard.h"
#include "office/libreoffice/powerpoint/impress_document.h"

namespace libreoffice::powerpoint {

/// The shapes of a slide, placeholders among them, from the lowest to the topmost.
class Shapes : public UnoObject<Shapes> {
public:
    Shapes(DeskPtr desk, ImpressDocumentPtr document, HeldPagePtr slide);
    static const office::MemberTable<Shapes>& members();

private:
    office::Value count();
    office::Value item(const office::CallArguments& arguments);
    office::Value hasTitle();
    office::Value title();
    office::Value addPicture(const office::CallArguments& arguments);
    office::Value addLabel(const office::CallArguments& arguments);
    office::Value addTextbox(const office::CallArguments& arguments);

    [[nodiscard]] office::Value addText(const office::CallArguments& arguments, bool wraps);
    [[nodiscard]] office::Value object(const HeldShapePtr& shape) const;
    [[nodiscard]] HeldShapePtr named(const std::string& name) const;

    ImpressDocumentPtr document_;
    HeldPagePtr slide_;
};

}  // namespace libreoffice::powerpoint
