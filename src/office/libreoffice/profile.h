#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace libreoffice {

/// A profile folder of Murvane's own suite, held for as long as this lives. It is kept for the next
/// start, which is then warm. Two suites never share one: a second start takes the next free
/// folder.
class Profile {
public:
    /// `office::Failure` if no folder can be made that is this user's alone.
    static Profile acquire();

    Profile(Profile&& other) noexcept;
    Profile& operator=(Profile&&) = delete;
    Profile(const Profile&) = delete;
    Profile& operator=(const Profile&) = delete;
    ~Profile();

    [[nodiscard]] const std::string& folder() const { return folder_; }

private:
    Profile(std::string folder, int lock);
    static std::optional<Profile> acquireIn(const std::filesystem::path& parent);

    std::string folder_;
    int lock_;
};

}  // namespace libreoffice
