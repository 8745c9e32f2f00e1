#pragma once

#include <concepts>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "office/automation.h"
#include "office/call_arguments.h"
#include "office/value.h"

namespace office {

/// What reads or runs a member: it takes the object, and the arguments of the call if it wants
/// them.
template <class Read, class Self>
concept MemberReader =
    std::invocable<const Read&, Self&> || std::invocable<const Read&, Self&, const CallArguments&>;

/// What writes a property: it takes the object and the value, and in between the property's own
/// arguments if it has some.
template <class Write, class Self>
concept MemberWriter = std::invocable<const Write&, Self&, const Value&> ||
    std::invocable<const Write&, Self&, const CallArguments&, const Value&>;

/// The members of a class by their names. What reads and writes them takes any object, so that this
/// is compiled once for all classes.
class Members {
public:
    using Names = std::initializer_list<std::string_view>;

    [[nodiscard]] const std::string& className() const { return className_; }

    Value read(Automation& self, std::string_view name, const Arguments& arguments) const;
    void write(Automation& self, std::string_view name, const Arguments& arguments,
               const Value& value) const;

protected:
    using Reader = std::function<Value(Automation&, const CallArguments&)>;
    using Writer = std::function<void(Automation&, const CallArguments&, const Value&)>;

    explicit Members(std::string className) : className_(std::move(className)) {}

    void add(std::string_view name, Names argumentNames, Reader read, Writer write = nullptr);

private:
    struct Member {
        std::string name;
        std::vector<std::string> argumentNames;
        Reader read;
        Writer write;
    };

    [[nodiscard]] std::string sourceOf(const Member& member) const;
    [[nodiscard]] const Member& find(std::string_view name) const;
    [[noreturn]] void fail(std::string_view name, std::string_view why) const;

    std::string className_;
    std::map<std::string, Member, std::less<>> members_;
};

/// The members of one object-model class: name, argument names, functions. A model object has
/// one such table.
///
///     static const MemberTable<Worksheet> table = MemberTable<Worksheet>("Worksheet")
///         .property("Name", &Worksheet::name, &Worksheet::setName)
///         .property("Columns", {"ColumnIndex"}, &Worksheet::columns)
///         .method("Select", {"Replace"}, &Worksheet::select);
///
/// A property that is read may also be called and a method may also be read, as late-bound
/// automation allows.
template <class Self>
class MemberTable : public Members {
public:
    explicit MemberTable(std::string className) : Members(std::move(className)) {}

    /// A property without arguments; leave the writer out for a read-only one.
    template <MemberReader<Self> Read>
    MemberTable& property(std::string_view name, Read reads) {
        return with(name, {}, reader(reads));
    }
    template <MemberReader<Self> Read, MemberWriter<Self> Write>
    MemberTable& property(std::string_view name, Read reads, Write writes) {
        return with(name, {}, reader(reads), writer(writes));
    }

    /// A property with arguments.
    template <MemberReader<Self> Read>
    MemberTable& property(std::string_view name, Names argumentNames, Read reads) {
        return with(name, argumentNames, reader(reads));
    }
    template <MemberReader<Self> Read, MemberWriter<Self> Write>
    MemberTable& property(std::string_view name, Names argumentNames, Read reads, Write writes) {
        return with(name, argumentNames, reader(reads), writer(writes));
    }

    /// A method; one that returns nothing gives the empty value.
    template <MemberReader<Self> Run>
    MemberTable& method(std::string_view name, Names argumentNames, Run runs) {
        return with(name, argumentNames, reader(runs));
    }

private:
    MemberTable& with(std::string_view name, Names argumentNames, Reader read,
                      Writer write = nullptr) {
        add(name, argumentNames, std::move(read), std::move(write));
        return *this;
    }

    template <class Read>
    static Reader reader(Read reads) {
        return [reads](Automation& object, const CallArguments& arguments) -> Value {
            auto& self = static_cast<Self&>(object);
            const auto run = [&]() -> decltype(auto) {
                if constexpr (std::invocable<const Read&, Self&, const CallArguments&>) {
                    return std::invoke(reads, self, arguments);
                } else {
                    return std::invoke(reads, self);
                }
            };
            if constexpr (std::is_void_v<decltype(run())>) {
                run();
                return {};
            } else {
                return Value(run());
            }
        };
    }

    template <class Write>
    static Writer writer(Write writes) {
        return [writes](Automation& object, const CallArguments& arguments, const Value& value) {
            auto& self = static_cast<Self&>(object);
            if constexpr (std::invocable<const Write&, Self&, const CallArguments&, const Value&>) {
                std::invoke(writes, self, arguments, value);
            } else {
                std::invoke(writes, self, value);
            }
        };
    }
};

}  // namespace office
