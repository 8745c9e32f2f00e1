#pragma once

#include <filesystem>
#include <string>

namespace libreoffice {

/// A folder that only this user can look into. It goes with this object.
class PrivateFolder {
public:
    /// `office::Failure` 75 if none can be made.
    PrivateFolder();
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    ~PrivateFolder();

    /// Copies a file into the folder, under its own name and so that it can be written.
    /// `office::Failure` 75 if it can't be copied.
    [[nodiscard]] std::string copyOf(const std::string& file) const;

private:
    std::filesystem::path path_;
};

}  // namespace libreoffice
