#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "office/copied.h"
#include "office/package/workbook/workbook_file.h"
#include "office/picture.h"
#include "office/size.h"

namespace office::package {

/// The size of a text as it is drawn in one line after another, lines broken at the width if there
/// is one. In points.
using MeasureText =
    std::function<Size(const std::string& words, const Font& font, std::optional<double> widthPt)>;

/// What a PowerPoint or a Word of files works with.
struct FileRules {
    MeasureText measure;
    /// Where Excel leaves what was copied; none for an application that nothing is pasted into.
    ClipboardPtr clipboard;
    /// Where Excel's picture files may still be on their way; none if they never are.
    PictureFilesPtr pictures = nullptr;
    /// What it pastes charts and workbooks of.
    WorkbookFilesPtr workbooks = std::make_shared<WorkbookFiles>();
    /// Whether the workbook behind an embedded object keeps the object's sheet alone.
    bool embedsSheetAlone = false;
    /// The folder that links are written relative to, which has to be that of the file written.
    /// Empty for links that hold the whole path.
    std::filesystem::path linkBase = {};
};
using FileRulesPtr = std::shared_ptr<const FileRules>;

}  // namespace office::package
