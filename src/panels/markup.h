#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The markup of panels and notices is put together from these few functions. A text becomes markup
/// by `HtmlEscape` alone.
namespace panels {

/// `text` with the five characters that mean something in markup replaced.
[[nodiscard]] std::string HtmlEscape(std::string_view text);

/// One "<p>" for each line that isn't blank. A text without such a line gives one paragraph of the
/// text as it came, so that an empty message still has its paragraph.
[[nodiscard]] std::string TextToParagraphs(std::string_view text);

/// "warning", "error", "success" or "info", which stands for everything unknown.
[[nodiscard]] std::string NormalizeNoticeKind(std::string_view kind);

/// The lines of a text, each without blanks around it. Lines end with CR LF, CR or LF; an empty
/// text is one empty line.
[[nodiscard]] std::vector<std::string> trimmedLines(std::string_view text);

/// Those lines that aren't blank, one behind the other: for a screen reader.
[[nodiscard]] std::string onOneLine(std::string_view text);

/// ` name="value"`, the value escaped.
[[nodiscard]] std::string attribute(std::string_view name, std::string_view value);

/// An element around finished markup. `attributes` come from `attribute`.
[[nodiscard]] std::string element(std::string_view tag, std::string_view attributes,
                                  std::string_view content);

/// An element of a class around finished markup: the usual case.
[[nodiscard]] std::string block(std::string_view tag, std::string_view cssClass,
                                std::string_view content);

/// A whole page: `styleSheet` in its head, `body` as finished markup.
[[nodiscard]] std::string wholePage(std::string_view styleSheet, std::string_view body);

}  // namespace panels
