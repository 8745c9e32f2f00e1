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

bool hasValues(const SeriesRef& series) {
    const auto sequences = as<css::chart2::data::XDataSource>(series)->getDataSequences();
    return std::any_of(sequences.begin(), sequences.end(), [](const auto& sequence) {
        const auto values = tryAs<css::chart2::data::XNumericalDataSequence>(sequence->getValues());
        return values.is() && values->getNumericalData().hasElements();
    });
}

bool leavesHiddenCellsOut(const uno::Reference<XChartDocument>& chart) {
    const auto diagram = chart->getFirstDiagram();
    return diagram.is() && !property<bool>(diagram, "IncludeHiddenCells");
}

}  // namespace

DrawnChart::DrawnChart(uno::Reference<XChartDocument> chart) : chart_(std::move(chart)) {
    if (chart_->hasInternalDataProvider() || !leavesHiddenCellsOut(chart_)) return;
    const auto types = seriesByType(chart_);
    const auto hasAll = std::all_of(types.begin(), types.end(), [](const SeriesOfType& type) {
        const auto series = type->getDataSeries();
        return std::all_of(series.begin(), series.end(), hasValues);
    });
    if (hasAll) return;
    copy_ = as<XChartDocument>(as<css::util::XCloneable>(chart_)->createClone());
    for (const SeriesOfType& type : seriesByType(copy_)) {
        std::vector<SeriesRef> drawn;
        for (const SeriesRef& series : type->getDataSeries()) {
            if (hasValues(series)) drawn.push_back(series);
        }
        type->setDataSeries({drawn.data(), static_cast<sal_Int32>(drawn.size())});
    }
}

DrawnChart::~DrawnChart() {
    if (copy_.is()) asFarAsPossible([&] { as<css::util::XCloseable>(copy_)->close(true); });
}

}  // namespace libreoffice::objects
