#include "office/member_table.h"

#include "office/failure.h"
#include "office/text.h"

namespace office {

void Members::add(std::string_view name, Names argumentNames, Reader read, Writer write) {
    members_[lowerCase(name)] = {std::string(name),
                                 {argumentNames.begin(), argumentNames.end()},
                                 std::move(read),
                                 std::move(write)};
}

Value Members::read(Automation& self, std::string_view name, const Arguments& arguments) const {
    const Member& member = find(name);
    if (!member.read) fail(name, "can't be read");
    return member.read(self, CallArguments(sourceOf(member), member.argumentNames, arguments));
}

void Members::write(Automation& self, std::string_view name, const Arguments& arguments,
                    const Value& value) const {
    const Member& member = find(name);
    if (!member.write) fail(name, "can't be set");
    member.write(self, CallArguments(sourceOf(member), member.argumentNames, arguments), value);
}

std::string Members::sourceOf(const Member& member) const {
    return className_ + "." + member.name;
}

const Members::Member& Members::find(std::string_view name) const {
    const auto found = members_.find(lowerCase(name));
    if (found == members_.end()) fail(name, "is not a member of this object");
    return found->second;
}

void Members::fail(std::string_view name, std::string_view why) const {
    const std::string source = className_ + "." + std::string(name);
    throw Failure(FailureNumber::NoSuchMember, source, source + " " + std::string(why));
}

}  // namespace office
