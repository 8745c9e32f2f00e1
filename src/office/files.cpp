#include "office/files.h"

#include <fstream>

namespace office {

std::filesystem::path pathOf(std::string_view text) {
    return std::u8string(text.begin(), text.end());
}

std::string utf8Of(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::optional<std::string> bytesOf(const std::filesystem::path& file) {
    constexpr std::size_t block = 65536;
    std::ifstream stream(file, std::ios::binary);
    std::string bytes;
    while (stream) {
        const std::size_t size = bytes.size();
        bytes.resize(size + block);
        stream.read(bytes.data() + size, block);
        bytes.resize(size + static_cast<std::size_t>(stream.gcount()));
    }
    if (!stream.eof()) return std::nullopt;
    return bytes;
}

}  // namespace office
