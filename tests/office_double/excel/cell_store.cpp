#include "office_double/excel/cell_store.h"

#include <fmt/format.h>

#include "office/text.h"

namespace office_double {

using office::Value;

namespace {

Value asTyped(const Value& value, bool textCell) {
    if (value.isBlank() || value.isMissing()) return {};
    if (textCell) return value.isBool() ? Value(value.toBool() ? "TRUE" : "FALSE") : value.toText();
    if (value.isBool()) return value;
    if (value.isNumber()) return value.toDouble();
    const std::string text = value.toText();
    if (const auto number = office::numberOf(text)) return *number;
    if (office::sameIgnoringCase(text, "TRUE")) return true;
    if (office::sameIgnoringCase(text, "FALSE")) return false;
    return text;
}

bool covers(const Area& area, int row, int column) {
    return intersection(area, {row, column, row, column}).has_value();
}

}  // namespace

Value CellStore::value(int row, int column) const {
    const auto found = cells_.find({row, column});
    return found == cells_.end() ? Value() : found->second.value;
}

void CellStore::enter(int row, int column, const Value& value) {
    const Value typed = asTyped(value, format(row, column) == "@");
    if (typed.isEmpty()) {
        cells_.erase({row, column});
    } else {
        cells_[{row, column}] = {typed, {}};
    }
}

void CellStore::setFormula(int row, int column, std::string formula, Value result) {
    cells_[{row, column}] = {std::move(result), std::move(formula)};
}

std::string CellStore::formula(int row, int column) const {
    const auto found = cells_.find({row, column});
    if (found == cells_.end()) return {};
    return found->second.formula.empty() ? found->second.value.toText() : found->second.formula;
}

void CellStore::clear(const Area& area) {
    std::erase_if(cells_, [&](const auto& entry) {
        return covers(area, entry.first.first, entry.first.second);
    });
}

std::string CellStore::format(int row, int column) const {
    for (auto entry = formats_.rbegin(); entry != formats_.rend(); ++entry) {
        if (covers(entry->first, row, column)) return entry->second;
    }
    return "General";
}

void CellStore::setFormat(const Area& area, std::string format) {
    formats_.emplace_back(area, std::move(format));
}

std::string CellStore::shown(int row, int column) const {
    const Value held = value(row, column);
    if (held.isBool()) return held.toBool() ? "TRUE" : "FALSE";
    if (!held.isNumber()) return held.toText();
    const std::string pattern = format(row, column);
    if (pattern == "0") return fmt::format("{:.0f}", held.toDouble());
    if (pattern == "0.00") return fmt::format("{:.2f}", held.toDouble());
    if (pattern == "0%") return fmt::format("{:.0f}%", held.toDouble() * 100);
    return held.toText();
}

bool CellStore::isFilled(int row, int column) const {
    return cells_.contains({row, column});
}

bool CellStore::anyFilled(const Area& area) const {
    for (auto cell = cells_.lower_bound({area.top, area.left}); cell != cells_.end(); ++cell) {
        if (cell->first.first > area.bottom) return false;
        if (covers(area, cell->first.first, cell->first.second)) return true;
    }
    return false;
}

Area CellStore::used() const {
    Area area;
    for (const auto& [place, cell] : cells_) {
        area.bottom = std::max(area.bottom, place.first);
        area.right = std::max(area.right, place.second);
    }
    return area;
}

Area CellStore::regionAround(const Area& start) const {
    Area region = start;
    for (bool grown = true; grown;) {
        grown = false;
        const Area around{std::max(1, region.top - 1), std::max(1, region.left - 1),
                          std::min(lastRow, region.bottom + 1),
                          std::min(lastColumn, region.right + 1)};
        const auto extend = [&](int Area::*side, Area edge) {
            if (region.*side == around.*side || !anyFilled(edge)) return;
            region.*side = around.*side;
            grown = true;
        };
        extend(&Area::top, {around.top, around.left, around.top, around.right});
        extend(&Area::bottom, {around.bottom, around.left, around.bottom, around.right});
        extend(&Area::left, {around.top, around.left, around.bottom, around.left});
        extend(&Area::right, {around.top, around.right, around.bottom, around.right});
    }
    return region;
}

int CellStore::endUp(int row, int column) const {
    const bool insideBlock = row > 1 && isFilled(row, column) && isFilled(row - 1, column);
    if (insideBlock) {
        while (row > 1 && isFilled(row - 1, column)) --row;
        return row;
    }
    int end = 1;
    for (const auto& [place, cell] : cells_) {
        if (place.second == column && place.first < row) end = std::max(end, place.first);
    }
    return end;
}

void CellStore::hideRows(const Area& area, bool hidden) {
    hiddenRows_.emplace_back(Area{area.top, 1, area.bottom, lastColumn}, hidden);
}

bool CellStore::isRowHidden(int row) const {
    for (auto entry = hiddenRows_.rbegin(); entry != hiddenRows_.rend(); ++entry) {
        if (covers(entry->first, row, 1)) return entry->second;
    }
    return false;
}

}  // namespace office_double
