#pragma once

#include <span>
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

/// What one has to know of a file before it is opened.
struct FileFacts {
    /// In the namespaces of the strict standard, which aren't written here.
    bool isStrict = false;
    /// A signature stands for its content and holds for no other.
    bool isSigned = false;
    bool hasMacros = false;
};
/// Of a package that is about the part `main`, whose root has the name `root` in the strict
/// namespace `strict`. `PackageError`.
[[nodiscard]] FileFacts factsOf(Package& package, const std::string& main, std::string_view strict,
                                std::string_view root);

/// The part that a package is about, which is of one of these types. `PackageError` NotAPackage if
/// it is not: "it is no document".
[[nodiscard]] std::string mainPartOf(Package& package, std::span<const std::string_view> types,
                                     const char* kind);

/// Takes out the macros of the part that a package is about, with what signs them.
void dropMacros(Package& package, const std::string& main);

/// Writes a package to a file; what stands there is replaced by the whole, or stays.
/// `PackageError`.
void saveOver(Package& package, const std::string& path);

}  // namespace office::package
