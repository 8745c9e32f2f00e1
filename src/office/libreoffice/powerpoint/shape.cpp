#include "office/libreoffice/powerpoint/shape.h"

namespace libreoffice::powerpoint {

const office::MemberTable<Shape>& Shape::members() {
    static const auto table = shapeMemberTable<Shape>("Shape");
    return table;
}

}  // namespace libreoffice::powerpoint
