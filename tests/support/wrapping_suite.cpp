#include "support/wrapping_suite.h"

#include <utility>

namespace support {

namespace {

using office::Arguments;
using office::Object;
using office::Value;
using Hook = std::shared_ptr<const WrappingSuite::BeforeCall>;

class WrappedObject : public office::Automation {
public:
    WrappedObject(Object inner, Hook hook) : inner_(std::move(inner)), hook_(std::move(hook)) {}

    [[nodiscard]] std::string typeName() const override { return inner_.typeName(); }

    Value get(std::string_view member, const Arguments& arguments) override {
        announce(CallKind::Get, member, arguments);
        return wrapped(target().get(member, unwrapped(arguments)), hook_);
    }

    void put(std::string_view member, const Arguments& arguments, const Value& value) override {
        announce(CallKind::Put, member, arguments, literal(value));
        target().put(member, unwrapped(arguments), unwrapped(value));
    }

    Value call(std::string_view member, const Arguments& arguments) override {
        announce(CallKind::Call, member, arguments);
        return wrapped(target().call(member, unwrapped(arguments)), hook_);
    }

    static Value wrapped(const Value& value, const Hook& hook) {
        return value.isObject() ? Value(wrapped(value.toObject(), hook)) : value;
    }

    static Object wrapped(const Object& object, const Hook& hook) {
        return object ? Object(std::make_shared<WrappedObject>(object, hook)) : object;
    }

private:
    [[nodiscard]] office::Automation& target() const { return *inner_.target(); }

    void announce(CallKind kind, std::string_view member, const Arguments& arguments,
                  std::string value = {}) const {
        (*hook_)({kind, typeName(), std::string(member), literal(arguments), std::move(value)});
    }

    static Value unwrapped(const Value& value) {
        if (!value.isObject()) return value;
        const auto* wrapper = dynamic_cast<WrappedObject*>(value.toObject().target().get());
        return wrapper == nullptr ? value : Value(wrapper->inner_);
    }

    static Arguments unwrapped(const Arguments& arguments) {
        Arguments plain;
        for (const Value& value : arguments.positional()) plain.add(unwrapped(value));
        for (const auto& named : arguments.named()) {
            plain.add(office::arg(named.name, unwrapped(named.value)));
        }
        return plain;
    }

    Object inner_;
    Hook hook_;
};

}  // namespace

WrappingSuite::WrappingSuite(office::Suite& inner, BeforeCall beforeCall)
    : inner_(inner),
      beforeCall_(std::make_shared<const BeforeCall>(std::move(beforeCall))) {}

Object WrappingSuite::attach(std::string_view className) {
    return WrappedObject::wrapped(inner_.attach(className), beforeCall_);
}

Object WrappingSuite::start(std::string_view className) {
    return WrappedObject::wrapped(inner_.start(className), beforeCall_);
}

}  // namespace support
