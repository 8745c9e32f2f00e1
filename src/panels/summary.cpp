#include "panels/summary.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "office/text.h"
#include "panels/markup.h"

namespace panels {

namespace {

/// The sentences of a message, told apart.
struct Summary {
    std::string count;
    std::string lead;
    std::string destination;
    std::string format;
    std::string detail;
};

std::string trimmed(std::string_view text) {
    return std::string(office::trim(text));
}

std::string trimmedFrom(std::string_view text, std::size_t position) {
    return position < text.size() ? trimmed(text.substr(position)) : std::string();
}

void cutPrefix(std::string& text, std::string_view prefix) {
    if (text.starts_with(prefix)) text = trimmedFrom(text, prefix.size());
}

/// Index of a noun that stands behind something, found without regard to case and to blanks ahead
/// of the line.
std::optional<std::size_t> findNoun(std::string_view line, std::string_view noun) {
    const std::size_t position = office::lowerCase(office::trim(line)).find(noun);
    if (position == std::string::npos || position == 0) return std::nullopt;
    return position;
}

/// Splits the line ahead of a noun. False if what stands there is no number.
bool splitAtNoun(std::string_view line, std::size_t position, std::string& count,
                 std::string& lead) {
    std::string number = trimmed(line.substr(0, position));
    if (!office::numberOf(number)) return false;
    count = std::move(number);
    // The plural sign is cut only at the very start of the lead, where the noun itself stands:
    // "object(s)" stays whole.
    lead = trimmedFrom(line, position + 1);
    cutPrefix(lead, "(s)");
    return true;
}

void readFurtherLine(const std::string& line, Summary& summary) {
    const std::string lower = office::lowerCase(line);
    if (lower.starts_with("as ")) {
        summary.format = trimmedFrom(line, 3);
    } else if (lower.starts_with("as")) {
        summary.format = trimmedFrom(line, 2);
    } else if (lower.find("starting at") != std::string::npos) {
        summary.detail = line;
    } else if (summary.destination.empty()) {
        summary.destination = line;
    } else if (!summary.format.empty()) {
        if (!summary.detail.empty()) summary.detail += ' ';
        summary.detail += line;
    } else {
        summary.format = line;
    }
}

/// The count ahead of " object" or " image file" in a message's first line, or empty. `lead`
/// becomes the text from that noun on; it stays as it was where there is no count.
std::string ParseCountPhrase(std::string_view line, std::string& lead) {
    std::string count;
    if (const auto objects = findNoun(line, " object")) {
        if (splitAtNoun(line, *objects, count, lead)) cutPrefix(lead, "s");
        return count;
    }
    if (const auto files = findNoun(line, " image file")) splitAtNoun(line, *files, count, lead);
    return count;
}

/// What follows "inserted in", "saved to" or "exported to" in a message's first line, or empty.
/// `lead` becomes the text ahead of the phrase; it stays as it was where there is none.
std::string ParseDestinationPhrase(std::string_view line, std::string& lead) {
    static constexpr std::array<std::string_view, 3> phrases = {"inserted in", "saved to",
                                                                "exported to"};
    const std::string lower = office::lowerCase(line);
    for (const std::string_view phrase : phrases) {
        const std::size_t position = lower.find(phrase);
        if (position == std::string::npos) continue;
        lead = trimmed(line.substr(0, position));
        cutPrefix(lead, "(s)");
        return trimmedFrom(line, position + phrase.size());
    }
    return {};
}

/// The line of badges from Excel to the destination; empty for an unknown word.
std::string BuildFlowHtml(std::string_view destinationWord) {
    struct Destination {
        std::string_view key;
        std::string_view badge;
        std::array<std::string_view, 4> words;
    };
    static constexpr std::array<Destination, 5> destinations = {{
        {"ppt", "PPT", {"powerpoint", "ppt", "pp"}},
        {"word", "DOC", {"word", "doc"}},
        {"pdf", "PDF", {"pdf"}},
        {"html", "HTML", {"html", "htm"}},
        {"images", "IMG", {"images", "image", "files", "folder"}},
    }};
    const std::string word = office::lowerCase(office::trim(destinationWord));
    for (const Destination& destination : destinations) {
        const auto& words = destination.words;
        if (word.empty() || std::find(words.begin(), words.end(), word) == words.end()) continue;
        return block("span", "app-badge excel", "XLS") + block("span", "flow-arrow", "&rarr;") +
               block("span", "app-badge " + std::string(destination.key), destination.badge);
    }
    return {};
}

std::optional<Summary> readSummary(std::string_view message) {
    const std::vector<std::string> lines = trimmedLines(message);
    if (lines.front().empty()) return std::nullopt;

    Summary summary;
    summary.count = ParseCountPhrase(lines.front(), summary.lead);
    if (summary.count.empty()) return std::nullopt;

    summary.destination = ParseDestinationPhrase(lines.front(), summary.lead);
    if (summary.destination.empty() && lines.size() > 1) summary.destination = lines[1];
    for (std::size_t i = 2; i < lines.size(); ++i) {
        if (!lines[i].empty()) readFurtherLine(lines[i], summary);
    }

    const bool saysNothingMore =
        lines.size() == 1 && summary.destination.empty() && summary.format.empty();
    if (saysNothingMore) return std::nullopt;
    return summary;
}

std::string textBlock(std::string_view cssClass, std::string_view text) {
    return text.empty() ? std::string() : block("div", cssClass, HtmlEscape(text));
}

}  // namespace

std::string BuildSummaryHtml(std::string_view message, std::string_view destinationWord) {
    const auto summary = readSummary(message);
    if (!summary) return {};

    const std::string flow = BuildFlowHtml(destinationWord);
    const std::string text = block("div", "summary-lead", HtmlEscape(summary->lead)) +
                             textBlock("dest-name", summary->destination) +
                             textBlock("format-tag", summary->format) +
                             textBlock("detail-note", summary->detail) +
                             (flow.empty() ? std::string() : block("div", "flow-inline", flow));
    return block(
        "div", "summary",
        block("div", "count", HtmlEscape(summary->count)) + block("div", "summary-text", text));
}

}  // namespace panels
