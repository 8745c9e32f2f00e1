#include "office/libreoffice/excel/data_bars.h"

#include <com/sun/star/sheet/ConditionEntryType.hpp>
#include <com/sun/star/sheet/DataBarAxis.hpp>
#include <com/sun/star/sheet/DataBarEntryType.hpp>
#include <com/sun/star/sheet/XDataBarEntry.hpp>

#include <algorithm>
#include <cmath>

#include "office/libreoffice/excel/book_looks.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/numbers_in_cells.h"
#include "office/text.h"

namespace libreoffice::excel {

namespace {

namespace EntryType = css::sheet::DataBarEntryType;

/// One end of the scale; nothing if it is a formula's result. The suite gives the automatic end and
/// the least number the same name.
std::optional<double> endOf(const uno::Reference<css::sheet::XDataBarEntry>& entry, bool isUpper,
                            bool isAutomatic, const std::vector<double>& sorted) {
    const double value = office::leadingNumber(fromUno(entry->getFormula()));
    switch (entry->getType()) {
        case EntryType::DATABAR_AUTO:
            if (isUpper) return std::max(0.0, sorted.back());
            return isAutomatic ? std::min(0.0, sorted.front()) : sorted.front();
        case EntryType::DATABAR_MAX:
            return sorted.back();
        case EntryType::DATABAR_PERCENT:
            return std::lerp(sorted.front(), sorted.back(), value / 100);
        case EntryType::DATABAR_PERCENTILE:
            return percentile(sorted, value / 100);
        case EntryType::DATABAR_VALUE:
            return value;
        default:
            return std::nullopt;
    }
}

/// As a bar fades away from the axis.
std::int32_t faded(std::int32_t colour) {
    constexpr double towardsWhite = 0.8;
    std::int32_t light = 0;
    for (const int shift : {0, 8, 16}) {
        const std::int32_t part = colour >> shift & 0xFF;
        light |= static_cast<std::int32_t>(std::lround(std::lerp(part, 255, towardsWhite)))
                 << shift;
    }
    return light;
}

}  // namespace

DataBars::DataBars(SheetRecord& sheet, const std::vector<CellCondition>& conditions) {
    for (const CellCondition& each : conditions) {
        if (each.kind != css::sheet::ConditionEntryType::DATABAR) continue;
        if (auto read = barsOf(sheet, as<css::beans::XPropertySet>(each.entry), each.blocks))
            all_.push_back(*std::move(read));
    }
}

std::optional<DataBars::Bars> DataBars::barsOf(
    SheetRecord& sheet, const uno::Reference<css::beans::XPropertySet>& entry,
    const std::vector<model::CellBlock>& blocks) {
    const auto ends =
        property<uno::Sequence<uno::Reference<css::sheet::XDataBarEntry>>>(entry, "DataBarEntries");
    const auto sorted = sheet.book().looks().numbersIn(sheet, blocks);
    const std::vector<double>& numbers = *sorted;
    if (ends.getLength() != 2 || numbers.empty()) return std::nullopt;
    const bool isAutomatic = ends[1]->getType() != EntryType::DATABAR_MAX;
    const auto least = endOf(ends[0], false, isAutomatic, numbers);
    const auto most = endOf(ends[1], true, isAutomatic, numbers);
    if (!least || !most || *least >= *most) return std::nullopt;
    Bars bars{blocks, *least, *most};
    const auto axis = property<sal_Int32>(entry, "AxisPosition");
    if (axis == css::sheet::DataBarAxis::AXIS_AUTOMATIC) bars.axis = Axis::Automatic;
    if (axis == css::sheet::DataBarAxis::AXIS_MIDDLE) bars.axis = Axis::Middle;
    bars.isFading = property<bool>(entry, "UseGradient");
    bars.isAlone = !property<bool>(entry, "ShowValue", true);
    bars.colour = swapRedAndBlue(property<sal_Int32>(entry, "Color"));
    // What the suite draws where none is named.
    constexpr sal_Int32 red = 0xFF0000;
    bars.negativeColour = property<bool>(entry, "UseNegativeColor")
                              ? swapRedAndBlue(property<sal_Int32>(entry, "NegativeColor", red))
                              : bars.colour;
    return bars;
}

std::optional<office::CellBar> DataBars::barOf(std::int32_t column, std::int32_t row,
                                               double number) const {
    const auto cell = model::CellBlock::cell(row, column);
    const auto found = std::find_if(all_.begin(), all_.end(),
                                    [&](const Bars& bars) { return meetsAny(bars.blocks, cell); });
    if (found == all_.end()) return std::nullopt;
    office::CellBar look = lookOf(*found, number);
    look.isAlone = found->isAlone;
    return look;
}

office::CellBar DataBars::lookOf(const Bars& bars, double number) {
    const auto& [blocks, least, most, axis, isFading, isAlone, colour, negativeColour] = bars;
    const double value = std::clamp(number, least, most);
    const double share = (value - least) / (most - least);
    const std::int32_t end = isFading ? faded(colour) : colour;
    if (axis == Axis::None) {
        // The suite does not tell how long the shortest and the longest bar are. Such bars are
        // those of files without the later notation as a rule, and there it is so if nobody says
        // otherwise.
        constexpr double shortest = 0.1, longest = 0.9;
        const std::int32_t begin = number < 0 ? negativeColour : colour;
        return {0, std::lerp(shortest, longest, share), begin, isFading ? faded(begin) : begin};
    }
    if (least >= 0) {
        const double zero = axis == Axis::Middle ? 0.5 : 0;
        return {zero, std::lerp(zero, 1.0, share), colour, end};
    }
    double zero = most <= 0 ? 1 : -least / (most - least);
    if (axis == Axis::Middle) zero = 0.5;
    if (value >= 0) return {zero, std::lerp(zero, 1.0, most > 0 ? value / most : 0), colour, end};
    return {zero * (1 - value / least), zero, isFading ? faded(negativeColour) : negativeColour,
            negativeColour};
}

}  // namespace libreoffice::excel
