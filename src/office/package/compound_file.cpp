#include "office/package/compound_file.h"

#include <array>
#include <string>
#include <string_view>

#include "office/package/package.h"

namespace office::package {

namespace {

constexpr std::string_view magic = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
/// An entry of the directory: a name of 32 UTF-16 units, its length in bytes with the end, its
/// type.
constexpr std::size_t entryBytes = 128;
constexpr std::size_t nameBytes = 64;
constexpr std::size_t lengthAt = 64;
constexpr std::size_t typeAt = 66;
constexpr char storageType = 1;
constexpr char streamType = 2;

/// Empty if this is no entry with a name of ASCII.
std::string nameOf(std::string_view entry) {
    const auto length = static_cast<unsigned char>(entry[lengthAt]);
    const char type = entry[typeAt];
    if (entry[lengthAt + 1] != 0 || length < 4 || length > nameBytes || length % 2 != 0) return {};
    if (type != storageType && type != streamType) return {};
    std::string name;
    for (std::size_t at = 0; at + 2 < length; at += 2) {
        if (entry[at] == 0 || entry[at + 1] != 0) return {};
        name += entry[at];
    }
    return name;
}

}  // namespace

void refuseCompoundFile(ZipInput& input) {
    std::array<char, 512 * entryBytes> block{};
    if (input.read(0, block.data(), magic.size()) != static_cast<std::int64_t>(magic.size()) ||
        std::string_view(block.data(), magic.size()) != magic)
        return;
    // Sectors begin at multiples of 512, so that entries are found without following their chain.
    bool isEncrypted = false;
    for (std::uint64_t at = 0; at < input.size(); at += block.size()) {
        const auto got = input.read(at, block.data(), block.size());
        const std::string_view bytes(block.data(), got > 0 ? static_cast<std::size_t>(got) : 0);
        for (std::size_t entry = 0; entry + entryBytes <= bytes.size(); entry += entryBytes) {
            const std::string name = nameOf(bytes.substr(entry, entryBytes));
            // Files of the binary formats have the same with a tabulator before it.
            if (name.starts_with("DRM") || name.starts_with("\tDRM"))
                throw PackageError(Fault::Rights, "its rights are managed by a server");
            isEncrypted = isEncrypted || name == "EncryptedPackage";
        }
    }
    if (isEncrypted) throw PackageError(Fault::Password, "it is encrypted with a password");
    throw PackageError(Fault::NotAPackage, "it is a file of the older binary kind");
}

}  // namespace office::package
