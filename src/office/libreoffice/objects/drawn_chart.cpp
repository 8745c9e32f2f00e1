#include "office/libreoffice/objects/drawn_chart.h"

#include <com/sun/star/chart2/XChartTypeContainer.hpp>
#include <com/sun/star/chart2/XCoordinateSystemContainer.hpp>
#include <com/sun/star/chart2/XDataSeriesContainer.hpp>
#include <com/sun/star/chart2/data/XDataSource.hpp>
#include <com/sun/star/chart2/data/XNumericalDataSequence.hpp>
#include <com/sun/star/util/XCloneable.hpp>
#include <com/sun/star/util/XCloseable.hpp>

#include <algorithm>
#include <utility>
#include <vector>

#include "office/libreoffice/at_end.h"

namespace libreoffice::objects {

namespace {

using css::chart2::XChartDocument;
using SeriesRef = uno::Reference<css::chart2::XDataSeries>;
using SeriesOfType = uno::Reference<css::chart2::XDataSeriesContainer>;

std::vector<SeriesOfType> seriesByType(const uno::Reference<XChartDocument>& chart) {
    std::vector<SeriesOfType> types;
    const auto systems = tryAs<css::chart2::XCoordinateSystemContainer>(chart->getFirstDiagram());
    if (!systems.is()) return types;
    for (const auto& system : systems->getCoordinateSystems()) {
        for (const auto& type : as<css::chart2::XChartTypeContainer>(system)->getChartTypes())
            types.push_back(as<css::chart2::XDataSeriesContainer>(type));
    }
    return types;
}

/// Neither places along the other axis, nor sizes of bubbles, nor lengths of error bars.
bool isDrawnAsValues(const uno::Reference<uno::XInterface>& values) {
    const auto role = property<rtl::OUString>(values, "Role");
    return role.startsWith("values-") && role != "values-x" && role != "values-size";
}

bool hasValues(const SeriesRef& series) {
    const auto sequences = as<css::chart2::data::XDataSource>(series)->getDataSequences();
    return std::any_of(sequences.begin(), sequences.end(), [](const auto& sequence) {
        const auto values = tryAs<css::chart2::data::XNumericalDataSequence>(sequence->getValues());
        return values.is() && values->getNumericalData().hasElements() && isDrawnAsValues(values);
    });
}

bool leavesHiddenCellsOut(const uno::Reference<XChartDocument>& chart) {
    const auto diagram = chart->getFirstDiagram();
    return diagram.is() && !property<bool>(diagram, "IncludeHiddenCells");
}

}  // namespace

DrawnChart::DrawnChart(uno::Reference<XChartDocument> chart, Whole /*unused*/)
    : chart_(std::move(chart)) {}

DrawnChart::DrawnChart(uno::Reference<XChartDocument> chart)
    : DrawnChart(std::move(chart), Whole()) {
    if (chart_->hasInternalDataProvider() || !leavesHiddenCellsOut(chart_)) return;
    std::size_t drawn = 0;
    std::size_t all = 0;
    for (const SeriesOfType& type : seriesByType(chart_)) {
        const auto series = type->getDataSeries();
        all += static_cast<std::size_t>(series.getLength());
        drawn += static_cast<std::size_t>(std::count_if(series.begin(), series.end(), hasValues));
    }
    if (drawn == all || drawn == 0) return;
    copy_ = as<XChartDocument>(as<css::util::XCloneable>(chart_)->createClone());
    for (const SeriesOfType& type : seriesByType(copy_)) {
        std::vector<SeriesRef> kept;
        for (const SeriesRef& series : type->getDataSeries()) {
            if (hasValues(series)) kept.push_back(series);
        }
        type->setDataSeries({kept.data(), static_cast<sal_Int32>(kept.size())});
    }
}

DrawnChart::~DrawnChart() {
    if (copy_.is()) asFarAsPossible([&] { as<css::util::XCloseable>(copy_)->close(true); });
}

}  // namespace libreoffice::objects
