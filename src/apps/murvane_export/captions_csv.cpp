#include "apps/murvane_export/captions_csv.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>

#include "apps/murvane_export/csv.h"
#include "apps/murvane_export/errors.h"
#include "apps/murvane_export/item_selection.h"
#include "office/text.h"

namespace unattended {

namespace {

constexpr std::array<std::string_view, 4> columnNames = {"item", "sheet", "caption", "slide"};
enum Column : std::size_t { item, sheet, caption, slide };

/// Where each known column stands in a record.
using Header = std::array<std::optional<std::size_t>, columnNames.size()>;

[[noreturn]] void complain(std::string_view fileName, std::size_t line, std::string_view what) {
    throw UsageError(fmt::format("{}, line {}: {}", fileName, line, what));
}

Header readHeader(const CsvRecord& record, std::string_view fileName) {
    Header header;
    for (std::size_t i = 0; i < record.fields.size(); ++i) {
        const std::string name = office::lowerCase(office::trim(record.fields[i]));
        const auto* const known = std::find(columnNames.begin(), columnNames.end(), name);
        if (known == columnNames.end()) {
            complain(fileName, record.line,
                     fmt::format("unknown column \"{}\". The columns are item, sheet, caption "
                                 "and slide.",
                                 record.fields[i]));
        }
        header.at(static_cast<std::size_t>(known - columnNames.begin())) = i;
    }
    if (!header[item]) {
        complain(fileName, record.line, "the column \"item\" is missing from the first line.");
    }
    return header;
}

std::string fieldOf(const CsvRecord& record, const Header& header, Column column) {
    const auto position = header.at(column);
    return position && *position < record.fields.size() ? record.fields[*position] : std::string();
}

}  // namespace

std::vector<CaptionLine> readCaptions(std::string_view text, std::string_view fileName) {
    const std::vector<CsvRecord> records = parseCsv(text, fileName);
    if (records.empty()) {
        throw UsageError(fmt::format(
            "{} is empty. Its first line is to be \"item,sheet,caption,slide\".", fileName));
    }
    const Header header = readHeader(records.front(), fileName);

    std::vector<CaptionLine> lines;
    for (std::size_t i = 1; i < records.size(); ++i) {
        const CsvRecord& record = records[i];
        if (record.fields.size() > records.front().fields.size()) {
            complain(fileName, record.line,
                     "more fields than the first line has columns. A caption that holds a comma "
                     "stands in double quotes.");
        }
        CaptionLine line{record.line, fieldOf(record, header, item), fieldOf(record, header, sheet),
                         fieldOf(record, header, caption), fieldOf(record, header, slide)};
        if (line.item.empty()) complain(fileName, record.line, "the item has no name.");
        if (!line.slide.empty() && !office::numberOf(line.slide)) {
            complain(fileName, record.line,
                     fmt::format("the slide \"{}\" is not a number.", line.slide));
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

void applyCaptions(catalogue::ExportList& list, const std::vector<CaptionLine>& lines,
                   std::string_view fileName) {
    for (const CaptionLine& line : lines) {
        try {
            catalogue::ExportItem& row = list.rows[findItem(list, line.item, line.sheet)];
            if (!line.caption.empty()) row.caption = line.caption;
            if (!line.slide.empty()) row.slideNumber = office::trim(line.slide);
        } catch (const UsageError& error) {
            complain(fileName, line.line, error.what());
        }
    }
}

}  // namespace unattended
