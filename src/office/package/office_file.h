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
    /// Of a document: Word lets nobody change it, or only some of it.
    bool isProtected = false;
    /// Of a document: Word marks what is changed as a change.
    bool recordsChanges = false;
};
/// Of a package that is about the part `main`, whose root has the name `root` in the strict
/// namespace `strict`. `PackageError`.
[[nodiscard]] FileFacts factsOf(Package& package, const std::string& main, std::string_view strict,
                                std::string_view root);

/// The part that a package is about, which is of one of these types. `PackageError` NotAPackage if
/// it is not: "it is no document".
[[nodiscard]] std::string mainPartOf(Package& package, std::span<const std::string_view> types,
                                     const char* kind);

/// A kind of file that a package about something can be saved as.
struct FileKind {
    std::string_view ending;
    /// What the part says that the package is about.
    const char* contentType;
    bool keepsMacros;
};
/// Makes a package the kind of file that a path ends as; macros and what signs them go where it
/// keeps none. `Failure` 5, of the class's `SaveCopyAs`, for another ending than those of the
/// kinds.
void becomeFileOf(const std::string& path, const FileKind (&kinds)[2], Package& package,
                  const std::string& main, const std::string& className);

/// Writes a package to a file; what stands there is replaced by the whole, or stays.
/// `PackageError`.
void saveOver(Package& package, const std::string& path);

}  // namespace office::package
