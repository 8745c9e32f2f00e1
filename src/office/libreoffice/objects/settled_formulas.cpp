#include "office/libreoffice/objects/settled_formulas.h"

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XArrayFormulaRange.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XNamedRange.hpp>
#include <com/sun/star/sheet/XNamedRanges.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "office/libreoffice/connection.h"
#include "office/text.h"

namespace libreoffice::objects {

namespace {

using ModelRef = uno::Reference<css::frame::XModel>;
using SheetRef = uno::Reference<css::sheet::XSpreadsheet>;

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
    SettledFormulas(SheetRef from, const ModelRef& book, SheetRef copy)
        : from_(std::move(from)),
          copy_(std::move(copy)),
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

}  // namespace

void settleFormulas(const SheetRef& from, const ModelRef& book, const rtl::OUString& name) {
    const uno::Reference<css::container::XNameAccess> sheets(
        as<css::sheet::XSpreadsheetDocument>(book)->getSheets(), uno::UNO_QUERY_THROW);
    SettledFormulas(from, book, SheetRef(sheets->getByName(name), uno::UNO_QUERY_THROW)).settle();
}

bool refersElsewhere(const ModelRef& book) {
    return property<uno::Reference<css::container::XNameAccess>>(book, "ExternalDocLinks")
        ->hasElements();
}

}  // namespace libreoffice::objects
