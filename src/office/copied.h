#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "office/cell_contents.h"
#include "office/failure.h"
#include "office/picture.h"
#include "office/table_look.h"

namespace office {

/// Where something stands that was copied in Excel.
struct CopySource {
    enum class Kind { Chart, Cells, Picture };

    Kind kind = Kind::Picture;
    /// The workbook's file; empty for one that was never saved.
    std::string file;
    std::string sheet;
    /// Of a chart that lies on its sheet; empty for that of a chart sheet, and for cells.
    std::string chart;
    /// Of cells: "$B$4:$H$20".
    std::string address;
};

/// What was copied in Excel last. The back ends of PowerPoint and Word say what a paste of it
/// makes: from here it can be had as a picture and, of cells, as a table; what else a paste wants
/// they fetch from the source itself.
class Copied {
public:
    /// In points, as it is in the workbook.
    Copied(CopySource source, double widthPt, double heightPt)
        : source_(std::move(source)),
          widthPt_(widthPt),
          heightPt_(heightPt) {}
    Copied(const Copied&) = delete;
    Copied& operator=(const Copied&) = delete;
    virtual ~Copied() = default;

    [[nodiscard]] const CopySource& source() const { return source_; }
    [[nodiscard]] double widthPt() const { return widthPt_; }
    [[nodiscard]] double heightPt() const { return heightPt_; }
    /// A PNG file with the true size: with 288 dots to the inch, or with fewer where that is
    /// quicker. `Failure` 1004 if there is nothing to take a picture of.
    [[nodiscard]] virtual Picture picture(Sharpness sharpness) const = 0;
    /// `Failure` 1004 for anything but cells.
    [[nodiscard]] virtual TableLook table() const {
        refuse("Copy", "What was copied has no cells");
    }
    /// The same with as many cells as a page takes, which is more than a table elsewhere holds.
    [[nodiscard]] virtual TableLook tableOfPage() const { return table(); }
    /// What cells of the workbook hold now, which a chart may draw on: those at an address such as
    /// "$B$4:$H$20". Nothing where that can't be told.
    [[nodiscard]] virtual std::optional<CellContents> contentsOf(
        const std::string& /*sheet*/, const std::string& /*address*/) const {
        return std::nullopt;
    }
    /// One of those cells as it is shown: "12.5 %", or as nothing if its format hides it. Nothing
    /// where that can't be told.
    [[nodiscard]] virtual std::optional<std::string> shownTextOf(
        const std::string& /*sheet*/, const std::string& /*address*/) const {
        return std::nullopt;
    }

private:
    CopySource source_;
    double widthPt_;
    double heightPt_;
};

using CopiedPtr = std::shared_ptr<const Copied>;

/// As wide as something is to be, but no higher than that.
struct RoomForTable {
    double widthPt = 0;
    double heightPt = 0;
};

/// Where the applications of one machine leave what was copied, for each other.
struct Clipboard {
    CopiedPtr copied;
    /// What a table that is pasted now will be made to fit into. One that is pasted in that size
    /// has its letters in proportion, where a suite stretches columns and rows alone.
    std::optional<RoomForTable> room = {};
};

using ClipboardPtr = std::shared_ptr<Clipboard>;

/// What a paste is to make of it.
enum class PasteAs {
    /// A chart or a table that can be edited where it is pasted; of a picture, a picture.
    Default,
    /// A picture, asked of PowerPoint alone.
    Metafile,
    Png,
    /// An object that opens as a workbook of its own.
    Embedded,
    /// An object that follows the workbook's file.
    Linked
};

}  // namespace office
