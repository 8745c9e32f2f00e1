#pragma once

#include <cstdint>

#include "powerpoint/batch_frame.h"

/// The four formats in which an item goes on a slide, chosen by `ExportChoices::format`.
namespace powerpoint {

/// Exports the taken rows. Result and failures as with `RunBatch`.
std::int32_t ExportRows(Batch& batch);

/// Puts one row on the slide in view of the active presentation, whether it is checked or not. True
/// if it is there; otherwise a notice has said why not.
bool InsertOneItem(session::OfficeSession& session, const catalogue::ExportItem& row,
                   const catalogue::ExportChoices& choices);

}  // namespace powerpoint
