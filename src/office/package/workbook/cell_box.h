#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace office::package {

/// A block of cells by its outermost columns and rows, from 1.
struct CellBox {
    std::uint32_t left = 1;
    std::uint32_t top = 1;
    std::uint32_t right = 1;
    std::uint32_t bottom = 1;

    /// "B4:H20"; "B4" for a single cell.
    [[nodiscard]] std::string name() const;
    /// "R4C2:R20C8", "R4C2", and "C2:C8" or "R4:R20" for whole columns or rows.
    [[nodiscard]] std::string nameByNumbers() const;
    [[nodiscard]] bool hasWholeColumns() const { return top == 1 && bottom == lastRow; }
    [[nodiscard]] bool hasWholeRows() const { return left == 1 && right == lastColumn; }

    static constexpr std::uint32_t lastColumn = 16384;
    static constexpr std::uint32_t lastRow = 1048576;
};

/// From "$B$4:$H$20", "B4", "$A:$C" or "$2:$3"; nothing for any other text.
[[nodiscard]] std::optional<CellBox> cellBox(std::string_view address);

}  // namespace office::package
