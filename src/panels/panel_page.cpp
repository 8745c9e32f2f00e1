#include "panels/panel_page.h"

#include <fmt/format.h>

#include "office/text.h"
#include "panels/markup.h"
#include "panels/style_sheets.h"
#include "panels/summary.h"

namespace panels {

namespace {

bool isBlank(std::string_view text) {
    return office::trim(text).empty();
}

std::string link(std::string_view address, std::string_view cssClass, std::string_view content) {
    return element("a", attribute("href", address) + attribute("class", cssClass), content);
}

/// `prefix` in small letters.
std::string keyBehind(std::string_view prefix, std::string_view url) {
    const std::size_t place = office::lowerCase(url).find(prefix);
    if (place == std::string::npos) return {};
    std::string_view key = url.substr(place + prefix.size());
    key = key.substr(0, key.find('?'));
    key = key.substr(0, key.find('#'));
    return std::string(office::trim(key));
}

}  // namespace

std::string BuildActionPanelHtml(const ActionPanel& panel) {
    std::string body = BuildSummaryHtml(panel.message, panel.destinationWord);
    if (body.empty()) body = TextToParagraphs(panel.message);

    const std::string content = block("div", "body", body) + panel.tools + panel.options;
    return wholePage(PanelCss(), block("div", "panel " + NormalizeNoticeKind(panel.kind), content));
}

std::string ToolButtonHtml(std::string_view key, std::string_view label, std::string_view iconClass,
                           std::string_view tooltip) {
    const std::string icon = fmt::format("<span class=\"tool-icon {}\"></span>", iconClass);
    std::string attributes =
        attribute("href", fmt::format("murvane://action/{}", key)) + attribute("class", "tool-btn");
    if (!isBlank(tooltip)) attributes += attribute("title", tooltip);
    return element("a", attributes, icon + block("span", "tool-label", HtmlEscape(label)));
}

std::string ToolBarHtml(std::string_view buttons) {
    return isBlank(buttons) ? std::string() : block("div", "tool-bar", buttons);
}

std::string OptionRowHtml(std::string_view key, std::string_view label, bool checked,
                          bool enabled) {
    const std::string classes =
        fmt::format("opt-row{}{}", checked ? " checked" : "", enabled ? "" : " disabled");
    const std::string content = block("span", "opt-box", checked ? "&#10003;" : "&nbsp;") +
                                block("span", "opt-label", HtmlEscape(label));
    if (!enabled) return block("div", classes, content);
    return link(fmt::format("murvane://toggle/{}", key), classes, content);
}

std::string OptionsBlockHtml(std::string_view title, std::string_view rows) {
    if (isBlank(rows)) return {};
    const std::string heading =
        isBlank(title) ? std::string() : block("div", "opts-title", HtmlEscape(title));
    return block("div", "opts", heading + std::string(rows));
}

std::string ChoiceChipHtml(std::string_view group, std::string_view key, std::string_view label,
                           bool selected, bool enabled) {
    const std::string classes =
        fmt::format("choice-chip{}{}", selected ? " selected" : "", enabled ? "" : " disabled");
    if (!enabled) return block("span", classes, HtmlEscape(label));
    return link(fmt::format("murvane://select/{}/{}", group, key), classes, HtmlEscape(label));
}

std::string ChoiceGroupHtml(std::string_view title, std::string_view chips) {
    if (isBlank(chips)) return {};
    return block(
        "div", "choice-group",
        block("div", "choice-title", HtmlEscape(title)) + block("div", "choice-grid", chips));
}

std::string FieldRowHtml(std::string_view id, std::string_view label, std::string_view value,
                         std::string_view suffix, bool enabled) {
    const std::string input = "<input" + attribute("type", "text") + attribute("id", id) +
                              attribute("class", "field-input") + attribute("value", value) +
                              (enabled ? std::string() : attribute("disabled", "disabled")) + " />";
    return block("div", "field-row",
                 block("span", "field-label", HtmlEscape(label)) + input +
                     block("span", "field-suffix", HtmlEscape(suffix)));
}

std::string TextAreaRowHtml(std::string_view id, std::string_view label, std::string_view value,
                            bool enabled) {
    // The first line end of a text area is no part of its text.
    const std::string area =
        element("textarea",
                attribute("id", id) + attribute("class", "field-area") + attribute("rows", "3") +
                    (enabled ? std::string() : attribute("disabled", "disabled")),
                "\n" + HtmlEscape(value));
    return block("div", "field-row", block("div", "field-label", HtmlEscape(label)) + area);
}

std::string ActionKeyFromUrl(std::string_view url) {
    return keyBehind("murvane://action/", url);
}

std::string ToggleKeyFromUrl(std::string_view url) {
    return keyBehind("murvane://toggle/", url);
}

std::string SelectKeyFromUrl(std::string_view url) {
    return keyBehind("murvane://select/", url);
}

}  // namespace panels
