#pragma once

#include <cstdint>

#include "powerpoint/batch_frame.h"

/// The linked route: an object that keeps a reference to the workbook's file and can be updated
/// when that changes.
namespace powerpoint {

/// Exports the taken rows as linked objects. Result and failures as with `RunBatch`. Excel's window
/// is not made large again.
std::int32_t ExportRowsAsLinkedObjects(Batch& batch);

/// Puts one row's object on a slide of the session's presentation. Whether it is there; if not, a
/// notice has said why.
bool PasteRowAsLink(session::OfficeSession& session, const catalogue::ExportItem& row,
                    const office::Object& slide);

}  // namespace powerpoint
