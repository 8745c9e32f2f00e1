#include "office/libreoffice/objects/sheet_copy.h"

#include <com/sun/star/chart2/XChartDocument.hpp>
#include <com/sun/star/chart2/data/XDataProvider.hpp>
#include <com/sun/star/chart2/data/XDataReceiver.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/document/XEmbeddedObjectSupplier.hpp>
#include <com/sun/star/drawing/XDrawPageSupplier.hpp>
#include <com/sun/star/frame/XLoadable.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/sheet/XSpreadsheets2.hpp>
#include <com/sun/star/table/XTableChartsSupplier.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "office/libreoffice/at_end.h"
#include "office/libreoffice/objects/settled_formulas.h"
#include "office/model/excel/cell_block.h"
#include "office/text.h"

namespace libreoffice::objects {

namespace {

namespace data = css::chart2::data;
using ModelRef = uno::Reference<css::frame::XModel>;
using SheetRef = uno::Reference<css::sheet::XSpreadsheet>;
using ChartRef = uno::Reference<data::XDataReceiver>;

uno::Reference<css::sheet::XSpreadsheets2> sheetsOf(const ModelRef& book) {
    return as<css::sheet::XSpreadsheets2>(as<css::sheet::XSpreadsheetDocument>(book)->getSheets());
}

SheetRef sheetOf(const ModelRef& book, const rtl::OUString& name) {
    return {sheetsOf(book)->getByName(name), uno::UNO_QUERY_THROW};
}

/// The charts on a sheet, in the order in which they lie upon each other.
std::vector<ChartRef> chartsOn(const SheetRef& sheet) {
    const auto charts =
        as<css::container::XIndexAccess>(as<css::table::XTableChartsSupplier>(sheet)->getCharts());
    std::vector<ChartRef> found;
    const sal_Int32 count = charts->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        const uno::Reference<css::document::XEmbeddedObjectSupplier> frame(charts->getByIndex(i),
                                                                           uno::UNO_QUERY_THROW);
        const uno::Reference<uno::XInterface> chart = frame->getEmbeddedObject();
        if (auto receiver = tryAs<data::XDataReceiver>(chart); receiver.is())
            found.push_back(std::move(receiver));
    }
    return found;
}

/// The places of the sheets, other than its own, that a sheet's charts draw on.
std::set<sal_Int32> sheetsBehind(const std::vector<ChartRef>& charts, const rtl::OUString& own,
                                 const uno::Sequence<rtl::OUString>& sheets) {
    namespace model = office::model::excel;
    std::set<sal_Int32> behind;
    for (const ChartRef& chart : charts) {
        const auto used = chart->getUsedRangeRepresentations();
        for (const rtl::OUString& several : used) {
            const std::string text = fromUno(several);
            for (std::string_view range : model::splitOutsideQuotes(text, " ;")) {
                if (range.starts_with('$')) range.remove_prefix(1);
                const auto parts = model::splitOutsideQuotes(range, ".");
                const auto named = model::splitSheet(std::string(parts.front()) + "!");
                if (parts.size() < 2 || !named) continue;
                const auto name = toUno(named->sheet);
                const auto* const at = std::find(sheets.begin(), sheets.end(), name);
                if (at != sheets.end() && name != own)
                    behind.insert(static_cast<sal_Int32>(at - sheets.begin()));
            }
        }
    }
    return behind;
}

/// How sheets are called that only fill a place: none of the workbook's sheets begins with that.
std::string nameOfFillers(const uno::Sequence<rtl::OUString>& sheets) {
    std::string name = "Murvane";
    const auto isTaken = [&](const rtl::OUString& sheet) {
        return office::lowerCase(fromUno(sheet)).starts_with(office::lowerCase(name));
    };
    while (std::any_of(sheets.begin(), sheets.end(), isTaken)) name += '_';
    return name;
}

void nameFirstSheet(const ModelRef& book, const std::string& name) {
    const uno::Reference<css::container::XNamed> first(
        as<css::container::XIndexAccess>(sheetsOf(book))->getByIndex(0), uno::UNO_QUERY_THROW);
    first->setName(toUno(name));
}

/// A workbook that nobody sees, for what must not be in the final one.
class Scratch {
public:
    Scratch(const Connection& connection, const std::string& sheet)
        : book_(
              as<css::frame::XModel>(connection.create("com.sun.star.sheet.SpreadsheetDocument"))) {
        as<css::frame::XLoadable>(book_)->initNew();
        nameFirstSheet(book_, sheet);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;
    ~Scratch() {
        asFarAsPossible([&] { as<css::util::XCloseable>(book_)->close(true); });
    }

    [[nodiscard]] const ModelRef& book() const { return book_; }

private:
    ModelRef book_;
};

void importSheet(const ModelRef& from, const rtl::OUString& name, const ModelRef& into,
                 sal_Int32 place) {
    sheetsOf(into)->importSheet(as<css::sheet::XSpreadsheetDocument>(from), name, place);
}

/// Brings the sheets whose cells a sheet's charts show into a workbook, with a filler between them
/// where one of the others was: a copied chart finds other sheets by their places, so each takes
/// the place that it has in the source. A workbook without drawings takes sheets over without their
/// charts.
void importBehind(const Connection& connection, const ModelRef& from,
                  const uno::Sequence<rtl::OUString>& names, const std::set<sal_Int32>& behind,
                  const ModelRef& into, const std::string& filler) {
    const auto sheets = sheetsOf(into);
    const Scratch cells(connection, filler);
    for (sal_Int32 place = 0; place <= *behind.rbegin(); ++place) {
        if (!behind.contains(place)) {
            sheets->insertNewByName(toUno(fmt::format("{} {}", filler, place)),
                                    static_cast<sal_Int16>(place));
            continue;
        }
        importSheet(from, names[place], cells.book(), 0);
        if (refersElsewhere(cells.book()))
            settleFormulas(sheetOf(from, names[place]), cells.book(), names[place]);
        importSheet(cells.book(), names[place], into, place);
    }
}

/// Names of series that stand in no cell are left behind when a chart is copied with its sheet.
void copySeriesNames(const std::vector<ChartRef>& from, const std::vector<ChartRef>& copies) {
    for (std::size_t i = 0; i < from.size() && i < copies.size(); ++i) {
        const auto source = from[i]->getUsedData();
        const auto target = copies[i]->getUsedData();
        if (!source.is() || !target.is()) continue;
        const auto series = source->getDataSequences();
        const auto copied = target->getDataSequences();
        for (sal_Int32 at = 0; at < series.getLength() && at < copied.getLength(); ++at) {
            const auto name = series[at]->getLabel();
            if (!name.is() || !name->getSourceRangeRepresentation().startsWith("\"")) continue;
            const auto cells = as<css::chart2::XChartDocument>(copies[i])->getDataProvider();
            const auto label = cells->createDataSequenceByRangeRepresentation(
                name->getSourceRangeRepresentation());
            setProperty(label, "Role", rtl::OUString("label"));
            copied[at]->setLabel(label);
        }
    }
}

}  // namespace

void copySheet(const Connection& connection, const ModelRef& from, const std::string& sheet,
               const ModelRef& into) {
    const auto name = toUno(sheet);
    const auto source = sheetOf(from, name);
    const auto charts = chartsOn(source);
    const auto names = sheetsOf(from)->getElementNames();
    const auto sheets = sheetsOf(into);
    const auto behind = sheetsBehind(charts, name, names);
    const std::string filler = nameOfFillers(names);
    nameFirstSheet(into, filler);
    if (!behind.empty()) importBehind(connection, from, names, behind, into, filler);
    std::set<rtl::OUString> wanted{name};
    for (const sal_Int32 place : behind) wanted.insert(names[place]);
    importSheet(from, name, into, sheets->getElementNames().getLength());
    const auto copy = sheetOf(into, name);
    setProperty(copy, "IsVisible", true);
    const auto all = sheets->getElementNames();
    for (const rtl::OUString& each : all) {
        if (!wanted.contains(each)) {
            sheets->removeByName(each);
        } else if (each != name) {
            setProperty(sheetOf(into, each), "IsVisible", false);
        }
    }
    sheets->moveByName(name, 0);
    if (refersElsewhere(into)) settleFormulas(source, into, name);
    copySeriesNames(charts, chartsOn(copy));
}

}  // namespace libreoffice::objects
