#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "office/copied.h"
#include "office/libreoffice/excel/chart_shapes.h"
#include "office/libreoffice/excel/picture_maker.h"
#include "office/libreoffice/excel/sheet_record.h"
#include "office/libreoffice/units.h"
#include "office/model/excel/cell_block.h"

namespace libreoffice::excel {

/// What was copied in Calc. An Impress of the same suite can take it over without a file between.
class CopiedHere : public office::Copied {
public:
    CopiedHere(office::CopySource source, const css::awt::Size& size)
        : Copied(std::move(source), pointsOf(size.Width), pointsOf(size.Height)),
          size_(size) {}

    [[nodiscard]] const css::awt::Size& size() const { return size_; }
    /// A picture of it in vectors, of the size that it has in the workbook. `office::Failure` 1004
    /// if there is nothing to take a picture of.
    [[nodiscard]] virtual uno::Reference<css::graphic::XGraphic> graphic() const = 0;

private:
    css::awt::Size size_;
};

/// A picture of a chart or of cells as they were, in the suite's own vector format.
class CopiedPicture : public CopiedHere {
public:
    CopiedPicture(Desk& desk, office::CopySource source, uno::Sequence<sal_Int8> metafile,
                  const css::awt::Size& size);
    /// One that stays in the suite until somebody asks for its bytes.
    CopiedPicture(Desk& desk, office::CopySource source,
                  uno::Reference<css::graphic::XGraphic> graphic, const css::awt::Size& size);

    [[nodiscard]] uno::Sequence<sal_Int8> metafile() const;
    [[nodiscard]] office::Picture picture(office::Sharpness sharpness) const override;
    [[nodiscard]] uno::Reference<css::graphic::XGraphic> graphic() const override;

private:
    Desk& desk_;
    /// One of both.
    uno::Sequence<sal_Int8> metafile_;
    uno::Reference<css::graphic::XGraphic> graphic_;
};

/// A chart. Its workbook has to be open still when more of it is asked for.
class CopiedChart : public CopiedHere {
public:
    /// `owner`: without it the shape would go; null for one on a sheet of the workbook.
    CopiedChart(CalcDocument& book, office::CopySource source,
                uno::Reference<css::drawing::XShape> shape, SheetOfChart home,
                std::shared_ptr<const void> owner);

    [[nodiscard]] CalcDocument& book() const;
    [[nodiscard]] const uno::Reference<css::drawing::XShape>& shape() const { return shape_; }
    /// Where the shape is, which for one that was recovered is not in its workbook.
    [[nodiscard]] const SheetOfChart& home() const { return home_; }
    [[nodiscard]] office::Picture picture(office::Sharpness sharpness) const override;
    [[nodiscard]] uno::Reference<css::graphic::XGraphic> graphic() const override;
    [[nodiscard]] std::optional<office::CellContents> contentsOf(
        const std::string& sheet, const std::string& address) const override;
    [[nodiscard]] std::optional<std::string> shownTextOf(const std::string& sheet,
                                                         const std::string& address) const override;

private:
    std::shared_ptr<CalcDocument> book_;
    std::shared_ptr<const void> owner_;
    SheetOfChart home_;
    uno::Reference<css::drawing::XShape> shape_;
};

/// One block of cells. Its workbook has to be open still when more of it is asked for.
class CopiedCells : public CopiedHere {
public:
    CopiedCells(SheetRecordPtr sheet, office::CopySource source,
                uno::Reference<css::table::XCellRange> cells,
                const office::model::excel::CellBlock& block, const css::awt::Size& size);

    [[nodiscard]] SheetRecord& sheet() const;
    [[nodiscard]] const uno::Reference<css::table::XCellRange>& cells() const { return cells_; }
    [[nodiscard]] const office::model::excel::CellBlock& block() const { return block_; }
    [[nodiscard]] office::Picture picture(office::Sharpness sharpness) const override;
    [[nodiscard]] uno::Reference<css::graphic::XGraphic> graphic() const override;
    [[nodiscard]] office::TableLook table() const override;
    [[nodiscard]] office::TableLook tableOfPage() const override;

private:
    [[nodiscard]] office::TableLook tableUpTo(std::size_t mostCells) const;

    SheetRecordPtr sheet_;
    std::shared_ptr<CalcDocument> book_;
    uno::Reference<css::table::XCellRange> cells_;
    office::model::excel::CellBlock block_;
};

}  // namespace libreoffice::excel
