#include "panels/markup.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "office/text.h"

namespace panels {

std::string HtmlEscape(std::string_view text) {
    return office::escapeMarkup(text);
}

std::vector<std::string> trimmedLines(std::string_view text) {
    std::vector<std::string> lines = office::linesOf(text);
    for (std::string& line : lines) line = office::trim(line);
    return lines;
}

std::string onOneLine(std::string_view text) {
    std::vector<std::string> lines = trimmedLines(text);
    std::erase(lines, "");
    return fmt::format("{}", fmt::join(lines, " "));
}

std::string TextToParagraphs(std::string_view text) {
    std::string paragraphs;
    for (const std::string& line : trimmedLines(text)) {
        if (!line.empty()) paragraphs += element("p", {}, HtmlEscape(line));
    }
    if (paragraphs.empty()) return element("p", {}, HtmlEscape(text));
    return paragraphs;
}

std::string NormalizeNoticeKind(std::string_view kind) {
    const std::string word = office::lowerCase(office::trim(kind));
    if (word == "warning" || word == "warn") return "warning";
    if (word == "error" || word == "critical") return "error";
    if (word == "success" || word == "done") return "success";
    return "info";
}

std::string attribute(std::string_view name, std::string_view value) {
    return fmt::format(" {}=\"{}\"", name, HtmlEscape(value));
}

std::string element(std::string_view tag, std::string_view attributes, std::string_view content) {
    return fmt::format("<{0}{1}>{2}</{0}>", tag, attributes, content);
}

std::string block(std::string_view tag, std::string_view cssClass, std::string_view content) {
    return element(tag, attribute("class", cssClass), content);
}

std::string wholePage(std::string_view styleSheet, std::string_view body) {
    // The embedded browser of older systems draws with its newest engine only when the page asks
    // for it.
    return fmt::format(
        "<!DOCTYPE html><html><head><meta charset=\"utf-8\">"
        "<meta http-equiv=\"X-UA-Compatible\" content=\"IE=edge\">"
        "<style>{}</style></head><body>{}</body></html>",
        styleSheet, body);
}

}  // namespace panels
