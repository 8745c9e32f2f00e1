#include "apps/murvane_export/item_listing.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <vector>

#include "apps/terminal_text.h"

namespace unattended {

namespace {

using apps::columnCount;
using apps::printable;
using catalogue::ExportItem;

constexpr std::size_t columns = 6;
using Line = std::array<std::string, columns>;

std::string_view kindOf(const ExportItem& row) {
    if (row.isChartSheet()) return "chart sheet";
    return row.isEmbeddedChart() ? "chart" : "range";
}

std::string_view exportMark(const ExportItem& row) {
    if (row.hasSeveralAreas) return "several areas";
    if (row.isMissing) return "hidden or gone";
    return row.checked ? "yes" : "no";
}

Line lineOf(const ExportItem& row) {
    return {printable(row.name),          printable(row.sheet),       std::string(kindOf(row)),
            std::string(exportMark(row)), printable(row.slideNumber), printable(row.caption)};
}

void appendLine(std::string& table, const Line& line,
                const std::array<std::size_t, columns>& widths) {
    std::string text;
    for (std::size_t i = 0; i < columns; ++i) {
        text += line[i];
        text.append(widths[i] - columnCount(line[i]) + 2, ' ');
    }
    text.erase(text.find_last_not_of(' ') + 1);
    table += text + "\n";
}

}  // namespace

std::string listAsTable(const catalogue::ExportList& list) {
    std::vector<Line> lines = {{"ITEM", "SHEET", "KIND", "EXPORT", "SLIDE", "CAPTION"}};
    for (const ExportItem& row : list.rows) lines.push_back(lineOf(row));
    std::array<std::size_t, columns> widths{};
    for (const Line& line : lines) {
        for (std::size_t i = 0; i < columns; ++i) {
            widths[i] = std::max(widths[i], columnCount(line[i]));
        }
    }
    std::string table;
    for (const Line& line : lines) appendLine(table, line, widths);
    return table;
}

std::string listAsJson(const catalogue::ExportList& list, std::string_view workbook) {
    using nlohmann::ordered_json;
    ordered_json items = ordered_json::array();
    for (const ExportItem& row : list.rows) {
        items.push_back({{"name", row.name},
                         {"sheet", row.sheet},
                         {"kind", kindOf(row)},
                         {"checked", row.checked},
                         {"severalAreas", row.hasSeveralAreas},
                         {"missing", row.isMissing},
                         {"slide", row.slideNumber},
                         {"caption", row.caption}});
    }
    const ordered_json document = {{"workbook", workbook}, {"items", items}};
    // A text that isn't UTF-8 is shown with replacement characters rather than not at all.
    return document.dump(2, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

}  // namespace unattended
