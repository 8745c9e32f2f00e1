#include "office/process_folder_name.h"

#include <fmt/format.h>
#include <unistd.h>

namespace office {

std::string hostMark() {
    constexpr std::size_t longest = 256;
    char host[longest] = {};
    if (::gethostname(host, longest - 1) != 0) return "-";
    return fmt::format("@{}-", host);
}

std::string processFolderPattern() {
    return fmt::format("{}{}{}XXXXXX", processFolderPrefix, ::getpid(), hostMark());
}

}  // namespace office
