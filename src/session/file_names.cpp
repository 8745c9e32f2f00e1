#include "session/file_names.h"

#include <fmt/format.h>

#include <algorithm>

#include "office/failure.h"

namespace session {

namespace {

bool leadsElsewhere(char sign) {
    const auto code = static_cast<unsigned char>(sign);
    return code < 0x20 || code == 0x7F || sign == '/' || sign == '\\';
}

}  // namespace

void requireFileName(std::string_view name) {
    const bool isPlain = !name.empty() && name != "." && name != ".." &&
                         std::none_of(name.begin(), name.end(), leadsElsewhere);
    if (isPlain) return;
    throw office::Failure(office::FailureNumber::PathFileAccess, "Host",
                          fmt::format("\"{}\" can't be the name of a file", name));
}

}  // namespace session
