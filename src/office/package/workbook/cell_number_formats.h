#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "office/package/workbook/workbook_file.h"

namespace office::package {

/// The number formats of cells, as the workbook's file has them: codes that hold in every language,
/// where a suite would tell those of its own.
class CellNumberFormats {
public:
    /// The code of cells that say nothing.
    static constexpr const char* general = "General";

    /// The workbook has to outlive it. A sheet is read when a cell of it is first asked for.
    explicit CellNumberFormats(WorkbookFile& book) : book_(&book) {}

    /// Of a cell that has something in it, its place from 0. `general` where the file doesn't tell.
    [[nodiscard]] std::string codeAt(const std::string& sheet, std::int32_t row,
                                     std::int32_t column);

private:
    /// By column: from which row on its cells have which style.
    using Styles = std::map<std::int32_t, std::vector<std::pair<std::int32_t, std::size_t>>>;

    [[nodiscard]] Styles readSheet(const std::string& sheet);
    void readCodes();

    WorkbookFile* book_;
    std::map<std::string, Styles> sheets_;
    /// By the numbers of the styles.
    std::vector<std::string> codes_;
    std::size_t bytesRead_ = 0;
};

}  // namespace office::package
