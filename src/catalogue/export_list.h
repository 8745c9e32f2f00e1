#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace catalogue {

/// The literal name of a chart sheet's row; the sheet's own name stands in SubItems(1).
inline constexpr std::string_view chartSheetText = "{Chart Sheet}";

/// Colours of a row's text, as 0xBBGGRR.
using RowColour = std::uint32_t;
inline constexpr RowColour RowColourChecked = 30U | (41U << 8U) | (59U << 16U);
inline constexpr RowColour RowColourMuted = 100U | (116U << 8U) | (139U << 16U);
/// A range of several areas: it can't be exported and may not be checked.
inline constexpr RowColour RowColourRefused = 255U;

/// One row of `listCharts`: the working record of one exportable object. Columns are numbered as
/// the list shows them, so SubItems(1) stands in column 2.
struct ExportRow {
    std::string Text;  ///< object name, or `chartSheetText`
    bool Checked = false;
    RowColour ForeColor = RowColourChecked;
    int SmallIcon = 0;

    /// 1 sheet, 2 slide number as text, 3 running order, 4 caption, 5 kind ("Embedded", "Range",
    /// "Chart"), 6 hidden order, 7 identity. An index outside 1 to 7 is a programming error.
    [[nodiscard]] const std::string& SubItems(std::size_t index) const {
        return subItems_.at(index - 1);
    }
    [[nodiscard]] std::string& SubItems(std::size_t index) { return subItems_.at(index - 1); }

    [[nodiscard]] bool isChartSheet() const { return Text == chartSheetText; }
    /// A chart on a worksheet. Asked after `isChartSheet`; anything that is neither is a range.
    [[nodiscard]] bool isEmbeddedChart() const { return SubItems(5) == "Embedded"; }

private:
    std::array<std::string, 7> subItems_;
};

/// The rows in display order, which is the export order and the order of the store.
struct ExportList {
    std::vector<ExportRow> rows;
    /// Index into `rows` of the selected row, or -1.
    std::ptrdiff_t selected = -1;

    [[nodiscard]] static constexpr std::size_t columnCount() { return 8; }
};

/// What the main form has chosen about an export.
struct ExportChoices {
    int destination =
        0;  ///< index of `Option1`: 0 PowerPoint, 1 Word, 2 HTML, 3 PDF, 4 image files
    bool predefinedSlides = false;  ///< `OptionPredefSlides`; otherwise new slides at the end
};

}  // namespace catalogue
