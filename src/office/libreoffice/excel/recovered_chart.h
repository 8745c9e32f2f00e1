#pragma once

#include <com/sun/star/drawing/XShape.hpp>

#include <memory>
#include <string>

#include "office/libreoffice/desk.h"
#include "office/libreoffice/excel/sheet_record.h"
#include "office/libreoffice/private_folder.h"

namespace libreoffice::excel {

/// The chart of a chart sheet that LibreOffice loses while it loads the file, which it does when
/// the chart begins left of or above the page or has no size there. It is taken from a private copy
/// of the file with that mended, opened without a window for as long as this object lives. So it
/// shows the chart as the file holds it.
class RecoveredChart {
public:
    /// `office::Failure` 1004 if the chart can't be found that way either.
    explicit RecoveredChart(SheetRecord& sheet);
    RecoveredChart(const RecoveredChart&) = delete;
    RecoveredChart& operator=(const RecoveredChart&) = delete;
    ~RecoveredChart();

    [[nodiscard]] const ChartShapePtr& chart() const { return chart_; }
    [[nodiscard]] SheetOfChart home() const;

private:
    class OpenCopy;

    // In this order, so that they go in the other: the shape first, the folder last.
    PrivateFolder folder_;
    std::string sheet_;
    std::unique_ptr<OpenCopy> copy_;
    std::unique_ptr<ChartShapes> charts_;
    ChartShapePtr chart_;
};

}  // namespace libreoffice::excel
