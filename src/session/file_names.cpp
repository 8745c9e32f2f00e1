#include "session/file_names.h"

#include <fmt/format.h>

#include <algorithm>

#include "office/failure.h"
#include "office/file_address.h"
#include "office/files.h"
#include "office/text.h"

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
    for (const auto& [bytes, code] : office::charactersOf(name)) {
        if (safe.size() >= longest) break;
        const char sign = bytes.front();
        if (leadsElsewhere(sign) || isReserved(sign) || sign == '%') {
            safe += fmt::format("%{:02X}", static_cast<unsigned char>(sign));
        } else {
            safe += bytes;
        }
    }
    return safe;
}

std::string fileAddress(std::string_view path) {
    return office::fileAddress(office::pathOf(path));
}

std::string readableFileName(std::string_view name, std::size_t longest) {
    std::string readable;
    for (const auto& [bytes, code] : office::charactersOf(name)) {
        if (readable.size() + bytes.size() > longest) break;
        readable += bytes;
    }
    std::replace_if(
        readable.begin(), readable.end(),
        [](char sign) { return leadsElsewhere(sign) || isReserved(sign); }, '_');
    if (readable.empty()) return "_";
    for (char* const end : {&readable.front(), &readable.back()})
        if (*end == '.' || *end == ' ') *end = '_';
    return readable;
}

}  // namespace session
