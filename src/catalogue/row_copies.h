#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "catalogue/export_choices.h"
#include "session/office_session.h"

/// Putting a row's object on the clipboard, for the formats that paste.
///
/// Nothing is activated for it: Excel copies charts and cells of sheets that aren't on top as well,
/// and what the user is typing into a cell would be lost.
namespace catalogue {

/// What stands between a copy and its paste: an object of a workbook is rendered by another
/// process.
enum class CopyPause { None, UntilRendered };

/// Copies what a row stands for, or a picture of it that can be drawn at any size. Plain code: what
/// fails goes to the caller.
void CopyRow(session::OfficeSession& session, const ExportItem& row);
void CopyRowAsPicture(session::OfficeSession& session, const ExportItem& row);

/// How a picture is copied; the numbers are Excel's.
enum class CopyFormat : std::int32_t { Vectors = -4147, Pixels = 2 };

/// Copies cells or a chart as they are on the screen.
void CopyCellsAsPicture(const office::Object& cells, CopyFormat format);
void CopyChartAsPicture(const office::Object& chart);

/// Empty once the row's object is copied, otherwise what a notice has to say: `notFound` where
/// there is no such object, and the reason where there is one.
[[nodiscard]] std::string TryCopyRow(session::OfficeSession& session, const ExportItem& row,
                                     CopyPause pause, std::string_view notFound);

/// What an item is called where it can't be seen: its caption, or else the object's name.
[[nodiscard]] std::string DescriptionOf(const ExportItem& row);

}  // namespace catalogue
