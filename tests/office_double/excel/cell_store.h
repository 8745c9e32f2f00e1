#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "office/value.h"
#include "office_double/excel/address.h"

namespace office_double {

/// The contents of one worksheet, sparse: values, formulas, number formats, hidden rows.
class CellStore {
public:
    [[nodiscard]] office::Value value(int row, int column) const;
    /// What typing would make of it: in a text cell ("@") all stays text, elsewhere a text that is
    /// a number becomes one.
    void enter(int row, int column, const office::Value& value);
    void setFormula(int row, int column, std::string formula, office::Value result);
    [[nodiscard]] std::string formula(int row, int column) const;
    void clear(const Area& area);

    [[nodiscard]] std::string format(int row, int column) const;
    void setFormat(const Area& area, std::string format);

    /// The cell as it is shown, in the few formats that occur here.
    [[nodiscard]] std::string shown(int row, int column) const;

    [[nodiscard]] bool isFilled(int row, int column) const;
    /// The smallest rectangle from A1 on that holds all that is filled.
    [[nodiscard]] Area used() const;
    /// The block around a cell that empty rows and columns border.
    [[nodiscard]] Area regionAround(const Area& start) const;
    /// Where a jump upwards from a cell ends.
    [[nodiscard]] int endUp(int row, int column) const;

    void hideRows(const Area& area, bool hidden);
    [[nodiscard]] bool isRowHidden(int row) const;

private:
    struct Cell {
        office::Value value;
        std::string formula;
    };

    [[nodiscard]] bool anyFilled(const Area& area) const;

    std::map<std::pair<int, int>, Cell> cells_;
    /// The last one that covers a cell counts.
    std::vector<std::pair<Area, std::string>> formats_;
    std::vector<std::pair<Area, bool>> hiddenRows_;
};

}  // namespace office_double
