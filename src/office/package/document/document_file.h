#pragma once

#include <filesystem>

#include "office/package/file_rules.h"
#include "office/package/office_file.h"
#include "office/value.h"

/// Word's object model over documents as files (.docx and its relatives). Nothing of a file changes
/// but what the object model is told to: new content is added to it, and all else is written again
/// as it was.
namespace office::package {

/// As `factsOf` of presentations. `PackageError`: NotAPackage too for a package that is no
/// document.
[[nodiscard]] FileFacts documentFactsOf(const std::filesystem::path& file);

/// A running Word that opens files and shows nothing.
[[nodiscard]] Object wordOfFiles(FileRules rules);

}  // namespace office::package
