#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/export_choices.h"

namespace unattended {

/// One record of a table in text form and the line that it begins on, from 1.
struct CsvRecord {
    std::size_t line = 0;
    std::vector<std::string> fields;
};

/// Reads comma-separated text as RFC 4180 has it: fields in double quotes may hold commas, line
/// breaks and doubled quotes. Lines end with LF, CR LF or CR. A byte-order mark is skipped, and so
/// are empty lines. Where the first line holds a semicolon and no comma, the semicolon separates,
/// as spreadsheets write it in much of Europe. `UsageError` with the line for broken quotes or text
/// that isn't UTF-8; `fileName` is for its text.
[[nodiscard]] std::vector<CsvRecord> parseCsv(std::string_view text, std::string_view fileName);

/// One line of a captions file. An empty caption or slide number leaves what the workbook has.
struct CaptionLine {
    std::size_t line = 0;
    std::string item;
    std::string sheet;  ///< empty: any
    std::string caption;
    std::string slide;
};

/// Reads a captions file: a header with the columns `item`, `sheet`, `caption` and `slide` in any
/// order, `item` at least, then one line for each item. `UsageError` with the line for anything
/// that doesn't fit.
[[nodiscard]] std::vector<CaptionLine> readCaptions(std::string_view text,
                                                    std::string_view fileName);

/// Writes captions and slide numbers into the rows. `UsageError` with the line for an item that the
/// list doesn't have.
void applyCaptions(catalogue::ExportList& list, const std::vector<CaptionLine>& lines,
                   std::string_view fileName);

}  // namespace unattended
