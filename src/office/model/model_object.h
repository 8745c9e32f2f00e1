#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "office/member_table.h"
#include "office/model/guard.h"

namespace office::model {

/// Base of the classes of an object model. `Self` has `static const MemberTable<Self>& members()`.
template <class Self>
class ModelObject : public Automation {
public:
    explicit ModelObject(GuardPtr guard) : guard_(std::move(guard)) {}

    [[nodiscard]] std::string typeName() const final { return Self::members().className(); }

    Value get(std::string_view member, const Arguments& arguments) final {
        return read(MemberUse::Kind::Get, member, arguments);
    }
    Value call(std::string_view member, const Arguments& arguments) final {
        return read(MemberUse::Kind::Call, member, arguments);
    }
    void put(std::string_view member, const Arguments& arguments, const Value& value) final {
        run(MemberUse::Kind::Put, member, arguments, &value, [&] {
            Self::members().write(self(), member, arguments, value);
            return Value();
        });
    }

    [[nodiscard]] const GuardPtr& guard() const { return guard_; }

protected:
    /// `Failure` Disconnected if what the object stands for has been closed or deleted. Asked ahead
    /// of each member.
    virtual void requireAlive(std::string_view /*member*/) const {}

private:
    Self& self() { return static_cast<Self&>(*this); }

    Value read(MemberUse::Kind kind, std::string_view member, const Arguments& arguments) {
        return run(kind, member, arguments, nullptr,
                   [&] { return Self::members().read(self(), member, arguments); });
    }

    template <class Statement>
    Value run(MemberUse::Kind kind, std::string_view member, const Arguments& arguments,
              const Value* value, const Statement& statement) {
        const auto whileAlive = [&]() -> Value {
            requireAlive(member);
            return statement();
        };
        return guard_->run({kind, Self::members().className(), member, arguments, value},
                           std::cref(whileAlive));
    }

    GuardPtr guard_;
};

/// A new model object as the core sees it.
template <class Class, class... Args>
[[nodiscard]] Object makeObject(Args&&... args) {
    return Object(std::make_shared<Class>(std::forward<Args>(args)...));
}

/// The model object of a class behind a value; null for anything else.
template <class Class>
[[nodiscard]] std::shared_ptr<Class> objectOf(const Value& value) {
    if (!value.isObject()) return nullptr;
    return std::dynamic_pointer_cast<Class>(value.toObject().target());
}

/// The three-valued flags of the object models, of which only two occur: -1 and 0.
[[nodiscard]] inline Value triState(bool on) {
    return on ? -1 : 0;
}

/// Nothing as the empty value.
[[nodiscard]] inline Value valueOf(const Object& object) {
    return object ? Value(object) : Value();
}

[[nodiscard]] inline Value countOf(std::size_t number) {
    return static_cast<std::int32_t>(number);
}

}  // namespace office::model
