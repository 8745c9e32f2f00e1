#pragma once

#include <string_view>

#include "catalogue/export_list.h"

namespace destinations {

/// What the dialogs of Word and PDF call a format.
[[nodiscard]] constexpr std::string_view formatName(catalogue::ExportFormat format) {
    switch (format) {
        case catalogue::ExportFormat::Editable:
            return "Excel editable";
        case catalogue::ExportFormat::Embedded:
            return "Excel embedded";
        case catalogue::ExportFormat::Linked:
            return "Linked embedded objects";
        default:
            return "pictures";
    }
}

}  // namespace destinations
