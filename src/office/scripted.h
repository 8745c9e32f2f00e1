#pragma once

#include <string>
#include <string_view>

#include "office/member_table.h"

namespace office {

/// Makes an adapter class an automation object by its member table. `Self` has `static const
/// MemberTable<Self>& members()`.
///
/// `Guard` runs every member: it is the one place where a back end translates its own errors to
/// `Failure`. It is called as `Guard::run(self, source, statement)` and returns what the statement
/// returns.
template <class Self, class Guard>
class Scripted : public Automation {
public:
    [[nodiscard]] std::string typeName() const override { return Self::members().className(); }

    Value get(std::string_view member, const Arguments& arguments) override {
        return readGuarded(member, arguments);
    }
    Value call(std::string_view member, const Arguments& arguments) override {
        return readGuarded(member, arguments);
    }

    void put(std::string_view member, const Arguments& arguments, const Value& value) override {
        Guard::run(self(), member, [&]() -> Value {
            Self::members().write(self(), member, arguments, value);
            return {};
        });
    }

private:
    Self& self() { return static_cast<Self&>(*this); }

    Value readGuarded(std::string_view member, const Arguments& arguments) {
        return Guard::run(self(), member,
                          [&] { return Self::members().read(self(), member, arguments); });
    }
};

}  // namespace office
