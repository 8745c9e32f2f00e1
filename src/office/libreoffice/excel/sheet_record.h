#pragma once

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XNamedRanges.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/table/XCellRange.hpp>

#include <cstdint>
#include <memory>
#include <string>

#include "office/libreoffice/excel/addresses.h"
#include "office/libreoffice/excel/chart_shapes.h"

namespace libreoffice::excel {

/// A sheet that was met, and what automation knows of it beyond LibreOffice. The reference held
/// follows the sheet when it is renamed or moved. When the sheet is deleted it silently stands for
/// a neighbour, so writing goes through `SheetList::requireThere`.
class SheetRecord {
public:
    SheetRecord(uno::Reference<css::sheet::XSpreadsheet> sheet, std::string name);

    [[nodiscard]] const uno::Reference<css::sheet::XSpreadsheet>& sheet() const { return sheet_; }
    [[nodiscard]] const uno::Reference<css::beans::XPropertySet>& properties();
    [[nodiscard]] uno::Reference<css::table::XCellRange> cells(const CellBlock& block) const;
    [[nodiscard]] const uno::Reference<css::sheet::XNamedRanges>& names();
    [[nodiscard]] ChartShapes& charts() { return charts_; }

    /// The name as last seen, and as it is now.
    [[nodiscard]] const std::string& knownName() const { return name_; }
    [[nodiscard]] std::string readName();
    void rename(const std::string& name);
    void noteName(std::string name) { name_ = std::move(name); }

    /// `office::Failure` Disconnected if the sheet has been found deleted.
    void requireNotGone(const std::string& source) const;

    /// The place among all sheets, from 0.
    [[nodiscard]] std::int32_t place();

    [[nodiscard]] bool isShown();
    void show(bool shown);

    /// A sheet of a kind that LibreOffice does not know: it shows one as a sheet with one chart and
    /// no cells.
    bool isChartSheet = false;
    /// Hidden so that no menu of Excel shows it; LibreOffice knows plain hiding only.
    bool isVeryHidden = false;
    /// The part of the file that the sheet was loaded from, and its name there; empty for one made
    /// in this session.
    std::string part;
    std::string fileName;
    /// Found deleted.
    bool isGone = false;

private:
    uno::Reference<css::sheet::XSpreadsheet> sheet_;
    uno::Reference<css::beans::XPropertySet> properties_;
    uno::Reference<css::container::XNamed> named_;
    uno::Reference<css::sheet::XCellRangeAddressable> addressable_;
    uno::Reference<css::sheet::XNamedRanges> names_;
    std::string name_;
    ChartShapes charts_;
};

using SheetPtr = std::shared_ptr<SheetRecord>;

}  // namespace libreoffice::excel
