#include "office/libreoffice/private_folder.h"

#include <cstdlib>
#include <system_error>

#include "office/failure.h"
#include "office/process_folder_name.h"

namespace libreoffice {

namespace fs = std::filesystem;

namespace {

/// Empty if none can be made there.
std::string folderIn(const fs::path& parent) {
    std::string path = (parent / office::processFolderPattern()).string();
    return mkdtemp(path.data()) == nullptr ? std::string() : path;
}

}  // namespace

PrivateFolder::PrivateFolder() {
    std::error_code error;
    const fs::path named = fs::temp_directory_path(error);
    std::string made = error ? std::string() : folderIn(named);
    // What the environment names may be gone.
    if (made.empty()) made = folderIn("/tmp");
    if (made.empty()) {
        throw office::Failure(office::FailureNumber::PathFileAccess, "PrivateFolder",
                              "No temporary folder can be made");
    }
    path_ = made;
}

PrivateFolder::~PrivateFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

}  // namespace libreoffice
