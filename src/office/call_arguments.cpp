#include "office/call_arguments.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "office/failure.h"
#include "office/text.h"

namespace office {

CallArguments::CallArguments(std::string source, const std::vector<std::string>& names,
                             const Arguments& arguments)
    : source_(std::move(source)),
      values_(arguments.positional()) {
    if (values_.size() > names.size()) {
        throw Failure(
            FailureNumber::WrongArgumentCount, source_,
            fmt::format("{} takes {} argument(s), not {}", source_, names.size(), values_.size()));
    }
    values_.resize(names.size(), Value(missing));
    for (const NamedArgument& argument : arguments.named()) {
        const auto name = std::find_if(names.begin(), names.end(), [&](const std::string& n) {
            return sameIgnoringCase(n, argument.name);
        });
        if (name == names.end()) {
            throw Failure(FailureNumber::NoSuchNamedArgument, source_,
                          fmt::format("{} has no argument \"{}\"", source_, argument.name));
        }
        values_[static_cast<std::size_t>(name - names.begin())] = argument.value;
    }
}

bool CallArguments::has(std::size_t position) const {
    return position < values_.size() && !values_[position].isMissing();
}

const Value& CallArguments::at(std::size_t position) const {
    if (!has(position)) {
        throw Failure(FailureNumber::WrongArgumentCount, source_,
                      fmt::format("{} needs its argument {}", source_, position + 1));
    }
    return values_[position];
}

Value CallArguments::at(std::size_t position, const Value& otherwise) const {
    return has(position) ? values_[position] : otherwise;
}

}  // namespace office
