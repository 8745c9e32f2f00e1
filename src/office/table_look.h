#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace office {

/// A line along one side of a cell; none if it has no width. Colours are 0xBBGGRR, as the object
/// models write them.
struct CellLine {
    enum class Style { Solid, Dashed, Dotted, Double };

    double widthPt = 0;
    std::int32_t colour = 0;
    Style style = Style::Solid;
};

/// A bar behind the text of a cell, which shows how large its number is.
struct CellBar {
    /// Shares of the cell's width, from the left.
    double from = 0;
    double to = 0;
    /// Of its left and of its right end, 0xBBGGRR.
    std::int32_t leftColour = 0;
    std::int32_t rightColour = 0;
    /// Whether it stands for the text.
    bool isAlone = false;
};

/// One cell as it is seen: conditional formats are applied, and the text is the number as shown.
struct CellLook {
    enum class Across { Left, Centre, Right, Justified };
    enum class Down { Top, Middle, Bottom };

    /// Line feeds between lines that were broken by hand.
    std::string text;
    std::string fontName;
    /// What East Asian and complex scripts are written in, where that is a Western font.
    std::string asianFontName;
    std::string complexFontName;
    double fontSizePt = 11;
    std::int32_t fontColour = 0;
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    /// If it is underlined at all.
    bool isUnderlinedTwice = false;
    bool isStruckOut = false;
    /// Nothing for a cell that lets the ground shine through.
    std::optional<std::int32_t> fill;
    std::optional<CellBar> bar;
    Across across = Across::Left;
    Down down = Down::Bottom;
    double indentPt = 0;
    bool wraps = false;
    /// Degrees counter-clockwise: 0, 90 or 270.
    std::int32_t rotation = 0;
    CellLine left;
    CellLine right;
    CellLine top;
    CellLine bottom;
    /// From corner to corner: from the top left, and from the bottom left.
    CellLine falling;
    CellLine rising;
    /// How many shown columns and rows a merged cell spans. Those that it covers beside its first
    /// one have `isCovered` and nothing else that counts.
    std::int32_t columns = 1;
    std::int32_t rows = 1;
    bool isCovered = false;
};

/// A block of cells as it is seen, hidden rows and columns left out.
struct TableLook {
    std::vector<double> columnWidthsPt;
    std::vector<double> rowHeightsPt;
    /// Row by row.
    std::vector<CellLook> cells;
    /// Where its first cell begins on the sheet.
    double leftPt = 0;
    double topPt = 0;

    [[nodiscard]] const CellLook& at(std::size_t row, std::size_t column) const {
        return cells.at(row * columnWidthsPt.size() + column);
    }
    /// For a place that draws the bars: without the texts that they stand for.
    void leaveTextsToBars() {
        for (CellLook& cell : cells) {
            if (cell.bar && cell.bar->isAlone) cell.text.clear();
        }
    }
    [[nodiscard]] double widthPt() const {
        double all = 0;
        for (const double width : columnWidthsPt) all += width;
        return all;
    }
    [[nodiscard]] double heightPt() const {
        double all = 0;
        for (const double height : rowHeightsPt) all += height;
        return all;
    }
};

}  // namespace office
