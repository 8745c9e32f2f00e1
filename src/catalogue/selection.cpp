#include "catalogue/selection.h"

#include <string>

namespace catalogue {

namespace {

std::string typeOf(const office::Value& value) {
    return value.isObject() ? value.toObject().typeName() : std::string();
}

}  // namespace

Selected whatIsSelected(const session::OfficeSession& session) {
    if (typeOf(session.ActiveBook.get("ActiveSheet")) == "Chart") return Selected::ChartSheet;
    const std::string type = typeOf(session.ExcelApp.get("Selection"));
    if (type == "Range") return Selected::Cells;
    return type == "ChartArea" ? Selected::Chart : Selected::None;
}

}  // namespace catalogue
