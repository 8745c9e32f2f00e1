#include <fmt/format.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <functional>
#include <string>

#include "apps/claim.h"

namespace apps {

/// By the name of a socket, which nothing ever connects to: it leaves no file, and the system takes
/// it back with the process.
bool claim(std::string_view what) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    // A name that begins with a zero byte is none of a file.
    const std::string name =
        fmt::format("murvane {} {:x}", ::getuid(), std::hash<std::string_view>{}(what));
    name.copy(&address.sun_path[1], sizeof address.sun_path - 1);
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (socket < 0) return true;
    const int status = ::bind(socket, reinterpret_cast<const sockaddr*>(&address), size);
    return status == 0 || errno != EADDRINUSE;
}

}  // namespace apps
