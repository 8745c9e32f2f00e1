#include "office/libreoffice/excel/fitted_texts.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "office/text.h"
#include "office/units.h"

namespace libreoffice::excel {

namespace {

using office::CellLine;
using office::CellLook;
using office::TableLook;

/// What a sheet leaves free on each side of a text.
constexpr double sideMarginPt = 1;
/// Widths are those of single characters: close to one another they take less.
constexpr double tolerancePt = 1;
/// Rows that were made as high as a text that stands up are measured with characters that come
/// closer to one another.
constexpr double closeness = 1.05;

/// A cell that has none shows the sheet's.
std::int32_t groundOf(const CellLook& cell) {
    constexpr std::int32_t white = 0xFFFFFF;
    return cell.fill.value_or(white);
}

class TextFitter {
public:
    TextFitter(TableLook& table, const std::vector<CellValue>& values, TextWidths& widths,
               NumberFormats& formats)
        : table_(table),
          values_(values),
          widths_(widths),
          formats_(formats) {}

    void fit(std::size_t row, std::size_t column, const CellValue& value) {
        CellLook& cell = at(row, column);
        if (cell.isCovered || cell.text.empty()) return;
        if (cell.wraps && !value.number && !value.isError) return;
        if (cell.rotation != 0) return fitTurned(row, column, value);
        const double room = roomIn(row, column);
        const double wide = widthOf(cell);
        const bool isFormatted = value.number && !isGeneral(value);
        if (isFormatted ? wide * onScreen(cell) <= room : wide <= room + tolerancePt) {
            // Its letters are narrower on a screen; a table would break it.
            cell.fontSizePt *= std::min(1.0, (room + tolerancePt) / wide);
            return;
        }
        if (value.uprightTurn) {
            fitAskew(row, column, wide, value);
        } else if (value.shrinksToFit) {
            shrink(cell, wide, room);
        } else if (value.number || value.isError) {
            fitNumber(cell, value, room);
        } else {
            fitText(row, column, wide);
        }
    }

private:
    CellLook& at(std::size_t row, std::size_t column) {
        return table_.cells[row * table_.columnWidthsPt.size() + column];
    }

    [[nodiscard]] double roomIn(std::size_t row, std::size_t column) {
        const CellLook& cell = at(row, column);
        double room = -2 * sideMarginPt - cell.indentPt;
        for (std::size_t i = 0; i < static_cast<std::size_t>(cell.columns); ++i)
            room += table_.columnWidthsPt[column + i];
        return room;
    }

    [[nodiscard]] double heightAt(std::size_t row, std::size_t column) {
        const auto rows = static_cast<std::size_t>(at(row, column).rows);
        double height = 0;
        for (std::size_t i = 0; i < rows; ++i) height += table_.rowHeightsPt[row + i];
        return height;
    }

    /// Of the widest line. Blanks at the end take no room.
    [[nodiscard]] double widthOf(const CellLook& cell) {
        double widest = 0;
        for (const std::string& line : office::linesOf(cell.text))
            widest =
                std::max(widest, widths_.of(line.substr(0, line.find_last_not_of(' ') + 1), cell));
        return widest;
    }

    [[nodiscard]] bool isGeneral(const CellValue& value) {
        return formats_.codeOf(value.numberFormat) == "General";
    }

    /// Numbers that don't go as they are have to fit on a screen, in letters of whole pixels: how
    /// much wider they are there.
    [[nodiscard]] static double onScreen(const CellLook& cell) {
        const double pixels = cell.fontSizePt * office::pixelsPerPoint;
        return std::max(std::round(pixels), 1.0) / pixels;
    }

    void fitNumber(CellLook& cell, const CellValue& value, double room) {
        if (value.number && isGeneral(value) &&
            (roundToFit(cell, value, room) || writeShort(cell, value, room)))
            return;
        const double one = widths_.of("#", cell);
        cell.text.assign(static_cast<std::size_t>(std::max(room / one, 1.0)), '#');
    }

    /// With as many decimals as there is room for. Of a small number they would be noughts.
    bool roundToFit(CellLook& cell, const CellValue& value, double room) {
        constexpr double smallest = 1e-4;
        if (std::abs(*value.number) < smallest) return false;
        const auto [mark, decimals] = decimalsOf(cell.text);
        for (std::size_t i = decimals; i-- > 0;) {
            if (take(cell, shortened(fmt::format("{:.{}f}", *value.number, i), mark), room))
                return true;
        }
        return false;
    }

    /// As a number of few digits with a power of ten.
    bool writeShort(CellLook& cell, const CellValue& value, double room) {
        constexpr int mostDecimals = 14;
        // A short number has too few characters to save any.
        const double size = std::abs(*value.number);
        if (size == 0 || (size < 1e5 && size > 1e-4)) return false;
        const auto [mark, decimals] = decimalsOf(cell.text);
        for (int i = mostDecimals; i >= 0; --i) {
            if (take(cell, shortened(fmt::format("{:.{}E}", *value.number, i), mark), room))
                return true;
        }
        return false;
    }

    bool take(CellLook& cell, const std::string& text, double room) {
        if (widths_.of(text, cell) * onScreen(cell) > room) return false;
        cell.text = text;
        return true;
    }

    /// The decimal mark of a number as it is written, and how many digits follow it.
    static std::pair<std::string, std::size_t> decimalsOf(const std::string& number) {
        constexpr const char* digits = "0123456789";
        const std::size_t first = number.find_first_of(digits);
        const std::size_t mark = std::min(number.find_first_not_of(digits, first), number.size());
        const std::size_t after = std::min(number.find_first_of(digits, mark), number.size());
        const std::size_t end = std::min(number.find_first_not_of(digits, after), number.size());
        if (after == end) return {".", 0};
        return {number.substr(mark, after - mark), end - after};
    }
    /// Without decimals at the end that are noughts, and with its own decimal mark.
    static std::string shortened(std::string number, const std::string& mark) {
        const std::size_t point = number.find('.');
        if (point == std::string::npos) return number;
        const std::size_t end = std::min(number.find('E'), number.size());
        const std::size_t last = number.find_last_not_of('0', end - 1);
        number.erase(last + 1, end - last - 1);
        return last == point ? number.erase(point, 1) : number.replace(point, 1, mark);
    }

    static void shrink(CellLook& cell, double wide, double room) {
        cell.fontSizePt *= std::min(1.0, std::max(room, 1.0) / wide);
    }

    /// What is turned is cut off above or below.
    void fitTurned(std::size_t row, std::size_t column, const CellValue& value) {
        CellLook& cell = at(row, column);
        const double room = heightAt(row, column);
        const double wide = widthOf(cell);
        // It would break where characters are a little wider.
        if (value.uprightTurn) return shrink(cell, wide * closeness, room);
        if (wide <= room * closeness + tolerancePt) return;
        CellLook::Across along = CellLook::Across::Centre;
        if (cell.down != CellLook::Down::Middle) {
            const bool beginsThere = (cell.down == CellLook::Down::Bottom) == (cell.rotation == 90);
            along = beginsThere ? CellLook::Across::Left : CellLook::Across::Right;
        }
        cut(cell, room, along);
    }

    /// What would lie, but is too wide for it. The sheet hides no number that is askew.
    void fitAskew(std::size_t row, std::size_t column, double wide, const CellValue& value) {
        const double height = heightAt(row, column);
        const bool isText = !value.number && !value.isError;
        const bool canStand = wide * closeness <= height;
        if (isText && !canStand) column = runOver(row, column, wide);
        CellLook& cell = at(row, column);
        const double room = roomIn(row, column);
        if (height / closeness <= room) return shrink(cell, wide, room);
        cell.rotation = *value.uprightTurn;
        shrink(cell, wide * closeness, height);
    }

    /// Returns the column in which the text then begins.
    std::size_t runOver(std::size_t row, std::size_t column, double wide) {
        const CellLook::Across across = at(row, column).across;
        const bool isSingle = at(row, column).columns == 1 && at(row, column).rows == 1;
        bool goesOn = isSingle;
        while (goesOn && wide > roomIn(row, column) + tolerancePt) {
            goesOn = false;
            if (across != CellLook::Across::Right) goesOn = spanNext(row, column);
            if (across != CellLook::Across::Left && spanBefore(row, column)) {
                --column;
                goesOn = true;
            }
        }
        return column;
    }

    void fitText(std::size_t row, std::size_t column, double wide) {
        column = runOver(row, column, wide);
        CellLook& cell = at(row, column);
        const double room = roomIn(row, column);
        if (widthOf(cell) <= room + tolerancePt) return;
        cut(cell, room, cell.across);
    }

    /// Whether this text can run over into the cell at this place of its row. The cell would lose a
    /// ground of its own; a number stops texts though nothing of it is shown.
    [[nodiscard]] bool isFree(const CellLook& text, std::size_t row, std::size_t column) {
        if (column >= table_.columnWidthsPt.size()) return false;
        const CellLook& cell = at(row, column);
        const bool hasNumber =
            values_[row * table_.columnWidthsPt.size() + column].number.has_value();
        return !hasNumber && !cell.isCovered && cell.text.empty() && cell.columns == 1 &&
               cell.rows == 1 && groundOf(cell) == groundOf(text) && !cell.bar;
    }

    bool spanNext(std::size_t row, std::size_t column) {
        const std::size_t next = column + static_cast<std::size_t>(at(row, column).columns);
        if (!isFree(at(row, column), row, next)) return false;
        at(row, column).right = at(row, next).right;
        span(at(row, column), at(row, next));
        return true;
    }

    bool spanBefore(std::size_t row, std::size_t column) {
        if (column == 0 || !isFree(at(row, column), row, column - 1)) return false;
        at(row, column).left = at(row, column - 1).left;
        span(at(row, column), at(row, column - 1));
        std::swap(at(row, column), at(row, column - 1));
        return true;
    }

    static void span(CellLook& cell, CellLook& other) {
        if (other.top.widthPt > cell.top.widthPt) cell.top = other.top;
        if (other.bottom.widthPt > cell.bottom.widthPt) cell.bottom = other.bottom;
        ++cell.columns;
        other.isCovered = true;
    }

    /// Leaves what is seen of a text: its beginning, its end if it stands on the right, or its
    /// middle.
    void cut(CellLook& cell, double room, CellLook::Across along) {
        struct Character {
            std::string_view bytes;
            double width;
        };
        std::vector<Character> characters;
        double wide = 0;
        for (const auto& [bytes, code] : office::charactersOf(cell.text)) {
            if (code == '\n') return;
            characters.push_back({bytes, widths_.of(std::string(bytes), cell)});
            wide += characters.back().width;
        }
        auto first = characters.begin(), last = characters.end();
        bool fromFront = along == CellLook::Across::Right;
        while (last - first > 1 && wide > room) {
            wide -= fromFront ? first++->width : (--last)->width;
            if (along == CellLook::Across::Centre) fromFront = !fromFront;
        }
        std::string seen;
        for (auto each = first; each != last; ++each) seen += each->bytes;
        cell.text = seen;
    }

    TableLook& table_;
    const std::vector<CellValue>& values_;
    TextWidths& widths_;
    NumberFormats& formats_;
};

}  // namespace

void fitTexts(TableLook& table, const std::vector<CellValue>& values, TextWidths& widths,
              NumberFormats& formats) {
    TextFitter fitter(table, values, widths, formats);
    const std::size_t columns = table.columnWidthsPt.size();
    for (std::size_t place = 0; place < table.cells.size(); ++place)
        fitter.fit(place / columns, place % columns, values[place]);
}

}  // namespace libreoffice::excel
