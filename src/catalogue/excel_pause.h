#pragma once

#include <utility>

#include "session/office_session.h"

namespace catalogue {

/// Excel doesn't draw, raise events or calculate while this lives, since a workbook can hold many
/// items. At its end all three are on, also after a failure.
class ExcelPause {
public:
    explicit ExcelPause(session::OfficeSession& session);
    ~ExcelPause();
    ExcelPause(const ExcelPause&) = delete;
    ExcelPause& operator=(const ExcelPause&) = delete;

private:
    explicit ExcelPause(office::Object excel) : excel_(std::move(excel)) {}

    office::Object excel_;
};

}  // namespace catalogue
