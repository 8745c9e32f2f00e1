#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "destinations/row_walk.h"
#include "session/host.h"

/// Each row as a file of its own in one folder.
namespace destinations {

/// How the files are called: by the item and its sheet, or by the row's place in the list.
enum class FileNames { NameAndSheet, Numerator };

struct ImageFileOptions {
    session::ImageFormat format = session::ImageFormat::Png;
    FileNames names = FileNames::NameAndSheet;
    /// It is made if need be.
    std::string folder = {};
    /// Whether files that are in the folder already give way; otherwise the new ones get names that
    /// are free. Two items of one run never share a file.
    bool replaces = false;
};

/// "MurvaneImages" in the user's home.
[[nodiscard]] std::string defaultImageFolder(session::OfficeSession& session);

/// The files that an export which replaces others would write.
[[nodiscard]] std::vector<std::string> plannedImageFiles(session::OfficeSession& session,
                                                         const catalogue::ExportList& list,
                                                         const ImageFileOptions& options);

/// Writes a file for each taken row. An item that can't be copied is a failure of that item; a
/// folder or a file that can't be written goes to the caller at once: it would be the same with
/// every item. The files written until then stay, each one whole.
WalkResult ExportRowsToImageFiles(RowBatch& batch, const ImageFileOptions& options);

}  // namespace destinations
