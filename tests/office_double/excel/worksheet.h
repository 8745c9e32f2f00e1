#pragma once

#include <optional>
#include <vector>

#include "office_double/box.h"
#include "office_double/excel/cell_store.h"
#include "office_double/excel/chart_object.h"
#include "office_double/excel/range.h"
#include "office_double/excel/sheet.h"

namespace office_double {

class Worksheet : public Doubled<Worksheet, Sheet> {
public:
    using Doubled::Doubled;

    static const office::MemberTable<Worksheet>& members();

    /// Every column and row of the double has the same size, in points.
    static constexpr double columnWidth = 48;
    static constexpr double rowHeight = 15;

    // Building.
    Worksheet& chart(std::string name, const Box& box = {96, 30, 240, 150});
    Worksheet& value(std::string_view cell, const Value& value);
    Worksheet& formula(std::string_view cell, std::string formula, const Value& result);
    /// Values row by row, from a cell on.
    Worksheet& block(std::string_view firstCell, const std::vector<std::vector<Value>>& rows);
    Worksheet& format(std::string_view address, std::string numberFormat);
    Worksheet& hideRows(int first, int last);
    /// A name of this sheet alone; the address may have several areas: "A1:A5,C1:C5".
    Worksheet& define(const std::string& name, std::string_view address);
    Worksheet& protect();

    [[nodiscard]] bool isProtected() const { return protected_; }
    [[nodiscard]] CellStore& cells() { return cells_; }
    [[nodiscard]] Value rangeOf(std::vector<Area> areas, Range::Unit unit = Range::Unit::Cells);
    /// A name or an address, as `Range` takes it; nothing if it is neither.
    [[nodiscard]] std::shared_ptr<Range> find(const std::string& nameOrAddress);
    [[nodiscard]] Value range(const CallArguments& arguments);
    [[nodiscard]] Value cell(const CallArguments& arguments);
    [[nodiscard]] Value rows(const CallArguments& arguments);
    [[nodiscard]] Value columns(const CallArguments& arguments);
    [[nodiscard]] static Area cellAt(double left, double top);
    [[nodiscard]] Value indexOf(const ChartObject& chart) const;
    ChartObject& chartObject(std::string_view name);
    void removeChart(ChartObject& chart);

private:
    [[nodiscard]] Area oneArea(const Value& nameOrRange, const std::string& source);
    Value chartObjects(const CallArguments& arguments);
    Value addChart(const CallArguments& arguments);
    Value readNames();

    CellStore cells_;
    std::vector<std::shared_ptr<ChartObject>> charts_;
    bool protected_ = false;
};

}  // namespace office_double
