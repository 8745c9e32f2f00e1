#include "office/libreoffice/powerpoint/adjustments.h"

#include "office/libreoffice/powerpoint/auto_shape.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Value;

const office::MemberTable<Adjustments>& Adjustments::members() {
    static const auto table =
        office::MemberTable<Adjustments>("Adjustments")
            .property("Count",
                      [](Adjustments& self, const CallArguments&) -> Value {
                          return adjustmentCount(self.shape());
                      })
            .property("Item", {"Index"}, &Adjustments::item, &Adjustments::setItem);
    return table;
}

Value Adjustments::item(const CallArguments& arguments) {
    return adjustment(shape(), arguments.at(0).toLong());
}

void Adjustments::setItem(const CallArguments& arguments, const Value& value) {
    setAdjustment(shape(), arguments.at(0).toLong(), value.toDouble());
}

}  // namespace libreoffice::powerpoint
