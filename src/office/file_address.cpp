#include "office/file_address.h"

#include <system_error>

#include "office/text.h"

namespace office {

namespace {

using Spelling = std::string (*)(std::string_view name);

/// Of a path with slashes between its names. A colon stays after the letter of a drive only, since
/// it would make a scheme of the first name of a relative one.
std::string addressOf(const std::filesystem::path& path, Spelling spelled) {
    std::string address;
    for (const std::filesystem::path& name : path) {
        const auto text = name.generic_u8string();
        if (text == u8"/") continue;
        if (!address.empty()) address += '/';
        const std::string word(text.begin(), text.end());
        address += name == path.root_name() ? word : spelled(word);
    }
    return address;
}

std::string addressOfFile(const std::filesystem::path& file, const std::filesystem::path& base,
                          Spelling spelled) {
    if (!base.empty()) {
        // Where a link of the file system is on the way, ".." leads to where it points. The file
        // may be one itself, which is followed when it is opened.
        const auto whole = [](const std::filesystem::path& path) {
            std::error_code problem;
            return std::filesystem::weakly_canonical(std::filesystem::absolute(path), problem);
        };
        const auto place = whole(std::filesystem::absolute(file).parent_path()) / file.filename();
        const auto way = place.lexically_relative(whole(base));
        if (!way.empty()) return addressOf(way, spelled);
    }
    const std::string path = addressOf(std::filesystem::absolute(file), spelled);
    return (path.starts_with("//") ? "file:" : "file:///") + path;
}

}  // namespace

std::string fileAddress(const std::filesystem::path& file, const std::filesystem::path& base) {
    return addressOfFile(file, base, &addressWord);
}

std::string linkAddress(const std::filesystem::path& file, const std::filesystem::path& base) {
    return addressOfFile(file, base, &linkWord);
}

}  // namespace office
