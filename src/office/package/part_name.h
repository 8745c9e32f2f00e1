#pragma once

#include <string>
#include <string_view>

namespace office::package {

/// What two spellings of one part's name have in common: ASCII letters lose their case, escapes
/// such as %20 stand for their character.
[[nodiscard]] std::string partKey(std::string_view part);

/// The name of the part that an entry of a ZIP file holds. `PackageError` Damaged for a name that
/// no part can have.
[[nodiscard]] std::string partOfEntry(std::string_view entry);

/// The part that holds the relationships of a part, or of the package ("/").
[[nodiscard]] std::string relationshipsPartOf(std::string_view part);

/// The part that a relationship's target names as seen from `source`. `PackageError` Damaged if it
/// leads out of the package or nowhere.
[[nodiscard]] std::string partOfTarget(std::string_view source, std::string_view target);

/// The target that leads from one part, or from the package ("/"), to another.
[[nodiscard]] std::string targetOf(std::string_view source, std::string_view part);

/// The folder of a part, without a slash at its end.
[[nodiscard]] std::string folderOf(std::string_view part);

/// In small letters and without the dot; empty if there is none.
[[nodiscard]] std::string extensionOf(std::string_view part);

/// A name out of a file as it may stand in a message: not too long, and nothing but ASCII.
[[nodiscard]] std::string shown(std::string_view name);

}  // namespace office::package
