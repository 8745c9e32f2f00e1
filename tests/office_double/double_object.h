#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "office/member_table.h"
#include "office_double/suite_state.h"

namespace office_double {

using office::Arguments;
using office::CallArguments;
using office::Failure;
using office::FailureNumber;
using office::Object;
using office::Value;

class DoubleObject;

/// The parent of an object that is being made.
class Owner {
public:
    Owner(DoubleObject& object) : object_(object) {}  // NOLINT(google-explicit-constructor)
    [[nodiscard]] DoubleObject& object() const { return object_; }

private:
    DoubleObject& object_;
};

/// What the objects of the double have in common: each call is recorded, fails if it is planned to,
/// and fails when the object has gone.
///
/// An object goes with its parent, which it doesn't keep alive. So only objects that a document
/// owns are parents: never a range, which is made anew at each look-up.
class DoubleObject : public office::Automation, public std::enable_shared_from_this<DoubleObject> {
public:
    explicit DoubleObject(std::shared_ptr<SuiteState> state) : state_(std::move(state)) {}
    explicit DoubleObject(Owner parent);

    Value get(std::string_view member, const Arguments& arguments) final;
    void put(std::string_view member, const Arguments& arguments, const Value& value) final;
    Value call(std::string_view member, const Arguments& arguments) final;

    /// What a collection finds it by.
    [[nodiscard]] virtual std::string name() const { return {}; }
    [[nodiscard]] Object handle() { return Object(shared_from_this()); }

    /// Closed or deleted: every further call is a `Failure`.
    void remove() { removed_ = true; }
    [[nodiscard]] bool isGone() const;

    /// The call itself, neither recorded nor failing by plan.
    virtual Value read(std::string_view member, const Arguments& arguments) = 0;
    virtual void write(std::string_view member, const Arguments& arguments, const Value& value) = 0;

    [[nodiscard]] const std::shared_ptr<SuiteState>& state() const { return state_; }

    template <class Parent>
    [[nodiscard]] Parent& parent() const {
        return dynamic_cast<Parent&>(*requiredParent());
    }

private:
    void begin(const support::RecordedCall& call) const;
    [[nodiscard]] std::shared_ptr<DoubleObject> requiredParent() const;

    std::shared_ptr<SuiteState> state_;
    std::weak_ptr<DoubleObject> parent_;
    bool hasParent_ = false;
    bool removed_ = false;
};

/// A class of the double with a table of its own: `static const MemberTable<Self>& members()`.
template <class Self, class Base = DoubleObject>
class Doubled : public Base {
public:
    using Base::Base;

    [[nodiscard]] std::string typeName() const override { return Self::members().className(); }

    Value read(std::string_view member, const Arguments& arguments) override {
        return Self::members().read(self(), member, arguments);
    }

    void write(std::string_view member, const Arguments& arguments, const Value& value) override {
        Self::members().write(self(), member, arguments, value);
    }

private:
    Self& self() { return static_cast<Self&>(*this); }
};

/// The object of the double behind a value; null for anything else.
template <class Wanted>
std::shared_ptr<Wanted> doubleOf(const Value& value) {
    if (!value.isObject()) return nullptr;
    return std::dynamic_pointer_cast<Wanted>(value.toObject().target());
}

/// The member of a collection that a number (from 1) or a name means. `Failure` 9 if there is none.
template <class Item>
std::shared_ptr<Item> lookUp(const std::vector<std::shared_ptr<Item>>& items, const Value& index,
                             const std::string& source) {
    if (index.isText()) {
        for (const auto& item : items) {
            if (office::sameIgnoringCase(item->name(), index.toText())) return item;
        }
    } else if (const auto number = index.toLong(); number >= 1) {
        if (static_cast<std::size_t>(number) <= items.size()) {
            return items[static_cast<std::size_t>(number - 1)];
        }
    }
    throw Failure(FailureNumber::SubscriptOutOfRange, source, "Subscript out of range");
}

/// The reader of a member table for what `read` gives: a field, a function of the object, or a
/// lambda that takes it.
template <class Read>
auto reading(Read read) {
    return [read](auto& self, const CallArguments&) { return Value(std::invoke(read, self)); };
}

/// The writer for a field, in the field's type.
template <class Self, class Field>
auto writing(Field Self::*field) {
    return [field](Self& self, const CallArguments&, const Value& value) {
        if constexpr (std::is_same_v<Field, bool>) {
            self.*field = value.toBool();
        } else if constexpr (std::is_same_v<Field, std::int32_t>) {
            self.*field = value.toLong();
        } else if constexpr (std::is_same_v<Field, double>) {
            self.*field = value.toDouble();
        } else {
            self.*field = value.toText();
        }
    };
}

/// Three-valued flags of the object models, of which only two occur: -1 and 0.
inline Value triState(bool on) {
    return on ? -1 : 0;
}

template <class Self>
auto readingTriState(bool Self::*field) {
    return reading([field](Self& self) { return triState(self.*field); });
}

inline Value count(std::size_t number) {
    return static_cast<std::int32_t>(number);
}

}  // namespace office_double
