#pragma once

#include "office/libreoffice/powerpoint/shape_members.h"

namespace libreoffice::powerpoint {

/// One shape of a slide. It goes on being the same shape when LibreOffice has to replace its own.
class Shape : public UnoObject<Shape>, public ShapeMembers {
public:
    explicit Shape(const ShapeOfDocument& whole)
        : UnoObject(whole.desk, whole.document),
          ShapeMembers(whole.desk, whole.document, {whole.shape}) {}

    static const office::MemberTable<Shape>& members();
};

}  // namespace libreoffice::powerpoint
