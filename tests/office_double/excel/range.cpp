#include "office_double/excel/range.h"

#include <algorithm>
#include <limits>

#include "office_double/excel/application.h"
#include "office_double/excel/workbook.h"
#include "office_double/excel/worksheet.h"
#include "office_double/loose_object.h"

namespace office_double {

namespace {

constexpr int directionUp = -4162;

Area moved(const Area& area, int rows, int columns) {
    return {area.top + rows, area.left + columns, area.bottom + rows, area.right + columns};
}

bool onSheet(const Area& area) {
    return area.top >= 1 && area.left >= 1 && area.bottom <= lastRow && area.right <= lastColumn;
}

}  // namespace

const office::MemberTable<Range>& Range::members() {
    using Self = Range;
    static const auto table =
        office::MemberTable<Self>("Range")
            .property("Address", reading(&Self::address))
            .property("Count", &Self::readCount)
            .property("Areas", &Self::readAreas)
            .property("Worksheet", reading([](Self& self) { return self.sheet().handle(); }))
            .property("Parent", reading([](Self& self) { return self.sheet().handle(); }))
            .property("Value", &Self::readValue, &Self::writeValue)
            .property("Value2", &Self::readValue, &Self::writeValue)
            .property("Formula", &Self::readFormula)
            .property("Text", &Self::readText)
            .property("Row", reading([](Self& self) { return self.first().top; }))
            .property("Column", reading([](Self& self) { return self.first().left; }))
            .property("Rows",
                      reading([](Self& self) { return self.other(self.areas_, Unit::Rows); }))
            .property("Columns",
                      reading([](Self& self) { return self.other(self.areas_, Unit::Columns); }))
            .property("EntireRow", reading([](Self& self) {
                          return self.other(
                              {{self.first().top, 1, self.first().bottom, lastColumn}}, Unit::Rows);
                      }))
            .property("Hidden", &Self::readHidden, &Self::writeHidden)
            .property("Width", reading(&Self::width))
            .property("Height", reading(&Self::height))
            .property("Left", reading([](Self& self) {
                          return (self.first().left - 1) * Worksheet::columnWidth;
                      }))
            .property("Top", reading([](Self& self) {
                          return (self.first().top - 1) * Worksheet::rowHeight;
                      }))
            .property("CurrentRegion", reading([](Self& self) {
                          return self.other({self.cells().regionAround(self.first())});
                      }))
            .property("NumberFormat", &Self::readFormat, &Self::writeFormat)
            .method("Cells", {"RowIndex", "ColumnIndex"}, &Self::cell)
            .method("Item", {"RowIndex", "ColumnIndex"}, &Self::cell)
            .method("Offset", {"RowOffset", "ColumnOffset"}, &Self::offset)
            .method("End", {"Direction"}, &Self::end)
            .method("ClearContents", {}, &Self::clearContents)
            .method("CopyPicture", {"Appearance", "Format"}, &Self::copyPicture)
            .method("Copy", {"Destination"}, &Self::copyPicture)
            .method("Select", {}, &Self::select);
    return table;
}

Range::Range(Worksheet& sheet, std::vector<Area> areas, Unit unit)
    : Doubled(Owner(sheet)),
      areas_(std::move(areas)),
      unit_(unit) {}

Worksheet& Range::sheet() const {
    return parent<Worksheet>();
}

std::string Range::address() const {
    std::string all;
    for (const Area& area : areas_) all += (all.empty() ? "" : ",") + addressOf(area);
    return all;
}

double Range::width() const {
    return first().columns() * Worksheet::columnWidth;
}

double Range::height() const {
    return first().rows() * Worksheet::rowHeight;
}

CellStore& Range::cells() const {
    return sheet().cells();
}

Value Range::other(std::vector<Area> areas, Unit unit) const {
    return sheet().rangeOf(std::move(areas), unit);
}

void Range::requireUnprotected(const std::string& source) const {
    if (sheet().isProtected()) {
        throw Failure(FailureNumber::ApplicationDefined, source, "The sheet is protected");
    }
}

Value Range::readCount() {
    if (unit_ == Unit::Rows) return first().rows();
    if (unit_ == Unit::Columns) return first().columns();
    double all = 0;
    for (const Area& area : areas_) all += area.cells();
    if (all > std::numeric_limits<std::int32_t>::max()) return all;
    return static_cast<std::int32_t>(all);
}

Value Range::readAreas() {
    Items all;
    for (const Area& area : areas_)
        all.push_back(std::make_shared<Range>(sheet(), std::vector{area}));
    return valueOf(collection(sheet(), "Areas", [all] { return all; }));
}

Value Range::readValue() {
    const Area& area = first();
    if (area.cells() == 1) return cells().value(area.top, area.left);
    if (area.cells() > 1e7) {
        throw Failure(FailureNumber::ApplicationDefined, "Range.Value",
                      "This range is too large to be read as a block");
    }
    office::Table block(static_cast<std::size_t>(area.rows()),
                        static_cast<std::size_t>(area.columns()));
    for (std::size_t row = 1; row <= block.rows(); ++row) {
        for (std::size_t column = 1; column <= block.columns(); ++column) {
            block.at(row, column) = cells().value(area.top + static_cast<int>(row) - 1,
                                                  area.left + static_cast<int>(column) - 1);
        }
    }
    return block;
}

void Range::writeValue(const Value& value) {
    requireUnprotected("Range.Value");
    const office::Table block = value.toTable();
    for (const Area& area : areas_) {
        for (int row = area.top; row <= area.bottom; ++row) {
            for (int column = area.left; column <= area.right; ++column) {
                const auto blockRow = static_cast<std::size_t>(row - area.top + 1);
                const auto blockColumn = static_cast<std::size_t>(column - area.left + 1);
                if (!value.isTable()) {
                    cells().enter(row, column, value);
                } else if (blockRow <= block.rows() && blockColumn <= block.columns()) {
                    cells().enter(row, column, block.at(blockRow, blockColumn));
                }
            }
        }
    }
    sheet().book().touch();
}

Value Range::readFormula() {
    return cells().formula(first().top, first().left);
}

Value Range::readText() {
    return cells().shown(first().top, first().left);
}

Value Range::readFormat() {
    return cells().format(first().top, first().left);
}

void Range::writeFormat(const Value& value) {
    requireUnprotected("Range.NumberFormat");
    for (const Area& area : areas_) cells().setFormat(area, value.toText());
    sheet().book().touch();
}

Value Range::readHidden() {
    return cells().isRowHidden(first().top);
}

void Range::writeHidden(const Value& value) {
    if (first().columns() != lastColumn) {
        throw Failure(FailureNumber::ApplicationDefined, "Range.Hidden",
                      "Only entire rows can be hidden");
    }
    cells().hideRows(first(), value.toBool());
}

Value Range::cell(const CallArguments& arguments) {
    if (!arguments.has(0)) return other(areas_);
    const int index = arguments.at(0).toLong() - 1;
    const Area& area = first();
    if (unit_ == Unit::Rows) {
        return other({{area.top + index, area.left, area.top + index, area.right}}, unit_);
    }
    if (unit_ == Unit::Columns) {
        return other({{area.top, area.left + index, area.bottom, area.left + index}}, unit_);
    }
    Area wanted{area.top + index, area.left, area.top + index, area.left};
    if (arguments.has(1)) {
        const Value& which = arguments.at(1);
        const int column = which.isText() ? columnNumber(which.toText()) : which.toLong();
        wanted = moved(wanted, 0, column - 1);
    } else {
        const int row = area.top + index / area.columns();
        const int column = area.left + index % area.columns();
        wanted = {row, column, row, column};
    }
    if (!onSheet(wanted)) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(), "No such cell");
    }
    return other({wanted});
}

Value Range::offset(const CallArguments& arguments) {
    const Area wanted = moved(first(), arguments.at(0, 0).toLong(), arguments.at(1, 0).toLong());
    if (!onSheet(wanted)) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(), "Off the sheet");
    }
    return other({wanted});
}

Value Range::end(const CallArguments& arguments) {
    if (arguments.at(0).toLong() != directionUp) {
        throw Failure(FailureNumber::InvalidProcedureCall, arguments.source(),
                      "The double only looks upwards");
    }
    const int row = cells().endUp(first().top, first().left);
    return other({{row, first().left, row, first().left}});
}

Value Range::clearContents(const CallArguments& arguments) {
    requireUnprotected(arguments.source());
    for (const Area& area : areas_) cells().clear(area);
    sheet().book().touch();
    return true;
}

Value Range::copyPicture(const CallArguments& arguments) {
    if (areas_.size() > 1) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "This can't be done with several areas");
    }
    state()->clipboard = CopiedPicture{width(), height()};
    return true;
}

Value Range::select(const CallArguments& arguments) {
    Workbook& book = sheet().book();
    if (book.activeTab().get() != &sheet()) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "Only a range of the active sheet can be selected");
    }
    book.application().select(handle());
    return true;
}

}  // namespace office_double
