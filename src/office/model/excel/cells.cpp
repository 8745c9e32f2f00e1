#include "office/model/excel/cells.h"

#include "office/text.h"

namespace office::model::excel {

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
