#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "office/model/excel/cells.h"
#include "office/value.h"

namespace office_double {

namespace excel = office::model::excel;

/// The contents of one worksheet, sparse: values, number formats, hidden rows and columns.
class CellStore {
public:
    [[nodiscard]] office::Table read(const excel::CellBlock& block) const;
    /// Values from a cell on, as if they had been typed in.
    void enter(std::int32_t row, std::int32_t column, const office::Table& values);
    void clear(const excel::CellBlock& block);

    [[nodiscard]] std::string format(std::int32_t row, std::int32_t column) const;
    void setFormat(const excel::CellBlock& block, std::string format);

    /// The smallest block from A1 on that holds all that is filled.
    [[nodiscard]] excel::CellBlock used() const;
    /// Stretches of filled rows of a block.
    [[nodiscard]] std::vector<std::pair<std::int32_t, std::int32_t>> filledRows(
        const excel::CellBlock& block) const;

    void hide(const excel::CellBlock& block, excel::Lines lines, bool hidden);
    [[nodiscard]] bool isHidden(const excel::CellBlock& block, excel::Lines lines) const;

private:
    /// By row, then column.
    std::map<std::pair<std::int32_t, std::int32_t>, office::Value> cells_;
    /// The last one that covers a cell counts.
    std::vector<std::pair<excel::CellBlock, std::string>> formats_;
    struct HiddenLines {
        excel::CellBlock block;
        excel::Lines lines;
        bool hidden;
    };
    std::vector<HiddenLines> hidden_;
};

}  // namespace office_double
