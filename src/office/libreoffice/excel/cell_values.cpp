#include "office/libreoffice/excel/cell_values.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "office/libreoffice/excel/cells_alike.h"

namespace libreoffice::excel {

namespace {

using office::Table;
using office::Value;
using Kind = NumberFormats::Kind;
using Rows = uno::Sequence<uno::Sequence<uno::Any>>;

Value valueOf(const uno::Any& cell) {
    double number = 0;
    if (cell >>= number) return number;
    rtl::OUString text;
    if ((cell >>= text) && !text.isEmpty()) return fromUno(text);
    return {};
}

Kind kindOf(NumberFormats& formats, const uno::Reference<uno::XInterface>& cells) {
    return formats.kindOf(property<sal_Int32>(cells, "NumberFormat"));
}

/// What kinds of number formats the cells of one column of a range have, row by row. A few calls,
/// however many cells.
std::vector<Kind> formatKindsOfColumn(NumberFormats& formats,
                                      const uno::Reference<css::table::XCellRange>& range,
                                      std::int32_t column, std::int32_t rows) {
    const auto cells = range->getCellRangeByPosition(column, 0, column, rows - 1);
    const auto count = static_cast<std::size_t>(rows);
    const auto state = as<css::beans::XPropertyState>(cells)->getPropertyState("NumberFormat");
    if (rows == 1 || state != css::beans::PropertyState_AMBIGUOUS_VALUE)
        return {count, kindOf(formats, cells)};

    std::vector<Kind> kinds(count, Kind::Other);
    const sal_Int32 start =
        as<css::sheet::XCellRangeAddressable>(cells)->getRangeAddress().StartRow;
    for (const auto& group : cellsAlike(cells)) {
        const Kind kind = kindOf(formats, group);
        if (kind == Kind::Other) continue;
        const auto addresses = group->getRangeAddresses();
        for (const css::table::CellRangeAddress& address : addresses) {
            std::fill(kinds.begin() + (address.StartRow - start),
                      kinds.begin() + (address.EndRow - start + 1), kind);
        }
    }
    return kinds;
}

/// Gives cells of a column that follow each other a number format.
void setFormatOfRows(const uno::Reference<css::table::XCellRange>& range, std::int32_t column,
                     std::int32_t firstRow, std::int32_t lastRow, std::int32_t formatKey) {
    setProperty(range->getCellRangeByPosition(column, firstRow, column, lastRow), "NumberFormat",
                formatKey);
}

bool couldBeTruth(const Value& value) {
    return value.isNumber() && (value.toDouble() == 0 || value.toDouble() == 1);
}

/// A truth value of an Excel file whose cell has a number format arrives as this formula.
std::optional<bool> truthOf(const rtl::OUString& formula) {
    if (formula == "=TRUE()") return true;
    if (formula == "=FALSE()") return false;
    return std::nullopt;
}

std::vector<std::size_t> columnsThatCouldHoldTruth(const Table& table) {
    std::vector<std::size_t> columns;
    for (std::size_t column = 1; column <= table.columns(); ++column) {
        for (std::size_t row = 1; row <= table.rows(); ++row) {
            if (!couldBeTruth(table.at(row, column))) continue;
            columns.push_back(column);
            break;
        }
    }
    return columns;
}

/// Turns the numbers that are truth values into booleans. Only 0 and 1 can be such, so most blocks
/// cost no further call.
void tellTruthValues(NumberFormats& formats, const uno::Reference<css::table::XCellRange>& range,
                     Table& table) {
    const auto columns = columnsThatCouldHoldTruth(table);
    if (columns.empty()) return;
    const auto formulas = as<css::sheet::XCellRangeFormula>(range)->getFormulaArray();
    for (const std::size_t column : columns) {
        const auto place = static_cast<sal_Int32>(column - 1);
        const auto kinds =
            formatKindsOfColumn(formats, range, place, static_cast<std::int32_t>(table.rows()));
        for (std::size_t row = 1; row <= table.rows(); ++row) {
            Value& cell = table.at(row, column);
            if (!couldBeTruth(cell)) continue;
            const auto truth = truthOf(formulas[static_cast<sal_Int32>(row - 1)][place]);
            if (truth || kinds[row - 1] == Kind::Boolean)
                cell = truth.value_or(cell.toDouble() != 0);
        }
    }
}

uno::Any cellOf(const Value& typed) {
    if (typed.isBool()) return uno::Any(typed.toBool() ? 1.0 : 0.0);
    if (typed.isNumber()) return uno::Any(typed.toDouble());
    return uno::Any(toUno(typed.toText()));
}

/// One column of a block on its way into the sheet.
class TypedColumn {
public:
    TypedColumn(NumberFormats& formats, uno::Reference<css::table::XCellRange> range,
                const Table& table, std::size_t column)
        : formats_(formats),
          range_(std::move(range)),
          place_(static_cast<std::int32_t>(column - 1)) {
        for (std::size_t row = 1; row <= table.rows(); ++row)
            cells_.push_back(model::typedIn(table.at(row, column), false));
        // Plain texts are the same under every format.
        if (std::all_of(cells_.begin(), cells_.end(),
                        [](const Value& cell) { return cell.isEmpty() || cell.isText(); }))
            return;
        kinds_ =
            formatKindsOfColumn(formats_, range_, place_, static_cast<std::int32_t>(table.rows()));
        for (std::size_t row = 1; row <= table.rows(); ++row)
            cells_[row - 1] = model::typedIn(table.at(row, column), kinds_[row - 1] == Kind::Text);
    }

    [[nodiscard]] const Value& cell(std::size_t row) const { return cells_[row]; }

    /// Gives truth values the format that makes them such, and takes it from numbers.
    void setFormats() const {
        if (kinds_.empty()) return;
        for (std::size_t first = 0; first < cells_.size();) {
            std::size_t last = first;
            while (last + 1 < cells_.size() && formatToSet(last + 1) == formatToSet(first)) ++last;
            if (const auto key = formatToSet(first)) {
                setFormatOfRows(range_, place_, static_cast<std::int32_t>(first),
                                static_cast<std::int32_t>(last), *key);
            }
            first = last + 1;
        }
    }

private:
    [[nodiscard]] std::optional<std::int32_t> formatToSet(std::size_t row) const {
        const bool isTruth = kinds_[row] == Kind::Boolean;
        if (cells_[row].isBool() && !isTruth) return formats_.booleanKey();
        if (cells_[row].isNumber() && isTruth) return formats_.keyFor("General");
        return std::nullopt;
    }

    NumberFormats& formats_;
    uno::Reference<css::table::XCellRange> range_;
    std::int32_t place_;
    std::vector<Value> cells_;
    std::vector<Kind> kinds_;
};

}  // namespace

Table readCells(NumberFormats& formats, const uno::Reference<css::table::XCellRange>& range,
                const model::CellBlock& size) {
    const Rows rows = as<css::sheet::XCellRangeData>(range)->getDataArray();
    Table table(static_cast<std::size_t>(size.rows()), static_cast<std::size_t>(size.columns()));
    for (std::size_t row = 1; row <= table.rows(); ++row) {
        const auto& cells = rows[static_cast<sal_Int32>(row - 1)];
        for (std::size_t column = 1; column <= table.columns(); ++column) {
            table.at(row, column) = valueOf(cells[static_cast<sal_Int32>(column - 1)]);
        }
    }
    tellTruthValues(formats, range, table);
    return table;
}

void writeCells(NumberFormats& formats, const uno::Reference<css::table::XCellRange>& range,
                const model::CellBlock& size, const Table& table) {
    const auto rowCount = static_cast<sal_Int32>(table.rows());
    const auto columnCount = static_cast<sal_Int32>(table.columns());
    std::vector<TypedColumn> columns;
    for (std::size_t column = 1; column <= table.columns(); ++column)
        columns.emplace_back(formats, range, table, column);

    Rows rows(rowCount);
    auto* row = rows.getArray();
    for (std::size_t i = 0; i < table.rows(); ++i, ++row) {
        row->realloc(columnCount);
        auto* cell = row->getArray();
        for (const TypedColumn& column : columns) *cell++ = cellOf(column.cell(i));
    }
    const bool isWhole = rowCount == size.rows() && columnCount == size.columns();
    const auto target =
        isWhole ? range : range->getCellRangeByPosition(0, 0, columnCount - 1, rowCount - 1);
    as<css::sheet::XCellRangeData>(target)->setDataArray(rows);
    for (const TypedColumn& column : columns) column.setFormats();
}

}  // namespace libreoffice::excel
