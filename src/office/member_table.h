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
#include "office/failure.h"
#include "office/text.h"
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

/// The members of one object-model class: name, argument names, functions. A model object has
/// one such table.
///
///     static const MemberTable<Worksheet> table = MemberTable<Worksheet>("Worksheet")
///         .property("Name", &Worksheet::name, &Worksheet::setName)
///         .property("Cells", {"RowIndex", "ColumnIndex"}, &Worksheet::cells)
///         .method("Select", {"Replace"}, &Worksheet::select);
///
/// A property that is read may also be called and a method may also be read, as late-bound
/// automation allows.
template <class Self>
class MemberTable {
public:
    using Reader = std::function<Value(Self&, const CallArguments&)>;
    using Writer = std::function<void(Self&, const CallArguments&, const Value&)>;
    using Names = std::vector<std::string>;

    explicit MemberTable(std::string className) : className_(std::move(className)) {}

    /// A property without arguments; leave the writer out for a read-only one.
    template <MemberReader<Self> Read>
    MemberTable& property(std::string_view name, Read reads) {
        return add(name, {}, reader(std::move(reads)));
    }
    template <MemberReader<Self> Read, MemberWriter<Self> Write>
    MemberTable& property(std::string_view name, Read reads, Write writes) {
        return add(name, {}, reader(std::move(reads)), writer(std::move(writes)));
    }

    /// A property with arguments.
    template <MemberReader<Self> Read>
    MemberTable& property(std::string_view name, Names argumentNames, Read reads) {
        return add(name, std::move(argumentNames), reader(std::move(reads)));
    }
    template <MemberReader<Self> Read, MemberWriter<Self> Write>
    MemberTable& property(std::string_view name, Names argumentNames, Read reads, Write writes) {
        return add(name, std::move(argumentNames), reader(std::move(reads)),
                   writer(std::move(writes)));
    }

    /// A method; one that returns nothing gives the empty value.
    template <MemberReader<Self> Run>
    MemberTable& method(std::string_view name, Names argumentNames, Run runs) {
        return add(name, std::move(argumentNames), reader(std::move(runs)));
    }

    [[nodiscard]] const std::string& className() const { return className_; }

    /// The canonical names, for the contract and for reference pages.
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> all;
        for (const auto& [key, member] : members_) all.push_back(member.name);
        return all;
    }

    Value read(Self& self, std::string_view name, const Arguments& arguments) const {
        const Member& member = find(name);
        if (!member.read) fail(FailureNumber::NoSuchMember, name, "can't be read");
        return member.read(self, CallArguments(sourceOf(member), member.argumentNames, arguments));
    }

    void write(Self& self, std::string_view name, const Arguments& arguments,
               const Value& value) const {
        const Member& member = find(name);
        if (!member.write) fail(FailureNumber::NoSuchMember, name, "can't be set");
        member.write(self, CallArguments(sourceOf(member), member.argumentNames, arguments), value);
    }

private:
    struct Member {
        std::string name;
        Names argumentNames;
        Reader read;
        Writer write;
    };

    MemberTable& add(std::string_view name, Names argumentNames, Reader read,
                     Writer write = nullptr) {
        members_[lowerCase(name)] = {std::string(name), std::move(argumentNames), std::move(read),
                                     std::move(write)};
        return *this;
    }

    template <class Read>
    static Reader reader(Read reads) {
        return [reads](Self& self, const CallArguments& arguments) -> Value {
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
        return [writes](Self& self, const CallArguments& arguments, const Value& value) {
            if constexpr (std::invocable<const Write&, Self&, const CallArguments&, const Value&>) {
                std::invoke(writes, self, arguments, value);
            } else {
                std::invoke(writes, self, value);
            }
        };
    }

    [[nodiscard]] std::string sourceOf(const Member& member) const {
        return className_ + "." + member.name;
    }

    [[nodiscard]] const Member& find(std::string_view name) const {
        const auto found = members_.find(lowerCase(name));
        if (found == members_.end())
            fail(FailureNumber::NoSuchMember, name, "is not a member of this object");
        return found->second;
    }

    [[noreturn]] void fail(FailureNumber number, std::string_view name,
                           std::string_view why) const {
        const std::string source = className_ + "." + std::string(name);
        throw Failure(number, source, source + " " + std::string(why));
    }

    std::string className_;
    std::map<std::string, Member, std::less<>> members_;
};

}  // namespace office
