#include "support/call_log.h"

#include <fmt/format.h>

#include <algorithm>

#include "office/text.h"

namespace support {

std::string RecordedCall::text() const {
    std::string text = className + "." + member;
    if (!arguments.empty() || kind == CallKind::Call) text += "(" + arguments + ")";
    if (kind == CallKind::Put) text += " = " + value;
    return text;
}

std::string literal(const office::Value& value) {
    if (value.isEmpty()) return "Empty";
    if (value.isMissing()) return "Missing";
    if (value.isText()) return "\"" + value.toText() + "\"";
    if (value.isObject()) return "<" + value.toObject().typeName() + ">";
    if (value.isTable()) {
        const office::Table table = value.toTable();
        return fmt::format("<{}x{}>", table.rows(), table.columns());
    }
    return value.toText();
}

std::string literal(const office::Arguments& arguments) {
    std::vector<std::string> all;
    for (const office::Value& value : arguments.positional()) all.push_back(literal(value));
    for (const office::NamedArgument& argument : arguments.named()) {
        all.push_back(argument.name + ":=" + literal(argument.value));
    }
    return fmt::format("{}", fmt::join(all, ", "));
}

bool meansMember(std::string_view pattern, std::string_view className, std::string_view member) {
    const auto dot = pattern.find('.');
    if (dot == std::string_view::npos) return office::sameIgnoringCase(pattern, member);
    return office::sameIgnoringCase(pattern.substr(0, dot), className) &&
           office::sameIgnoringCase(pattern.substr(dot + 1), member);
}

std::size_t CallLog::count(std::string_view member) const {
    return texts(member).size();
}

std::size_t CallLog::count(std::string_view member, CallKind kind) const {
    return static_cast<std::size_t>(
        std::count_if(calls_.begin(), calls_.end(), [&](const RecordedCall& call) {
            return call.kind == kind && meansMember(member, call.className, call.member);
        }));
}

std::vector<std::string> CallLog::texts(std::string_view member) const {
    std::vector<std::string> found;
    for (const RecordedCall& call : calls_) {
        if (meansMember(member, call.className, call.member)) found.push_back(call.text());
    }
    return found;
}

}  // namespace support
