#pragma once

#include "session/office_session.h"

namespace catalogue {

/// What is selected in Excel, as far as it can be exported.
enum class Selected { None, ChartSheet, Chart, Cells };

[[nodiscard]] Selected whatIsSelected(const session::OfficeSession& session);

}  // namespace catalogue
