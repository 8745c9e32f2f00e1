#pragma once

#include <string>

#include "catalogue/export_list.h"
#include "session/office_session.h"

/// Putting a row's object on the clipboard, for the formats that paste.
///
/// Nothing is activated for it: Excel copies charts and cells of sheets that aren't on top as well,
/// and what the user is typing into a cell would be lost.
namespace powerpoint {

/// What stands between a copy and its paste: an object of a workbook is rendered by another
/// process.
enum class CopyPause { None, UntilRendered };

/// Each is false if there is no such object or if it can't be copied.
bool CopyChartSheet(session::OfficeSession& session, const std::string& name, CopyPause pause);
bool CopyEmbeddedChart(session::OfficeSession& session, const std::string& sheetName,
                       const std::string& chartName, CopyPause pause);
bool CopyRange(session::OfficeSession& session, const catalogue::ExportItem& row, CopyPause pause);

}  // namespace powerpoint
