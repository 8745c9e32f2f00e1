#pragma once

#include <cstdint>

#include "powerpoint/batch_frame.h"

/// The editable route: PowerPoint's default paste, by which a chart arrives as a chart of its own
/// and a range as a table.
namespace powerpoint {

/// Exports the taken rows as objects that can be edited. Result and failures as with `RunBatch`.
std::int32_t ExportRowsAsEditable(Batch& batch);

/// Puts one row's object on a slide of the session's presentation. False if there is none: a notice
/// has then said so. A chart on a worksheet that is gone is a failure.
bool PasteRowEditable(session::OfficeSession& session, const catalogue::ExportItem& row,
                      const office::Object& slide);

}  // namespace powerpoint
