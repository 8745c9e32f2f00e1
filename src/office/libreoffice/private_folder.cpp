#include "office/libreoffice/private_folder.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cstdlib>
#include <system_error>

#include "office/failure.h"

namespace libreoffice {

namespace fs = std::filesystem;

PrivateFolder::PrivateFolder() {
    std::error_code error;
    std::string pattern =
        (fs::temp_directory_path(error) / fmt::format("murvane-of-{}-XXXXXX", getpid())).string();
    if (error || mkdtemp(pattern.data()) == nullptr) {
        throw office::Failure(office::FailureNumber::PathFileAccess, "PrivateFolder",
                              "No temporary folder can be made");
    }
    path_ = pattern;
}

PrivateFolder::~PrivateFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

}  // namespace libreoffice
