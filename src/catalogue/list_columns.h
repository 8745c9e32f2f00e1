#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace catalogue {

enum class Alignment { Left, Centred };

/// A column of the list as it is made. Widths are in twips.
struct ListColumn {
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

/// The widths of the columns in a list of this width, all in twips. Column 3 shows only where
/// slides are predefined, the last three never.
[[nodiscard]] std::array<std::int32_t, 8> SizeListColumns(std::int32_t listWidth,
                                                          bool predefinedSlides);

}  // namespace catalogue
