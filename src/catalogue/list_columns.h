#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "catalogue/export_choices.h"
#include "forms/controls.h"

namespace catalogue {

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
    std::string_view Icon;  ///< of the header, or empty
    std::int32_t Width;
    forms::Alignment alignment;
};

inline constexpr std::array<ListColumn, 8> listColumns = {{
    {"Name/Type", "asc", 1875, forms::Alignment::Left},
    {"Excel sheet", "asc", 1400, forms::Alignment::Left},
    {"Slide Nb", "", 0, forms::Alignment::Centre},
    {"Order", "asc", 1400, forms::Alignment::Centre},
    {"Caption", "", 2376, forms::Alignment::Left},
    {"TypeObject", "", 0, forms::Alignment::Left},
    {"Order", "", 0, forms::Alignment::Left},
    {"Name&Sheet", "", 0, forms::Alignment::Left},
}};

/// What an item has in a column, from 1; of those that never show, only column 7 is sorted by and
/// has anything.
[[nodiscard]] const std::string& cellText(const ExportItem& item, std::size_t column);

/// The widths of the columns in a list of this width, all in twips. Column 3 shows only where
/// slides are predefined, the last three never.
[[nodiscard]] std::array<std::int32_t, 8> SizeListColumns(std::int32_t listWidth,
                                                          bool predefinedSlides);

}  // namespace catalogue
