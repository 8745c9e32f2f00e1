#pragma once

#include <com/sun/star/chart2/XChartDocument.hpp>

#include "office/libreoffice/uno_values.h"

namespace libreoffice::objects {

/// A chart on a sheet with those of its series alone that have values, if there are any: the cells
/// of others are hidden, where the chart draws none of those, or have gone. LibreOffice would store
/// such a series without values, and give each one behind it the values of the next.
class DrawnChart {
public:
    explicit DrawnChart(uno::Reference<css::chart2::XChartDocument> chart);
    DrawnChart(const DrawnChart&) = delete;
    DrawnChart& operator=(const DrawnChart&) = delete;
    ~DrawnChart();

    /// The chart itself where all series have values, which it mostly is; else a copy.
    [[nodiscard]] const uno::Reference<css::chart2::XChartDocument>& model() const {
        return copy_.is() ? copy_ : chart_;
    }

private:
    // With an object that is whole, a copy that fails goes again.
    struct Whole {};
    DrawnChart(uno::Reference<css::chart2::XChartDocument> chart, Whole);

    uno::Reference<css::chart2::XChartDocument> chart_;
    uno::Reference<css::chart2::XChartDocument> copy_;
};

}  // namespace libreoffice::objects
