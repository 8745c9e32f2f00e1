#include "office/model/excel/cells.h"

#include "office/text.h"

namespace office::model::excel {

CellBlock cellsUnder(const Box& box, CellMap& cells) {
    // The last point inside: what ends with a cell does not reach into the next one.
    constexpr double inside = 0.02;
    return around(cells.cellAt(box.left, box.top),
                  cells.cellAt(box.left + box.width - inside, box.top + box.height - inside));
}

Value typedIn(const Value& value, bool textCell) {
    if (value.isObject()) return typedIn(value.get("Value"), textCell);
    if (value.isBlank() || value.isMissing()) return {};
    if (textCell) return value.isBool() ? Value(value.toBool() ? "TRUE" : "FALSE") : value.toText();
    if (value.isBool()) return value;
    if (value.isNumber()) return value.toDouble();
    const std::string text = value.toText();
    if (const auto number = numberOf(text)) return *number;
    if (sameIgnoringCase(text, "TRUE")) return true;
    if (sameIgnoringCase(text, "FALSE")) return false;
    return text;
}

}  // namespace office::model::excel
