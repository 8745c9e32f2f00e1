#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "office/automation.h"
#include "office/call_arguments.h"
#include "office/failure.h"
#include "office/text.h"
#include "office/value.h"

namespace office {

/// The members of one object-model class: name, argument names, functions. An adapter class has one
/// such table and reaches its members through `Scripted`.
///
///     static const MemberTable<Worksheet> table = MemberTable<Worksheet>("Worksheet")
///         .property("Name", &Worksheet::name, &Worksheet::setName)
///         .property("Cells", {"RowIndex", "ColumnIndex"}, &Worksheet::cells)
///         .method("Select", {"Replace"}, &Worksheet::select);
///
/// A reader takes the call's arguments, a writer the arguments and the value. A property that is
/// read may also be called and a method may also be read, as late-bound automation allows.
template <class Self>
class MemberTable {
public:
    using Reader = std::function<Value(Self&, const CallArguments&)>;
    using Writer = std::function<void(Self&, const CallArguments&, const Value&)>;
    using Names = std::vector<std::string>;

    explicit MemberTable(std::string className) : className_(std::move(className)) {}

    /// A property without arguments; leave the writer out for a read-only one.
    MemberTable& property(std::string_view name, Value (Self::*reader)(),
                          void (Self::*writer)(const Value&) = nullptr) {
        Member member;
        member.read = [reader](Self& self, const CallArguments&) { return (self.*reader)(); };
        if (writer != nullptr) {
            member.write = [writer](Self& self, const CallArguments&, const Value& value) {
                (self.*writer)(value);
            };
        }
        return add(name, std::move(member));
    }

    /// A property with arguments.
    MemberTable& property(std::string_view name, const Names& argumentNames,
                          Value (Self::*reader)(const CallArguments&),
                          void (Self::*writer)(const CallArguments&, const Value&) = nullptr) {
        Member member;
        member.argumentNames = argumentNames;
        member.read = std::mem_fn(reader);
        if (writer != nullptr) member.write = std::mem_fn(writer);
        return add(name, std::move(member));
    }

    MemberTable& property(std::string_view name, const Names& argumentNames, Reader read,
                          Writer write = nullptr) {
        Member member;
        member.argumentNames = argumentNames;
        member.read = std::move(read);
        member.write = std::move(write);
        return add(name, std::move(member));
    }

    /// A property given by functions, for the ones that are a line long.
    MemberTable& property(std::string_view name, Reader reader, Writer writer = nullptr) {
        Member member;
        member.read = std::move(reader);
        member.write = std::move(writer);
        return add(name, std::move(member));
    }

    MemberTable& method(std::string_view name, const Names& argumentNames,
                        Value (Self::*run)(const CallArguments&)) {
        Member member;
        member.argumentNames = argumentNames;
        member.read = std::mem_fn(run);
        return add(name, std::move(member));
    }

    MemberTable& method(std::string_view name, const Names& argumentNames, Reader run) {
        Member member;
        member.argumentNames = argumentNames;
        member.read = std::move(run);
        return add(name, std::move(member));
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

    MemberTable& add(std::string_view name, Member member) {
        member.name = name;
        members_[lowerCase(name)] = std::move(member);
        return *this;
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
