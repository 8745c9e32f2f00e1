#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "office/model/powerpoint/deck.h"
#include "office/package/workbook/workbook_file.h"
#include "office/value.h"

/// PowerPoint's object model over presentations as files (.pptx and its relatives). Nothing of a
/// file changes but what the object model is told to: new slides and shapes are added to it, and
/// all else is written again as it was.
namespace office::package {

namespace model = office::model::powerpoint;

/// What one has to know of a file before it is opened.
struct DeckFacts {
    /// In the namespaces of the strict standard, which aren't written here.
    bool isStrict = false;
    /// A signature stands for its content and holds for no other.
    bool isSigned = false;
    bool hasMacros = false;
};

/// `PackageError`: NotAPackage too for a package that is no presentation.
[[nodiscard]] DeckFacts factsOf(const std::filesystem::path& file);

/// The size of a text as it is drawn in one line after another, lines broken at the width if there
/// is one. In points.
using MeasureText = std::function<model::Size(const std::string& words, const model::Font& font,
                                              std::optional<double> widthPt)>;

/// What a PowerPoint of files works with.
struct FileRules {
    MeasureText measure;
    /// Where Excel leaves what was copied; none for a PowerPoint that nothing is pasted into.
    ClipboardPtr clipboard;
    /// What it pastes charts and workbooks of.
    WorkbookFilesPtr workbooks = std::make_shared<WorkbookFiles>();
    /// Whether the workbook behind an embedded object keeps the object's sheet alone.
    bool embedsSheetAlone = false;
    /// The folder that links are written relative to, which has to be the presentation's own. Empty
    /// for links that hold the whole path.
    std::filesystem::path linkBase = {};
};
using FileRulesPtr = std::shared_ptr<const FileRules>;

/// A running PowerPoint that opens files and shows nothing.
[[nodiscard]] Object powerPointOfFiles(FileRules rules);

}  // namespace office::package
