#include "office_double/double_object.h"

namespace office_double {

using support::CallKind;
using support::literal;

office::Value SuiteState::run(const office::model::MemberUse& use,
                              const std::function<office::Value()>& statement) {
    using Kind = office::model::MemberUse::Kind;
    const CallKind kind = use.kind == Kind::Put    ? CallKind::Put
                          : use.kind == Kind::Call ? CallKind::Call
                                                   : CallKind::Get;
    log.add({kind, std::string(use.className), std::string(use.member), literal(use.arguments),
             use.value == nullptr ? std::string() : literal(*use.value)});
    failures.check(use.className, use.member);
    return statement();
}

DoubleObject::DoubleObject(Owner parent)
    : state_(parent.object().state_),
      parent_(parent.object().weak_from_this()),
      hasParent_(true) {}

Value DoubleObject::get(std::string_view member, const Arguments& arguments) {
    begin({CallKind::Get, typeName(), std::string(member), literal(arguments), {}});
    return read(member, arguments);
}

void DoubleObject::put(std::string_view member, const Arguments& arguments, const Value& value) {
    begin({CallKind::Put, typeName(), std::string(member), literal(arguments), literal(value)});
    write(member, arguments, value);
}

Value DoubleObject::call(std::string_view member, const Arguments& arguments) {
    begin({CallKind::Call, typeName(), std::string(member), literal(arguments), {}});
    return read(member, arguments);
}

bool DoubleObject::isGone() const {
    if (removed_) return true;
    if (!hasParent_) return false;
    const auto parent = parent_.lock();
    return !parent || parent->isGone();
}

void DoubleObject::begin(const support::RecordedCall& call) const {
    state_->log.add(call);
    state_->failures.check(call.className, call.member);
    if (isGone()) {
        const std::string source = call.className + "." + call.member;
        throw Failure(FailureNumber::Disconnected, source,
                      source + ": the object has been closed or deleted");
    }
}

std::shared_ptr<DoubleObject> DoubleObject::requiredParent() const {
    auto parent = parent_.lock();
    if (!parent) {
        throw Failure(FailureNumber::Disconnected, typeName(), "The owner of this object has gone");
    }
    return parent;
}

}  // namespace office_double
