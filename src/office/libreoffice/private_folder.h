#pragma once

#include <filesystem>
#include <string>

namespace libreoffice {

/// A folder that only this user can look into. It goes with this object; what a killed run leaves,
/// the next one takes away by the process in its name (`apps::PosixHost`).
class PrivateFolder {
public:
    /// `office::Failure` 75 if none can be made.
    PrivateFolder();
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    ~PrivateFolder();

    [[nodiscard]] std::string file(const char* name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

}  // namespace libreoffice
