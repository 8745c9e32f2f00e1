#pragma once

#include <string_view>

#include "session/export_list.h"

namespace session_doubles {

/// A checked item of a list.
inline session::ExportItem item(session::ItemKind kind, std::string_view name,
                                std::string_view sheet, std::string_view caption = "",
                                std::string_view slide = "") {
    session::ExportItem made;
    made.kind = kind;
    made.name = name;
    made.sheet = sheet;
    made.caption = caption;
    made.slideNumber = slide;
    return made;
}

}  // namespace session_doubles
