#pragma once

#include "session/office_session.h"

namespace catalogue {

/// What is selected in Excel, as far as it can be exported.
enum class Selected { None, ChartSheet, Chart, Cells };

struct Selection {
    Selected kind = Selected::None;
    office::Object cells;  ///< nothing if it is something else
};

[[nodiscard]] Selection whatIsSelected(const session::OfficeSession& session);

}  // namespace catalogue
