#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "catalogue/export_list.h"

namespace catalogue {

enum class Alignment { Left, Centred };

/// A column of the list as it is made. Widths are in twips.
struct ListColumn {
    /// Numbers of columns, from 1.
    static constexpr std::size_t name = 1;
    static constexpr std::size_t sheet = 2;
    static constexpr std::size_t slideNumber = 3;
    static constexpr std::size_t order = 4;
    static constexpr std::size_t caption = 5;
    static constexpr std::size_t laterRow = 7;

    std::string_view Text;
    std::string_view Tag;   ///< "STRING" or "NUMBER"; the sort doesn't go by it
    std::string_view Icon;  ///< of the header, or empty
    std::int32_t Width;
    Alignment alignment;
};

inline constexpr std::array<ListColumn, 8> listColumns = {{
    {"Name/Type", "STRING", "asc", 1875, Alignment::Left},
    {"Excel sheet", "STRING", "asc", 1400, Alignment::Left},
    {"Slide Nb", "NUMBER", "", 0, Alignment::Centred},
    {"Order", "NUMBER", "asc", 1400, Alignment::Centred},
    {"Caption", "STRING", "", 2376, Alignment::Left},
    {"TypeObject", "STRING", "", 0, Alignment::Left},
    {"Order", "NUMBER", "", 0, Alignment::Left},
    {"Name&Sheet", "NUMBER", "", 0, Alignment::Left},
}};

/// What an item has in a column, from 1. Empty for a column that never shows.
[[nodiscard]] const std::string& cellText(const ExportItem& item, std::size_t column);

/// The widths of the columns in a list of this width, all in twips. Column 3 shows only where
/// slides are predefined, the last three never.
[[nodiscard]] std::array<std::int32_t, 8> SizeListColumns(std::int32_t listWidth,
                                                          bool predefinedSlides);

}  // namespace catalogue
