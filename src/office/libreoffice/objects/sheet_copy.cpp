#include "office/libreoffice/objects/sheet_copy.h"

#include <com/sun/star/chart2/XChartDocument.hpp>
#include <com/sun/star/chart2/data/XDataProvider.hpp>
#include <com/sun/star/chart2/data/XDataReceiver.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/document/XEmbeddedObjectSupplier.hpp>
#include <com/sun/star/drawing/XDrawPageSupplier.hpp>
#include <com/sun/star/frame/XLoadable.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XArrayFormulaRange.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XNamedRange.hpp>
#include <com/sun/star/sheet/XNamedRanges.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/sheet/XSpreadsheets2.hpp>
#include <com/sun/star/table/XTableChartsSupplier.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "office/libreoffice/at_end.h"
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

/// As a formula that gives the value.
rtl::OUString asFormula(const uno::Any& value) {
    double number = 0;
    rtl::OUString text;
    if (value >>= number) return toUno(fmt::format("{}", number));
    if (value >>= text) return "'" + text;
    return "=NA()";
}

/// Whether a text holds a name as a word of its own.
bool mentions(std::string_view text, std::string_view name) {
    const auto isInWord = [](unsigned char c) { return std::isalnum(c) || c == '_' || c > 0x7F; };
    for (auto at = text.find(name); at != text.npos; at = text.find(name, at + 1)) {
        const auto end = at + name.size();
        if ((at == 0 || !isInWord(static_cast<unsigned char>(text[at - 1]))) &&
            (end == text.size() || !isInWord(static_cast<unsigned char>(text[end]))))
            return true;
    }
    return false;
}

/// Tells which formulas of a copied sheet refer to another file: to sheets of the workbook that it
/// was copied from.
class WayOut {
public:
    WayOut(const ModelRef& book, const SheetRef& copy) {
        std::vector<std::pair<std::string, std::string>> names;
        for (const auto& scope : {uno::Reference<uno::XInterface>(book), {copy}}) {
            const uno::Reference<css::container::XIndexAccess> all(
                property<uno::Reference<css::sheet::XNamedRanges>>(scope, "NamedRanges"),
                uno::UNO_QUERY_THROW);
            const sal_Int32 count = all->getCount();
            for (sal_Int32 i = 0; i < count; ++i) {
                const uno::Reference<css::sheet::XNamedRange> name(all->getByIndex(i),
                                                                   uno::UNO_QUERY_THROW);
                names.emplace_back(office::lowerCase(fromUno(name->getName())),
                                   fromUno(name->getContent()));
            }
        }
        // A name may lead out by way of another one.
        for (std::size_t known = names.size() + 1; known != names.size();) {
            known = names.size();
            std::erase_if(names, [&](const auto& name) {
                const bool leads = isTakenBy(name.second);
                if (leads) names_.push_back(name.first);
                return leads;
            });
        }
    }

    [[nodiscard]] bool isTakenBy(const rtl::OUString& formula) const {
        return formula.indexOf("#$") >= 0 || (!names_.empty() && isTakenBy(fromUno(formula)));
    }

private:
    [[nodiscard]] bool isTakenBy(const std::string& formula) const {
        if (formula.find("#$") != formula.npos) return true;
        const std::string text = office::lowerCase(formula);
        return std::any_of(names_.begin(), names_.end(),
                           [&](const std::string& name) { return mentions(text, name); });
    }

    /// In small letters.
    std::vector<std::string> names_;
};

using Formulas = uno::Sequence<uno::Sequence<rtl::OUString>>;

bool isOfArray(const rtl::OUString& formula) {
    return formula.startsWith("{");
}

/// Makes values of the formulas of a sheet that refer to sheets that did not come along.
class SettledFormulas {
public:
    SettledFormulas(SheetRef from, const ModelRef& book, const rtl::OUString& name)
        : from_(std::move(from)),
          copy_(sheetOf(book, name)),
          wayOut_(book, copy_) {}

    void settle() {
        const auto formulas = as<css::sheet::XCellRangesQuery>(copy_)->queryContentCells(
            css::sheet::CellFlags::FORMULA);
        const auto addresses = formulas->getRangeAddresses();
        for (const css::table::CellRangeAddress& at : addresses) settle(at);
    }

private:
    [[nodiscard]] static uno::Reference<css::table::XCellRange> rangeOf(
        const SheetRef& sheet, const css::table::CellRangeAddress& at) {
        return sheet->getCellRangeByPosition(at.StartColumn, at.StartRow, at.EndColumn, at.EndRow);
    }

    void settle(const css::table::CellRangeAddress& at) {
        const auto range = as<css::sheet::XCellRangeFormula>(rangeOf(copy_, at));
        Formulas rows = range->getFormulaArray();
        if (clearArrays(rows, at)) rows = range->getFormulaArray();
        const auto values = as<css::sheet::XCellRangeData>(rangeOf(from_, at))->getDataArray();
        bool isSettled = true;
        bool hasArray = false;
        for (sal_Int32 row = 0; row < rows.getLength(); ++row) {
            auto& cells = rows.getArray()[row];
            for (sal_Int32 column = 0; column < cells.getLength(); ++column) {
                rtl::OUString& formula = cells.getArray()[column];
                hasArray = hasArray || isOfArray(formula);
                if (!wayOut_.isTakenBy(formula)) continue;
                formula = asFormula(values[row][column]);
                isSettled = false;
            }
        }
        if (isSettled) return;
        hasArray ? writeBetweenArrays(rows, at) : range->setFormulaArray(rows);
    }

    /// A part of an array formula can't be written: one that leads out goes as a whole, and its
    /// values come instead. Whether there was one.
    bool clearArrays(const Formulas& rows, const css::table::CellRangeAddress& at) {
        bool isChanged = false;
        for (sal_Int32 row = 0; row < rows.getLength(); ++row) {
            for (sal_Int32 column = 0; column < rows[row].getLength(); ++column) {
                const rtl::OUString& formula = rows[row][column];
                if (!isOfArray(formula) || !wayOut_.isTakenBy(formula)) continue;
                isChanged = true;
                clearArray(at.StartColumn + column, at.StartRow + row);
            }
        }
        return isChanged;
    }

    void clearArray(sal_Int32 column, sal_Int32 row) {
        const auto cursor = copy_->createCursorByRange(as<css::sheet::XSheetCellRange>(
            copy_->getCellRangeByPosition(column, row, column, row)));
        cursor->collapseToCurrentArray();
        const auto array = as<css::sheet::XArrayFormulaRange>(cursor);
        // Another of its cells has been here.
        if (!isOfArray(array->getArrayFormula())) return;
        const auto at = as<css::sheet::XCellRangeAddressable>(cursor)->getRangeAddress();
        const auto values = as<css::sheet::XCellRangeData>(rangeOf(from_, at))->getDataArray();
        Formulas rows(values.getLength());
        for (sal_Int32 i = 0; i < values.getLength(); ++i) {
            rows.getArray()[i].realloc(values[i].getLength());
            std::transform(values[i].begin(), values[i].end(), rows.getArray()[i].getArray(),
                           asFormula);
        }
        array->setArrayFormula({});
        as<css::sheet::XCellRangeFormula>(cursor)->setFormulaArray(rows);
    }

    /// Writes the cells of each row that stand between those of array formulas.
    void writeBetweenArrays(const Formulas& rows, const css::table::CellRangeAddress& at) {
        for (sal_Int32 row = 0; row < rows.getLength(); ++row) {
            const auto& cells = rows[row];
            for (sal_Int32 first = 0; first < cells.getLength(); ++first) {
                const auto* const end = std::find_if(cells.begin() + first, cells.end(), isOfArray);
                const auto count = static_cast<sal_Int32>(end - cells.begin()) - first;
                if (count == 0) continue;
                const uno::Sequence<rtl::OUString> part(cells.getConstArray() + first, count);
                as<css::sheet::XCellRangeFormula>(
                    copy_->getCellRangeByPosition(at.StartColumn + first, at.StartRow + row,
                                                  at.StartColumn + first + count - 1,
                                                  at.StartRow + row))
                    ->setFormulaArray({&part, 1});
                first += count;
            }
        }
    }

    SheetRef from_;
    SheetRef copy_;
    WayOut wayOut_;
};

/// Formulas that refer to sheets that did not come along refer to the file they came from: they
/// become their values.
void settleFormulas(const SheetRef& from, const ModelRef& book, const rtl::OUString& name) {
    SettledFormulas(from, book, name).settle();
}

bool refersElsewhere(const ModelRef& book) {
    return property<uno::Reference<css::container::XNameAccess>>(book, "ExternalDocLinks")
        ->hasElements();
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
    std::set<rtl::OUString> wanted{name};
    if (!behind.empty()) {
        // A copied chart finds other sheets by their places, so each takes the place that it has in
        // the source. A workbook without drawings takes sheets over without their charts.
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
            wanted.insert(names[place]);
        }
    }
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
