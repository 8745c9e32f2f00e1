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

/// The contents of one worksheet, sparse: values and number formats.
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

private:
    /// By row, then column.
    std::map<std::pair<std::int32_t, std::int32_t>, office::Value> cells_;
    /// The last one that covers a cell counts.
    std::vector<std::pair<excel::CellBlock, std::string>> formats_;
};

}  // namespace office_double
