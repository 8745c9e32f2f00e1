#include "office/package/part_name.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "office/package/package.h"

namespace office::package {

namespace {

constexpr std::string_view hexDigits = "0123456789abcdef";

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isLetter(char c) {
    return lower(c) >= 'a' && lower(c) <= 'z';
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

/// The character that "%20" and the like at `at` stand for; 0 if there is no such thing, or one
/// that a name must not gain.
char escapedAt(std::string_view name, std::size_t at) {
    if (name[at] != '%' || at + 2 >= name.size()) return 0;
    const auto high = hexDigits.find(lower(name[at + 1]));
    const auto low = hexDigits.find(lower(name[at + 2]));
    if (high == std::string_view::npos || low == std::string_view::npos) return 0;
    const char c = static_cast<char>(high * 16 + low);
    return c == '/' || c == '\\' || isControl(c) ? '\0' : c;
}

std::vector<std::string_view> segmentsOf(std::string_view path) {
    std::vector<std::string_view> segments;
    while (true) {
        const auto slash = path.find('/');
        segments.push_back(path.substr(0, slash));
        if (slash == std::string_view::npos) return segments;
        path.remove_prefix(slash + 1);
    }
}

/// Some makers write the separator of their file system.
std::string withSlashes(std::string_view path) {
    std::string text(path);
    std::replace(text.begin(), text.end(), '\\', '/');
    return text;
}

/// Whether a target is an address with a scheme, such as http: or file:.
bool hasScheme(std::string_view target) {
    if (target.empty() || !isLetter(target.front())) return false;
    const auto end = std::find_if(target.begin(), target.end(), [](char c) {
        return !isLetter(c) && !isDigit(c) && c != '+' && c != '-' && c != '.';
    });
    return end != target.end() && *end == ':';
}

/// A name as it stands in an address.
std::string withEscapes(std::string_view name) {
    std::string out;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const auto code = static_cast<unsigned char>(name[i]);
        const bool isStrayPercent = name[i] == '%' && escapedAt(name, i) == 0;
        if (isStrayPercent || code <= 0x20 || code >= 0x7F ||
            std::string_view("\"#<>?[\\]^`{|}").find(name[i]) != std::string_view::npos) {
            out += fmt::format("%{:02X}", code);
        } else {
            out += name[i];
        }
    }
    return out;
}

[[noreturn]] void failOn(std::string_view name, std::string_view why) {
    throw PackageError(Fault::Damaged, fmt::format("it holds the name {}, {}", shown(name), why));
}

}  // namespace

std::string partKey(std::string_view part) {
    std::string key;
    key.reserve(part.size());
    for (std::size_t i = 0; i < part.size(); ++i) {
        const char escaped = escapedAt(part, i);
        key += lower(escaped != 0 ? escaped : part[i]);
        if (escaped != 0) i += 2;
    }
    return key;
}

std::string partOfEntry(std::string_view entry) {
    const std::string name = withSlashes(entry);
    if (std::any_of(name.begin(), name.end(), isControl))
        failOn(entry, "which has a control character");
    if (name.front() == '/') failOn(entry, "which begins with a slash");
    for (const std::string_view segment : segmentsOf(name)) {
        if (segment == "." || segment == "..") failOn(entry, "which leads elsewhere");
    }
    return "/" + name;
}

std::string relationshipsPartOf(std::string_view part) {
    const auto slash = part.rfind('/');
    return fmt::format("{}/_rels/{}.rels", part.substr(0, slash), part.substr(slash + 1));
}

std::string partOfTarget(std::string_view source, std::string_view target) {
    const auto refuse = [&](std::string_view why) {
        throw PackageError(Fault::Damaged,
                           fmt::format("a relationship of {} to {} {}", shown(source),
                                       target.empty() ? "nothing" : shown(target), why));
    };
    const std::string path = withSlashes(target.substr(0, target.find_first_of("#?")));
    if (path.empty()) refuse("leads nowhere");
    if (hasScheme(path) || path.starts_with("//")) refuse("leads out of the file");

    std::vector<std::string_view> found;
    if (path.front() != '/') {
        found = segmentsOf(source);
        found.pop_back();
    }
    for (const std::string_view segment : segmentsOf(path)) {
        if (segment != "..") {
            found.push_back(segment);
            continue;
        }
        while (!found.empty() && (found.back().empty() || found.back() == ".")) found.pop_back();
        if (found.empty()) refuse("leads out of the file");
        found.pop_back();
    }
    std::string part;
    for (const std::string_view segment : found) {
        if (!segment.empty() && segment != ".") part += fmt::format("/{}", segment);
    }
    if (part.empty()) refuse("leads nowhere");
    return part;
}

std::string targetOf(std::string_view source, std::string_view part) {
    auto from = segmentsOf(source);
    auto to = segmentsOf(part);
    const std::string_view name = to.back();
    from.pop_back();
    to.pop_back();
    const auto [fork, way] = std::mismatch(from.begin(), from.end(), to.begin(), to.end());
    std::string target;
    for (auto up = fork; up != from.end(); ++up) target += "../";
    for (auto down = way; down != to.end(); ++down) target += fmt::format("{}/", *down);
    target = withEscapes(target + std::string(name));
    // A colon would make the first word a scheme.
    return target.find(':') == std::string::npos ? target : withEscapes(part);
}

std::string folderOf(std::string_view part) {
    return std::string(part.substr(0, part.rfind('/')));
}

std::string extensionOf(std::string_view part) {
    const std::string_view file = part.substr(part.rfind('/') + 1);
    const auto dot = file.rfind('.');
    return dot == std::string_view::npos ? std::string() : partKey(file.substr(dot + 1));
}

std::string shown(std::string_view name) {
    constexpr std::size_t most = 80;
    std::string text;
    for (const char c : name.substr(0, most)) text += c < 0x20 || c > 0x7E ? '?' : c;
    return name.size() > most ? text + "..." : text;
}

}  // namespace office::package
