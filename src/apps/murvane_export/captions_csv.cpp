#include "apps/murvane_export/captions_csv.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "apps/murvane_export/errors.h"
#include "apps/murvane_export/item_selection.h"
#include "office/text.h"

namespace unattended {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Whether a line ends at this place: by a line feed, or by a carriage return that none follows.
bool endsLine(std::string_view text, std::size_t at) {
    return text[at] == '\n' || (text[at] == '\r' && !text.substr(at + 1).starts_with('\n'));
}

std::size_t lineAt(std::string_view text, std::size_t position) {
    std::size_t line = 1;
    for (std::size_t at = 0; at < position; ++at) {
        if (endsLine(text, at)) ++line;
    }
    return line;
}

char separatorOf(std::string_view text) {
    const std::string_view head = text.substr(0, text.find_first_of("\r\n"));
    const bool semicolons = head.find(';') != std::string_view::npos;
    return semicolons && head.find(',') == std::string_view::npos ? ';' : ',';
}

class CsvReader {
public:
    CsvReader(std::string_view text, std::string_view fileName)
        : text_(text),
          fileName_(fileName),
          separator_(separatorOf(text)) {}

    std::vector<CsvRecord> read() {
        std::vector<CsvRecord> records;
        while (at_ < text_.size()) {
            CsvRecord record = readRecord();
            // A spreadsheet writes separators alone for a row that has been emptied.
            const bool isEmpty =
                std::all_of(record.fields.begin(), record.fields.end(),
                            [](const auto& field) { return office::trim(field).empty(); });
            if (!isEmpty) records.push_back(std::move(record));
        }
        return records;
    }

private:
    CsvRecord readRecord() {
        CsvRecord record;
        record.line = line_;
        record.fields.push_back(readField());
        while (at_ < text_.size() && text_[at_] == separator_) {
            ++at_;
            record.fields.push_back(readField());
        }
        skipLineEnd();
        return record;
    }

    std::string readField() {
        if (at_ < text_.size() && text_[at_] == '"') return readQuotedField();
        const std::size_t start = at_;
        while (at_ < text_.size() && !endsField(text_[at_])) ++at_;
        return std::string(text_.substr(start, at_ - start));
    }

    std::string readQuotedField() {
        const std::size_t openedOn = line_;
        std::string field;
        for (++at_;; ++at_) {
            if (at_ == text_.size()) complain(openedOn, "a double quote is never closed");
            if (text_[at_] == '"') {
                ++at_;
                if (at_ == text_.size() || text_[at_] != '"') break;
            }
            if (endsLine(text_, at_)) ++line_;
            field += text_[at_];
        }
        if (at_ < text_.size() && !endsField(text_[at_])) {
            complain(line_, "text follows a closing double quote");
        }
        return field;
    }

    [[nodiscard]] bool endsField(char c) const { return c == separator_ || c == '\n' || c == '\r'; }

    void skipLineEnd() {
        if (at_ == text_.size()) return;
        if (text_.substr(at_, 2) == "\r\n") ++at_;
        ++at_;
        ++line_;
    }

    [[noreturn]] void complain(std::size_t line, std::string_view what) const {
        throw UsageError(fmt::format("{}, line {}: {}.", fileName_, line, what));
    }

    std::string_view text_;
    std::string_view fileName_;
    char separator_;
    std::size_t at_ = 0;
    std::size_t line_ = 1;
};

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

std::vector<CsvRecord> parseCsv(std::string_view text, std::string_view fileName) {
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    if (const std::size_t bad = office::firstBadUtf8(text); bad != std::string_view::npos) {
        throw UsageError(
            fmt::format("{}, line {}: this is not UTF-8. Save the file as \"CSV UTF-8\".", fileName,
                        lineAt(text, bad)));
    }
    return CsvReader(text, fileName).read();
}

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
