#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "office/package/relationships.h"

/// Office Open XML packages: parts with their content types and relationships in a ZIP file.
///
/// A package is read to be added to. What nobody changes is written again as the compressed bytes
/// that it was read as. Nothing in it is trusted: sizes, names, counts and markup are checked where
/// they are read, and only what is asked for is unpacked.
///
/// A part's name begins with a slash ("/ppt/presentation.xml"). Names are equal without regard to
/// the case of ASCII letters.
namespace office::package {

/// Why a file isn't taken.
enum class Fault {
    /// It can't be read at all.
    Unreadable,
    /// It is something else than a package, such as a file of the older binary formats.
    NotAPackage,
    /// A package that breaks the rules: `what()` says which part and how.
    Damaged,
    /// A part or the whole is larger than `Limits` allow, or says to be.
    TooLarge,
    /// It is encrypted with a password.
    Password,
    /// It is encrypted, and only a rights management service opens it.
    Rights,
};

/// `what()` is a clause for the user without a full stop: "it holds two parts named /a.xml".
class PackageError : public std::runtime_error {
public:
    PackageError(Fault fault, const std::string& text) : std::runtime_error(text), fault_(fault) {}
    [[nodiscard]] Fault fault() const { return fault_; }

private:
    Fault fault_;
};

struct Limits {
    std::uint64_t parts = 100'000;
    /// Of a part that is read; the others are only carried.
    std::uint64_t partBytes = 64ULL << 20;
    /// Of all parts together that one package reads in its life, and of what it reads once more.
    std::uint64_t bytesRead = 512ULL << 20;
    /// Of the content types and of each part of relationships, which are always markup.
    std::uint64_t markupBytes = 16ULL << 20;
};

enum class Storage { Deflated, Stored };

class Package {
public:
    /// `PackageError`. The file is only read, and stays open until the package goes.
    [[nodiscard]] static Package open(const std::filesystem::path& file, const Limits& limits = {});
    /// The same from a file in memory, which has to outlive the package.
    [[nodiscard]] static Package fromBytes(std::string_view file, const Limits& limits = {});
    static Package fromBytes(std::string&& file, const Limits& limits = {}) = delete;
    Package(const Package&) = delete;
    Package& operator=(const Package&) = delete;
    Package(Package&&) noexcept;
    Package& operator=(Package&&) noexcept;
    ~Package();

    [[nodiscard]] bool has(std::string_view part) const;
    /// The names of all parts, as the file spells them and in its order, new ones last. The content
    /// types are none.
    [[nodiscard]] std::vector<std::string> parts() const;
    /// Empty for a part without one.
    [[nodiscard]] std::string contentTypeOf(std::string_view part) const;
    /// `PackageError` Damaged if there is no such part or its data are wrong, TooLarge.
    [[nodiscard]] std::string read(std::string_view part) const;
    /// What a part begins with: all of it, or so many bytes.
    [[nodiscard]] std::string head(std::string_view part, std::size_t most) const;

    /// Changes the content of a part that is there.
    void replace(std::string_view part, std::string bytes);
    /// The name is free.
    void add(std::string_view part, std::string_view contentType, std::string bytes,
             Storage storage = Storage::Deflated);
    /// The same with the type and the bytes of another part that has been added, which both share
    /// in memory.
    void addCopy(std::string_view part, std::string_view of);
    /// Takes the part out with its relationships. Those that lead to it are the caller's.
    void remove(std::string_view part);
    /// Takes the part out with those that it leads to, as far as they are there. `PackageError`.
    void removeWithTargets(std::string_view part);
    void setContentType(std::string_view part, std::string_view contentType);
    /// A part of these bytes, which is `stem` + number + `ending` if none has been added yet.
    std::string addMedia(std::string_view stem, std::string_view ending,
                         std::string_view contentType, std::string bytes,
                         Storage storage = Storage::Stored);
    /// The same for bytes that are on their way, and equal to all others of this look. They are
    /// waited for when the package is written.
    std::string addMedia(std::string_view stem, std::string_view ending,
                         std::string_view contentType, std::shared_future<std::string> bytes,
                         const std::string& look);
    /// `stem` + the lowest number from 1 that neither a part has nor relationships without their
    /// part + `ending`.
    [[nodiscard]] std::string freeName(std::string_view stem, std::string_view ending) const;

    /// Of a part; of the package itself for "/". A change through it is written with the package.
    /// It stays where it is until the part is removed. `PackageError`.
    Relationships& relationshipsOf(std::string_view part);
    /// The part that a relationship of a type, or of an id, leads to. Empty if there is none in the
    /// package.
    [[nodiscard]] std::string partOfType(std::string_view source, std::string_view type);
    [[nodiscard]] std::string partOfId(std::string_view source, std::string_view id);

    /// Writes the package to a file that isn't there yet. `PackageError` Unreadable with the
    /// system's reason; what was begun is removed.
    void save(const std::filesystem::path& file);
    /// The same file in memory. `PackageError`.
    [[nodiscard]] std::string bytes();

private:
    class Content;
    explicit Package(std::unique_ptr<Content> content);
    std::string partOf(const Relationships& all, const Relationship* one) const;

    std::unique_ptr<Content> content_;
};

}  // namespace office::package
