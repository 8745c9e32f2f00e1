#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "office/model/excel/book.h"

namespace office::model::excel {

/// What automation keeps for the application: remembered, whatever else is done with it below.
struct Settings {
    bool screenUpdating = true;
    bool enableEvents = true;
    bool displayAlerts = true;
    std::int32_t calculation = -4105;
    std::int32_t windowState = -4143;
};

/// The workbooks of one application.
class Books {
public:
    Books() = default;
    Books(const Books&) = delete;
    Books& operator=(const Books&) = delete;
    virtual ~Books() = default;

    virtual Settings& settings() = 0;

    virtual std::vector<BookPtr> open() = 0;
    /// The one that was used last; null with none open.
    virtual BookPtr active() = 0;
    /// Opens a file, which becomes active; one that is open already is not opened twice. `readOnly`
    /// leaves the file alone: the workbook can be changed nevertheless, also where the file may not
    /// be written or is somebody else's at the moment. `Failure` 1004 with the reason.
    virtual BookPtr load(const std::string& file, const std::string& password, bool readOnly) = 0;
    /// Asks the user for a file. A filter is "What it shows,*.pattern". The path, or false.
    virtual Value askForFile(const std::string& filter, const std::string& title) = 0;

    virtual Clipboard& clipboard() = 0;
    /// Writes a picture as `SheetChart::writePicture` does; none gives a white area.
    virtual void writePicture(const CopiedPtr& picture, const Box& area, const std::string& path,
                              PictureKind kind) = 0;
};

using BooksPtr = std::shared_ptr<Books>;

}  // namespace office::model::excel
