#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "office/value.h"

namespace office {

/// An argument passed by its name: `arg("Link", true)`.
struct NamedArgument {
    std::string name;
    Value value;
};

inline NamedArgument arg(std::string_view name, Value value) {
    return {std::string(name), std::move(value)};
}

/// The arguments of one call: those by position, then those by name.
class Arguments {
public:
    Arguments() = default;

    void add(Value value) { positional_.push_back(std::move(value)); }
    void add(NamedArgument argument) { named_.push_back(std::move(argument)); }

    [[nodiscard]] const std::vector<Value>& positional() const { return positional_; }
    [[nodiscard]] const std::vector<NamedArgument>& named() const { return named_; }
    [[nodiscard]] std::size_t count() const { return positional_.size() + named_.size(); }

    /// Takes the last positional argument out: the value of a `put`. `Failure` 450 if there is
    /// none.
    Value takeLast();

    template <class... Args>
    static Arguments of(const Args&... args) {
        Arguments arguments;
        (arguments.add(wrap(args)), ...);
        return arguments;
    }

private:
    static NamedArgument wrap(const NamedArgument& argument) { return argument; }
    template <class Plain>
    static Value wrap(const Plain& plain) {
        return Value(plain);
    }

    std::vector<Value> positional_;
    std::vector<NamedArgument> named_;
};

template <class... Args>
Value Object::get(std::string_view member, const Args&... args) const {
    return required(member).get(member, Arguments::of(args...));
}

template <class... Args>
void Object::put(std::string_view member, const Args&... argsThenValue) const {
    Arguments arguments = Arguments::of(argsThenValue...);
    const Value value = arguments.takeLast();
    required(member).put(member, arguments, value);
}

template <class... Args>
Value Object::call(std::string_view member, const Args&... args) const {
    return required(member).call(member, Arguments::of(args...));
}

}  // namespace office
