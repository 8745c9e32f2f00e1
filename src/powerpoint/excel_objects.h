#pragma once

#include <cstdint>

#include "powerpoint/batch_frame.h"

/// The embedded route: an Excel object with a copy of the data, which opens from inside the
/// presentation.
namespace powerpoint {

/// Exports the taken rows as embedded objects. Result and failures as with `RunBatch`; a notice
/// says so where none of them arrived.
std::int32_t ExportRowsAsExcelObjects(Batch& batch);

/// Puts one row's object on a slide of the session's presentation. Whether it is there; if not, a
/// notice has said why.
bool PasteRowAsExcelObject(session::OfficeSession& session, const catalogue::ExportItem& row,
                           const office::Object& slide);

}  // namespace powerpoint
