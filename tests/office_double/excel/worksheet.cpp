#include "office_double/excel/worksheet.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "office_double/excel/chart.h"
#include "office_double/excel/name.h"
#include "office_double/excel/workbook.h"
#include "office_double/loose_object.h"

namespace office_double {

namespace {

Area requiredArea(std::string_view address) {
    const auto area = areaOf(address);
    if (!area) throw std::invalid_argument("No address: " + std::string(address));
    return *area;
}

/// What `Rows` and `Columns` take: a number, or "B:D", or "1:5".
std::optional<Area> rowsOrColumns(const Value& which, bool rows) {
    if (which.isNumber()) {
        const int number = which.toLong();
        return rows ? Area{number, 1, number, lastColumn} : Area{1, number, lastRow, number};
    }
    const std::string text = which.toText();
    return areaOf(text.find(':') == std::string::npos ? text + ":" + text : text);
}

}  // namespace

const office::MemberTable<Worksheet>& Worksheet::members() {
    using Self = Worksheet;
    static const office::MemberTable<Self> table = [] {
        office::MemberTable<Self> made("Worksheet");
        return addTo(made)
            .property("Type", reading([](Self&) { return -4167; }))
            .property("CodeName", reading(&Self::name))
            .property("Parent", &Self::readBook)
            .property("ProtectContents", reading(&Self::protected_))
            .property("Names", &Self::readNames)
            .property("UsedRange",
                      reading([](Self& self) { return self.rangeOf({self.cells_.used()}); }))
            .method("ChartObjects", {"Index"}, &Self::chartObjects)
            .method("Range", {"Cell1", "Cell2"}, &Self::range)
            .method("Cells", {"RowIndex", "ColumnIndex"}, &Self::cell)
            .method("Rows", {"RowIndex"}, &Self::rows)
            .method("Columns", {"ColumnIndex"}, &Self::columns);
    }();
    return table;
}

Worksheet& Worksheet::chart(std::string name, const Box& box) {
    charts_.push_back(std::make_shared<ChartObject>(*this, std::move(name), box));
    return *this;
}

Worksheet& Worksheet::value(std::string_view cell, const Value& value) {
    const Area area = requiredArea(cell);
    cells_.enter(area.top, area.left, value);
    return *this;
}

Worksheet& Worksheet::formula(std::string_view cell, std::string formula, const Value& result) {
    const Area area = requiredArea(cell);
    cells_.setFormula(area.top, area.left, std::move(formula), result);
    return *this;
}

Worksheet& Worksheet::block(std::string_view firstCell,
                            const std::vector<std::vector<Value>>& rows) {
    const Area first = requiredArea(firstCell);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t column = 0; column < rows[row].size(); ++column) {
            cells_.enter(first.top + static_cast<int>(row), first.left + static_cast<int>(column),
                         rows[row][column]);
        }
    }
    return *this;
}

Worksheet& Worksheet::format(std::string_view address, std::string numberFormat) {
    cells_.setFormat(requiredArea(address), std::move(numberFormat));
    return *this;
}

Worksheet& Worksheet::hideRows(int first, int last) {
    cells_.hideRows({first, 1, last, lastColumn}, true);
    return *this;
}

Worksheet& Worksheet::define(const std::string& name, std::string_view address) {
    std::vector<Reference> references;
    for (std::string_view rest = address; !rest.empty();) {
        const auto comma = std::min(rest.find(','), rest.size());
        references.push_back({{}, this->name(), requiredArea(rest.substr(0, comma))});
        rest.remove_prefix(std::min(comma + 1, rest.size()));
    }
    book().addName(name, formulaOf(references), this);
    return *this;
}

Worksheet& Worksheet::protect() {
    protected_ = true;
    return *this;
}

Value Worksheet::rangeOf(std::vector<Area> areas, Range::Unit unit) {
    return Object(std::make_shared<Range>(*this, std::move(areas), unit));
}

std::shared_ptr<Range> Worksheet::find(const std::string& nameOrAddress) {
    const auto named = book().findName(nameOrAddress, this);
    if (named) return named->range();
    std::vector<Area> areas;
    for (const Reference& reference :
         referencesOf(office::replaceAll("x!" + nameOrAddress, ",", ",x!"))) {
        areas.push_back(reference.area);
    }
    if (areas.empty()) return nullptr;
    return std::make_shared<Range>(*this, std::move(areas));
}

Area Worksheet::oneArea(const Value& nameOrRange, const std::string& source) {
    auto range = doubleOf<Range>(nameOrRange);
    if (!range && nameOrRange.isText()) range = find(nameOrRange.toText());
    if (!range || &range->sheet() != this) {
        throw Failure(FailureNumber::ApplicationDefined, source,
                      "There is no such range on this sheet: " + support::literal(nameOrRange));
    }
    return range->areas().front();
}

Value Worksheet::range(const CallArguments& arguments) {
    if (!arguments.has(1) && arguments.at(0).isText()) {
        auto found = find(arguments.at(0).toText());
        if (found && &found->sheet() == this) return Object(found);
    }
    Area area = oneArea(arguments.at(0), arguments.source());
    if (arguments.has(1)) {
        const Area other = oneArea(arguments.at(1), arguments.source());
        area = {std::min(area.top, other.top), std::min(area.left, other.left),
                std::max(area.bottom, other.bottom), std::max(area.right, other.right)};
    }
    return rangeOf({area});
}

Value Worksheet::cell(const CallArguments& arguments) {
    if (!arguments.has(0)) return rangeOf({{1, 1, lastRow, lastColumn}});
    const int row = arguments.at(0).toLong();
    const Value which = arguments.at(1, 1);
    const int column = which.isText() ? columnNumber(which.toText()) : which.toLong();
    if (row < 1 || row > lastRow || column < 1 || column > lastColumn) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      fmt::format("There is no cell ({}, {})", row, column));
    }
    return rangeOf({{row, column, row, column}});
}

Value Worksheet::rows(const CallArguments& arguments) {
    if (!arguments.has(0)) return rangeOf({{1, 1, lastRow, lastColumn}}, Range::Unit::Rows);
    const auto area = rowsOrColumns(arguments.at(0), true);
    if (area) return rangeOf({*area}, Range::Unit::Rows);
    throw Failure(FailureNumber::TypeMismatch, arguments.source(), "These are no rows");
}

Value Worksheet::columns(const CallArguments& arguments) {
    if (!arguments.has(0)) return rangeOf({{1, 1, lastRow, lastColumn}}, Range::Unit::Columns);
    const auto area = rowsOrColumns(arguments.at(0), false);
    if (area) return rangeOf({*area}, Range::Unit::Columns);
    throw Failure(FailureNumber::TypeMismatch, arguments.source(), "These are no columns");
}

Area Worksheet::cellAt(double left, double top) {
    const int row = static_cast<int>(std::floor(top / rowHeight)) + 1;
    const int column = static_cast<int>(std::floor(left / columnWidth)) + 1;
    return {row, column, row, column};
}

Value Worksheet::indexOf(const ChartObject& chart) const {
    const auto self = std::find_if(charts_.begin(), charts_.end(),
                                   [&](const auto& held) { return held.get() == &chart; });
    return count(static_cast<std::size_t>(self - charts_.begin()) + 1);
}

ChartObject& Worksheet::chartObject(std::string_view name) {
    return *lookUp(charts_, Value(name), "ChartObjects.Item");
}

void Worksheet::removeChart(ChartObject& chart) {
    chart.remove();
    std::erase_if(charts_, [&](const auto& held) { return held.get() == &chart; });
}

Value Worksheet::chartObjects(const CallArguments& arguments) {
    if (arguments.has(0)) return Object(lookUp(charts_, arguments.at(0), arguments.source()));
    auto made = collection(*this, "ChartObjects", [this] { return itemsOf(charts_); });
    made->method("Add", {"Left", "Top", "Width", "Height"},
                 [this](const CallArguments& box) { return addChart(box); });
    return valueOf(made);
}

Value Worksheet::addChart(const CallArguments& arguments) {
    if (protected_) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "The sheet is protected");
    }
    chart(fmt::format("Chart {}", charts_.size() + 1),
          {arguments.at(0).toDouble(), arguments.at(1).toDouble(), arguments.at(2).toDouble(),
           arguments.at(3).toDouble()});
    return charts_.back()->handle();
}

Value Worksheet::readNames() {
    return book().namesOf(this);
}

}  // namespace office_double
