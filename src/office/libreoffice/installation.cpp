#include "office/libreoffice/installation.h"

#include <fmt/format.h>
#include <pwd.h>
#include <rtl/digest.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "office/libreoffice/uno_values.h"

namespace libreoffice {

namespace {

std::string environmentOr(const char* name, const std::string& otherwise) {
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0' ? value : otherwise;
}

}  // namespace

std::string programFolder() {
    return environmentOr("MURVANE_LIBREOFFICE", "/usr/lib/libreoffice/program");
}

std::string userProfileFolder() {
    const struct passwd* const user = getpwuid(geteuid());
    const std::string home = environmentOr("HOME", user != nullptr ? user->pw_dir : "/");
    return environmentOr("XDG_CONFIG_HOME", home + "/.config") + "/libreoffice/4";
}

std::string singleInstanceSocket(const std::string& profileFolder) {
    // The suite names the socket after the MD5 of the profile's URL in 16-bit characters, each byte
    // of it in hexadecimal without a leading zero.
    const rtl::OUString url = fileUrl(profileFolder);
    std::array<sal_uInt8, RTL_DIGEST_LENGTH_MD5> digest{};
    rtl_digest_MD5(url.getStr(), static_cast<sal_uInt32>(url.getLength()) * sizeof(sal_Unicode),
                   digest.data(), digest.size());
    std::string name = fmt::format("/tmp/OSL_PIPE_{}_SingleOfficeIPC_", getuid());
    for (const sal_uInt8 byte : digest) name += fmt::format("{:x}", byte);
    return name;
}

bool socketIsListening(const std::string& path) {
    // num refcount protocol flags type state inode path; flag 0x10000 marks a listening socket.
    std::ifstream sockets("/proc/net/unix");
    for (std::string line; std::getline(sockets, line);) {
        std::istringstream fields(line);
        std::string number, references, protocol, flags, type, state, inode, boundTo;
        fields >> number >> references >> protocol >> flags >> type >> state >> inode >> boundTo;
        if (boundTo == path && flags == "00010000") return true;
    }
    return false;
}

}  // namespace libreoffice
