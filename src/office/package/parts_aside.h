#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace office::package {

/// Keeps bytes that only wait to be written, so that a package of many pictures takes no more
/// memory than one of few. They lie in a file without a name, which nobody else can open and which
/// goes with the process.
class PartsAside {
public:
    struct Place {
        std::uint64_t start;
        std::uint64_t bytes;
    };

    /// Nothing if they are too few to matter, or if there is no room for them: they stay with the
    /// caller, whom a full temporary folder is no reason to fail.
    [[nodiscard]] std::optional<Place> put(std::string_view bytes);
    /// `PackageError` Unreadable.
    [[nodiscard]] std::string read(const Place& place);
    /// Whether so many bytes were read.
    [[nodiscard]] bool read(std::uint64_t from, char* to, std::uint64_t count);

private:
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    std::unique_ptr<std::FILE, Close> file_;
    std::uint64_t end_ = 0;
    bool isFull_ = false;
};

}  // namespace office::package
