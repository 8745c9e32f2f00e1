#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "office/package/package.h"
#include "office/package/parts_aside.h"
#include "office/package/zip_source.h"

namespace office::package {

/// What one file of a ZIP archive says of itself.
struct ZipEntry {
    std::string name;
    std::uint64_t bytes = 0;
    bool isEncrypted = false;
};

/// What is different in an archive that is written again.
struct ZipChange {
    /// Of the entry that is changed; none for a new one.
    std::optional<std::uint64_t> index;
    /// Of a new one.
    std::string name;
    /// Where neither these nor `aside` are given, the entry is taken out. They have to outlive the
    /// writing.
    std::optional<std::string_view> bytes;
    Storage storage = Storage::Deflated;
    std::optional<PartsAside::Place> aside = {};
};

/// A ZIP file, of which only the directory is read at once.
class ZipArchive {
public:
    /// `PackageError`. The input has to outlive the archive.
    ZipArchive(ZipInput& input, const Limits& limits);

    [[nodiscard]] const std::vector<ZipEntry>& entries() const { return entries_; }
    /// `PackageError` Damaged if what is there isn't what its entry says; the caller has looked
    /// whether that is too much.
    [[nodiscard]] std::string read(std::uint64_t index) const;
    /// At most so many bytes from its beginning.
    [[nodiscard]] std::string read(std::uint64_t index, std::uint64_t most) const;
    /// Writes a new archive: the entries in their order, those that don't change as the same
    /// compressed bytes, new ones last. `aside` holds the bytes of those that are kept there.
    /// `PackageError`.
    void write(ZipOutput& output, const std::vector<ZipChange>& changes, PartsAside& aside) const;

private:
    struct Discard {
        void operator()(zip_t* archive) const { zip_discard(archive); }
    };
    using Handle = std::unique_ptr<zip_t, Discard>;

    [[nodiscard]] static Handle open(ZipSource& source);
    [[nodiscard]] static zip_source_t* sourceOf(zip_t* archive, const ZipChange& change,
                                                PartsAside& aside);
    void copy(ZipOutput& output) const;

    ZipInput& input_;
    Limits limits_;
    std::unique_ptr<ZipSource> source_;
    Handle archive_;
    std::vector<ZipEntry> entries_;
};

}  // namespace office::package
