#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "office/model/excel/cells.h"
#include "office/model/part.h"
#include "office/picture_kind.h"

namespace office::model::excel {

/// A chart: one that lies on a worksheet, or that of a chart sheet.
class SheetChart : public Part {
public:
    /// Whether it lies on its sheet; one that doesn't leaves the sheet alone.
    [[nodiscard]] virtual bool isOnSheet() const { return true; }
    virtual std::string name() = 0;
    virtual Box box() = 0;
    /// The chart, or a picture of it as it looks now.
    virtual CopiedPtr copy(CopySource source) = 0;
    /// Writes a file with its true size: a PNG with 288 dots to the inch, which may still be on its
    /// way (`PictureFiles`), or vectors. `Failure` 1004 if it can't be written; then there is no
    /// file of that name.
    virtual void writePicture(const std::string& path, PictureKind kind) = 0;
    /// Takes a picture in. `Failure` 1004 from a chart that has data of its own.
    virtual void paste(const CopiedPtr& picture) = 0;
    /// Selects it on its sheet, which is the one on top.
    virtual void select() = 0;
    virtual void remove() = 0;
};

using SheetChartPtr = std::shared_ptr<SheetChart>;

class NameScope;

enum class Visibility : std::int32_t { Shown = -1, Hidden = 0, VeryHidden = 2 };

/// A sheet of a workbook: a worksheet, or a chart sheet.
class Sheet : public Part {
public:
    /// Whether it is still in the workbook. Looks anew, which may take a remote call: before
    /// anything is changed.
    virtual bool isThere() = 0;

    virtual std::string name() = 0;
    /// The name that was read last; makes no remote call.
    [[nodiscard]] virtual const std::string& knownName() const = 0;
    virtual void rename(const std::string& name) = 0;
    [[nodiscard]] virtual bool isChartSheet() const = 0;
    virtual std::int32_t place() = 0;
    virtual Visibility visibility() = 0;
    virtual void setVisibility(Visibility visibility) = 0;
    /// Whether its cells are protected.
    virtual bool isProtected() = 0;
    /// Brings it to the top; it is not hidden.
    virtual void activate() = 0;

    virtual CellsPtr cells(const CellBlock& block) = 0;
    /// The block that holds something; the first cell if nothing does.
    virtual CellBlock used() = 0;
    virtual std::unique_ptr<CellMap> cellMap() = 0;
    virtual void select(const CellBlocks& blocks) = 0;

    /// In the order in which they lie upon each other.
    virtual std::vector<SheetChartPtr> charts() = 0;
    /// Whatever the case of the name; null if there is none.
    virtual SheetChartPtr findChart(std::string_view name) = 0;
    /// The chart of a chart sheet. `Failure` 1004 if it can't be read.
    virtual SheetChartPtr ownChart() = 0;
    virtual NameScope& names() = 0;
};

using SheetPtr = std::shared_ptr<Sheet>;

/// What is drawn of a block: whole rows and columns end with the used part of the sheet. Nothing if
/// none of it is in use.
[[nodiscard]] std::optional<CellBlock> drawnPart(const CellBlock& block, Sheet& sheet);

}  // namespace office::model::excel
