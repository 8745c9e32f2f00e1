#pragma once

#include <vector>

#include "office_double/double_object.h"
#include "office_double/excel/address.h"

namespace office_double {

class CellStore;
class Worksheet;

/// One or more rectangles of cells of a worksheet.
class Range : public Doubled<Range> {
public:
    /// What `Count` counts, and what `Item` steps by.
    enum class Unit { Cells, Rows, Columns };

    Range(Worksheet& sheet, std::vector<Area> areas, Unit unit = Unit::Cells);

    static const office::MemberTable<Range>& members();

    [[nodiscard]] Worksheet& sheet() const;
    [[nodiscard]] const std::vector<Area>& areas() const { return areas_; }
    [[nodiscard]] std::string address() const;
    /// Size of the first area in points.
    [[nodiscard]] double width() const;
    [[nodiscard]] double height() const;

private:
    [[nodiscard]] const Area& first() const { return areas_.front(); }
    [[nodiscard]] CellStore& cells() const;
    [[nodiscard]] Value other(std::vector<Area> areas, Unit unit = Unit::Cells) const;
    void requireUnprotected(const std::string& source) const;

    Value readCount();
    Value readAreas();
    Value readValue();
    void writeValue(const Value& value);
    Value readFormula();
    Value readText();
    Value readFormat();
    void writeFormat(const Value& value);
    Value readHidden();
    void writeHidden(const Value& value);
    Value cell(const CallArguments& arguments);
    Value offset(const CallArguments& arguments);
    Value end(const CallArguments& arguments);
    Value clearContents(const CallArguments& arguments);
    Value copyPicture(const CallArguments& arguments);
    Value select(const CallArguments& arguments);

    std::vector<Area> areas_;
    Unit unit_;
};

}  // namespace office_double
