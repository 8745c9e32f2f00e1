#include "session/file_names.h"

#include <fmt/format.h>

#include <algorithm>

#include "office/failure.h"
#include "office/text.h"

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

std::string safeFileName(std::string_view name) {
    constexpr std::size_t longest = 150;
    constexpr std::string_view reserved = "%:*?\"<>|";
    std::string safe;
    for (const char sign : name) {
        const auto code = static_cast<unsigned char>(sign);
        const bool beginsCharacter = (code & 0xC0U) != 0x80U;
        if (safe.size() >= longest && beginsCharacter) break;
        if (leadsElsewhere(sign) || reserved.find(sign) != std::string_view::npos) {
            safe += fmt::format("%{:02X}", code);
        } else {
            safe += sign;
        }
    }
    return safe;
}

std::string fileAddress(std::string_view path) {
    const std::string encoded = office::addressWord(office::replaceAll(path, "\\", "/"));
    return (path.starts_with('/') ? "file://" : "file:///") +
           office::replaceAll(encoded, "%2F", "/");
}

}  // namespace session
