#pragma once

#include <cstdint>
#include <string_view>

#include "catalogue/export_list.h"
#include "session/closing.h"
#include "session/office_session.h"

/// The picture route: each object is exported by Excel to a PNG file in the temporary folder,
/// inserted into the first open presentation, and the file is deleted.
namespace powerpoint {

/// Exports the taken rows as pictures. Failures go to the caller, see `RunBatch`.
void ExportRowsAsPictures(session::OfficeSession& session, catalogue::ExportList& list,
                          const catalogue::ExportChoices& choices,
                          const session::FormHooks& forms = {});

/// One item each, on slide `slideIndex` (from 1) of the first open presentation, which need not be
/// the active one. The picture's alternative text is `caption`, or the object's own name where that
/// is empty. Failures go to the caller.

/// The file of a chart sheet's picture stays, and the next chart sheet's overwrites it.
void InsertChartSheetPicture(session::OfficeSession& session, std::string_view sheetName,
                             std::int16_t slideIndex, std::string_view caption = {});

void InsertEmbeddedChartPicture(session::OfficeSession& session, std::string_view sheetName,
                                std::string_view chartName, std::int16_t slideIndex,
                                std::string_view caption = {});

/// A name that leads to no range gets a notice, and nothing is inserted.
void InsertRangePicture(session::OfficeSession& session, std::string_view rangeName,
                        std::int16_t slideIndex, std::string_view caption = {});

}  // namespace powerpoint
