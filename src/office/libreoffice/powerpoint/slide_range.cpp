#include "office/libreoffice/powerpoint/slide_range.h"

#include "office/libreoffice/powerpoint/slide.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Value;

const office::MemberTable<SlideRange>& SlideRange::members() {
    static const auto table =
        slideMemberTable<SlideRange>("SlideRange")
            .property("Count", [](SlideRange&, const CallArguments&) { return Value(1); })
            .property("Item", {"Index"}, &SlideRange::item);
    return table;
}

Value SlideRange::item(const CallArguments& arguments) {
    if (arguments.at(0).toLong() != 1)
        throw office::Failure(office::FailureNumber::SubscriptOutOfRange, arguments.source(),
                              "The range holds one slide");
    return makeObject<Slide>(deskPtr(), document(), slide());
}

}  // namespace libreoffice::powerpoint
