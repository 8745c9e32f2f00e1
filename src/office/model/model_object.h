#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "office/member_table.h"
#include "office/model/guard.h"
#include "office/model/part.h"

namespace office::model {

/// Base of the classes of an object model: each member runs through the guard.
class GuardedObject : public Automation {
public:
    explicit GuardedObject(GuardPtr guard) : guard_(std::move(guard)) {}

    [[nodiscard]] std::string typeName() const final { return memberTable().className(); }

    Value get(std::string_view member, const Arguments& arguments) final;
    Value call(std::string_view member, const Arguments& arguments) final;
    void put(std::string_view member, const Arguments& arguments, const Value& value) final;

    [[nodiscard]] const GuardPtr& guard() const { return guard_; }

protected:
    [[nodiscard]] virtual const Members& memberTable() const = 0;
    /// `Failure` Disconnected if what the object stands for has been closed or deleted. Asked ahead
    /// of each member.
    virtual void requireAlive(std::string_view /*member*/) const {}

private:
    Value run(const MemberUse& use);

    GuardPtr guard_;
};

/// The same for a class with `static const MemberTable<Self>& members()`.
template <class Self>
class ModelObject : public GuardedObject {
public:
    using GuardedObject::GuardedObject;

protected:
    [[nodiscard]] const Members& memberTable() const final { return Self::members(); }
};

/// The same for a class that stands for something in a document: `Home` holds what its members run
/// through and knows whether it has gone.
template <class Self, class Home>
class HomedObject : public ModelObject<Self> {
public:
    explicit HomedObject(Home home) : ModelObject<Self>(home.guard), home_(std::move(home)) {}

    [[nodiscard]] const Home& home() const { return home_; }

protected:
    void requireAlive(std::string_view member) const override {
        if (home_.isGone()) failGone(Self::members().className() + "." + std::string(member));
    }

private:
    Home home_;
};

/// A home, and what of it an object stands for.
template <class Home, class Kind>
struct PartOf : Home {
    std::shared_ptr<Kind> part;

    [[nodiscard]] bool isGone() const { return part->isGone(); }
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

/// The number that a setting gets. `Failure` 5 if it lies outside.
[[nodiscard]] double numberWithin(double low, double high, const Value& value,
                                  const std::string& source);

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
