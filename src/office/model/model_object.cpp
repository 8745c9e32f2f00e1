#include "office/model/model_object.h"

#include <fmt/format.h>

#include <functional>

namespace office::model {

Value GuardedObject::get(std::string_view member, const Arguments& arguments) {
    return run({MemberUse::Kind::Get, memberTable().className(), member, arguments, nullptr});
}

Value GuardedObject::call(std::string_view member, const Arguments& arguments) {
    return run({MemberUse::Kind::Call, memberTable().className(), member, arguments, nullptr});
}

void GuardedObject::put(std::string_view member, const Arguments& arguments, const Value& value) {
    run({MemberUse::Kind::Put, memberTable().className(), member, arguments, &value});
}

Value GuardedObject::run(const MemberUse& use) {
    const auto statement = [&]() -> Value {
        requireAlive(use.member);
        if (use.kind != MemberUse::Kind::Put)
            return memberTable().read(*this, use.member, use.arguments);
        memberTable().write(*this, use.member, use.arguments, *use.value);
        return {};
    };
    return guard_->run(use, std::cref(statement));
}

double numberWithin(double low, double high, const Value& value, const std::string& source) {
    const double number = value.toDouble();
    if (!(number >= low && number <= high))
        refuseCall(source, fmt::format("{}: the value {} is out of range", source, number));
    return number;
}

}  // namespace office::model
