#pragma once

#include <string>
#include <string_view>

#include "office/package/package.h"

/// What presentations and documents have in common as files.
namespace office::package {

/// Relationships that other makers have added to the standard.
inline constexpr std::string_view macroProject =
    "http://schemas.microsoft.com/office/2006/relationships/vbaProject";
inline constexpr std::string_view signatureOrigin =
    "http://schemas.openxmlformats.org/package/2006/relationships/digital-signature/origin";

/// Takes out the macros of the part that a package is about, with what signs them.
void dropMacros(Package& package, const std::string& main);

/// Writes a package to a file; what stands there is replaced by the whole, or stays.
/// `PackageError`.
void saveOver(Package& package, const std::string& path);

}  // namespace office::package
