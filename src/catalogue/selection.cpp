#include "catalogue/selection.h"

#include <string>

namespace catalogue {

namespace {

std::string typeOf(const office::Value& value) {
    return value.isObject() ? value.toObject().typeName() : std::string();
}

}  // namespace

Selection whatIsSelected(const session::OfficeSession& session) {
    if (typeOf(session.ActiveBook.get("ActiveSheet")) == "Chart") return {Selected::ChartSheet, {}};
    const office::Value selected = session.ExcelApp.get("Selection");
    const std::string type = typeOf(selected);
    if (type == "Range") return {Selected::Cells, selected.toObject()};
    return {type == "ChartArea" ? Selected::Chart : Selected::None, {}};
}

}  // namespace catalogue
