#pragma once

#include "office/libreoffice/powerpoint/shape_members.h"

namespace libreoffice::powerpoint {

/// Some shapes of one slide, such as those selected; at least one.
class ShapeRange : public UnoObject<ShapeRange>, public ShapeMembers {
public:
    ShapeRange(const DeskPtr& desk, const ImpressDocumentPtr& document,
               std::vector<HeldShapePtr> shapes)
        : UnoObject(desk, document),
          ShapeMembers(desk, document, std::move(shapes)) {}

    static const office::MemberTable<ShapeRange>& members();

private:
    office::Value item(const office::CallArguments& arguments);
};

}  // namespace libreoffice::powerpoint
