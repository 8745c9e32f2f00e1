#include "office/libreoffice/powerpoint/shape_range.h"

#include <fmt/format.h>

#include "office/libreoffice/powerpoint/shape.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Value;

const office::MemberTable<ShapeRange>& ShapeRange::members() {
    static const auto table =
        shapeMemberTable<ShapeRange>("ShapeRange")
            .property("Count",
                      [](ShapeRange& self, const CallArguments&) -> Value {
                          return static_cast<std::int32_t>(self.shapes().size());
                      })
            .property("Item", {"Index"}, &ShapeRange::item);
    return table;
}

Value ShapeRange::item(const CallArguments& arguments) {
    const std::int32_t place = arguments.at(0).toLong();
    if (place < 1 || static_cast<std::size_t>(place) > shapes().size())
        throw office::Failure(office::FailureNumber::SubscriptOutOfRange, arguments.source(),
                              fmt::format("There is no shape {} in the range", place));
    return makeObject<Shape>(
        ShapeOfDocument{deskPtr(), document(), shapes()[static_cast<std::size_t>(place - 1)]});
}

}  // namespace libreoffice::powerpoint
