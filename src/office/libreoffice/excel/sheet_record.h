#pragma once

#include <com/sun/star/awt/Point.hpp>
#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/table/CellRangeAddress.hpp>
#include <com/sun/star/table/XCellRange.hpp>

#include <memory>
#include <optional>
#include <string>

#include "office/libreoffice/excel/chart_shapes.h"
#include "office/libreoffice/excel/named_ranges.h"
#include "office/libreoffice/uno_values.h"
#include "office/model/excel/sheet.h"

namespace libreoffice::excel {

namespace model = office::model::excel;

class CalcDocument;

/// Where cells lie on their sheet, in 1/100 mm.
struct PlaceOfCells {
    css::awt::Point corner;
    css::awt::Size size;
};

[[nodiscard]] model::CellBlock blockOf(const uno::Reference<css::table::XCellRange>& cells);
[[nodiscard]] PlaceOfCells placeOf(const uno::Reference<uno::XInterface>& cells);

/// What is written into cells.
constexpr auto contentsOfCells =
    static_cast<sal_Int16>(css::sheet::CellFlags::VALUE | css::sheet::CellFlags::DATETIME |
                           css::sheet::CellFlags::STRING | css::sheet::CellFlags::FORMULA);
/// Where in a range something is written.
[[nodiscard]] uno::Sequence<css::table::CellRangeAddress> filledParts(
    const uno::Reference<css::table::XCellRange>& cells);

/// A column or a row, in 1/100 mm.
struct SeenLine {
    std::int32_t place;
    std::int32_t start;
    std::int32_t length;
};

/// A sheet that was met, and what automation knows of it beyond LibreOffice. The reference held
/// follows the sheet when it is renamed or moved. When the sheet is deleted it silently stands for
/// a neighbour, so before it is changed the list of sheets is asked whether it is still there.
class SheetRecord : public model::Sheet, public std::enable_shared_from_this<SheetRecord> {
public:
    SheetRecord(CalcDocument& book, uno::Reference<css::sheet::XSpreadsheet> sheet,
                std::string name);

    [[nodiscard]] CalcDocument& book() const { return book_; }
    [[nodiscard]] const uno::Reference<css::sheet::XSpreadsheet>& sheet() const { return sheet_; }
    [[nodiscard]] uno::Reference<css::table::XCellRange> range(const model::CellBlock& block) const;
    /// The block and the rest of the merged cells that it holds a part of.
    [[nodiscard]] uno::Reference<css::table::XCellRange> wholeCells(
        const model::CellBlock& block) const;
    [[nodiscard]] ChartShapes& chartShapes() { return charts_; }
    /// Those that were seen last, which tell where to look for others.
    [[nodiscard]] SeenLine& seenColumn() { return seenColumn_; }
    [[nodiscard]] SeenLine& seenRow() { return seenRow_; }
    void noteName(std::string name) { name_ = std::move(name); }
    [[nodiscard]] bool isShown();
    void show(bool shown);

    /// A sheet of a kind that LibreOffice does not know: it shows one as a sheet with one chart and
    /// no cells.
    bool showsChart = false;
    /// Hidden so that no menu of Excel shows it; LibreOffice knows plain hiding only.
    bool isVeryHidden = false;
    /// The part of the file that the sheet was loaded from, and its name there; empty for one made
    /// in this session.
    std::string part;
    std::string fileName;
    bool foundDeleted = false;

    [[nodiscard]] bool isGone() const override { return foundDeleted; }
    bool isThere() override;
    std::string name() override;
    [[nodiscard]] const std::string& knownName() const override { return name_; }
    void rename(const std::string& name) override;
    [[nodiscard]] bool isChartSheet() const override { return showsChart; }
    std::int32_t place() override;
    model::Visibility visibility() override;
    void setVisibility(model::Visibility visibility) override;
    bool isProtected() override;
    void activate() override;

    model::CellsPtr cells(const model::CellBlock& block) override;
    model::CellBlock used() override;
    std::unique_ptr<model::CellMap> cellMap() override;
    void select(const model::CellBlocks& blocks) override;

    std::vector<model::SheetChartPtr> charts() override;
    model::SheetChartPtr findChart(std::string_view name) override { return charts_.find(name); }
    model::SheetChartPtr ownChart() override;
    NamedRanges& names() override;

private:
    [[nodiscard]] const uno::Reference<css::beans::XPropertySet>& properties();
    [[nodiscard]] const uno::Reference<css::container::XNamed>& named();

    CalcDocument& book_;
    uno::Reference<css::sheet::XSpreadsheet> sheet_;
    uno::Reference<css::beans::XPropertySet> properties_;
    uno::Reference<css::container::XNamed> named_;
    uno::Reference<css::sheet::XCellRangeAddressable> addressable_;
    std::string name_;
    LastLook lookAtShown_;
    bool isShown_ = true;
    ChartShapes charts_;
    /// As long as none was seen: those of a new sheet.
    SeenLine seenColumn_{0, 0, 2258};
    SeenLine seenRow_{0, 0, 452};
    std::optional<NamedRanges> names_;
};

using SheetRecordPtr = std::shared_ptr<SheetRecord>;

[[nodiscard]] inline model::CellBlock blockOf(const css::table::CellRangeAddress& address) {
    return {address.StartColumn, address.StartRow, address.EndColumn, address.EndRow};
}

}  // namespace libreoffice::excel
