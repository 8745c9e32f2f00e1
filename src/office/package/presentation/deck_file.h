#pragma once

#include <filesystem>

#include "office/model/powerpoint/deck.h"
#include "office/package/file_rules.h"
#include "office/package/office_file.h"
#include "office/value.h"

/// PowerPoint's object model over presentations as files (.pptx and its relatives). Nothing of a
/// file changes but what the object model is told to: new slides and shapes are added to it, and
/// all else is written again as it was.
namespace office::package {

namespace powerpoint = model::powerpoint;

/// `PackageError`: NotAPackage too for a package that is no presentation.
[[nodiscard]] FileFacts deckFactsOf(const std::filesystem::path& file);

/// A running PowerPoint that opens files and shows nothing.
[[nodiscard]] Object powerPointOfFiles(FileRules rules);

}  // namespace office::package
