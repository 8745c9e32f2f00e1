#include "session/file_names.h"

#include <fmt/format.h>

#include <algorithm>

#include "office/failure.h"
#include "office/file_address.h"

namespace session {

namespace {

bool leadsElsewhere(char sign) {
    const auto code = static_cast<unsigned char>(sign);
    return code < 0x20 || code == 0x7F || sign == '/' || sign == '\\';
}

/// What some system doesn't take.
bool isReserved(char sign) {
    return std::string_view(":*?\"<>|").find(sign) != std::string_view::npos;
}

}  // namespace

void requireFileName(std::string_view name) {
    const bool isPlain = !name.empty() && name != "." && name != ".." &&
                         std::none_of(name.begin(), name.end(), leadsElsewhere);
    if (isPlain) return;
    throw office::Failure(office::FailureNumber::PathFileAccess, "Host",
                          fmt::format("\"{}\" can't be the name of a file", name));
}

std::string safeFileName(std::string_view name) {
    constexpr std::size_t longest = 150;
    std::string safe;
    for (const char sign : name) {
        const auto code = static_cast<unsigned char>(sign);
        const bool beginsCharacter = (code & 0xC0U) != 0x80U;
        if (safe.size() >= longest && beginsCharacter) break;
        if (leadsElsewhere(sign) || isReserved(sign) || sign == '%') {
            safe += fmt::format("%{:02X}", code);
        } else {
            safe += sign;
        }
    }
    return safe;
}

std::string fileAddress(std::string_view path) {
    return office::fileAddress(std::u8string(path.begin(), path.end()));
}

std::string readableFileName(std::string_view name, std::size_t longest) {
    std::size_t length = std::min(name.size(), longest);
    const auto continues = [&](std::size_t at) {
        return at < name.size() && (static_cast<unsigned char>(name[at]) & 0xC0U) == 0x80U;
    };
    while (continues(length)) --length;
    std::string readable(name.substr(0, length));
    std::replace_if(
        readable.begin(), readable.end(),
        [](char sign) { return leadsElsewhere(sign) || isReserved(sign); }, '_');
    if (readable.empty()) return "_";
    for (char* const end : {&readable.front(), &readable.back()})
        if (*end == '.' || *end == ' ') *end = '_';
    return readable;
}

}  // namespace session
