#include "office/libreoffice/powerpoint/slide.h"

namespace libreoffice::powerpoint {

const office::MemberTable<Slide>& Slide::members() {
    static const auto table = slideMemberTable<Slide>("Slide");
    return table;
}

}  // namespace libreoffice::powerpoint
