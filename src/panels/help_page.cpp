#include "panels/help_page.h"

#include <fmt/format.h>

#include <array>
#include <cstddef>

#include "office/text.h"
#include "panels/markup.h"

namespace panels {

namespace {

/// A rule of the reader: it goes ahead of whatever the page says for itself.
struct ReaderRule {
    std::string_view selector;
    std::string_view declarations;
};

constexpr std::array<ReaderRule, 13> readerRules{{
    {"html,body", "margin:0;padding:0;height:100%;overflow:hidden;background:#111827"},
    {".main-header", "display:none"},
    {".popup-container",
     "height:100%;min-height:0;margin:0;border:none;border-radius:0;box-shadow:none;"
     "background:#111827"},
    {".content-area",
     "height:100%;max-height:100%;overflow-y:scroll;overflow-x:hidden;padding:22px 26px 24px;"
     "box-sizing:border-box"},
    {".content-area h3", "color:#74b9ff;margin:20px 0 12px;font-size:18px;line-height:1.35"},
    {".content-area h4", "color:#9fd0ff;margin:14px 0 10px;font-size:15px;line-height:1.35"},
    {".content-area p,.content-area li", "font-size:14px;line-height:1.6;margin-bottom:10px"},
    {".highlight-box",
     "background:rgba(116,185,255,0.12);border-left:4px solid #74b9ff;padding:16px 18px;"
     "margin:16px 0;border-radius:0 8px 8px 0"},
    {".mode-box,.destination-box",
     "background:#34495e;border:1px solid #4a6fa5;border-radius:8px;padding:16px 18px;"
     "margin:16px 0"},
    {".mode-title,.destination-title",
     "color:#74b9ff;font-weight:700;font-size:16px;margin-bottom:10px"},
    {".warning-box",
     "background:rgba(231,76,60,0.12);border-left:4px solid #e74c3c;padding:12px 14px;"
     "margin-top:12px;border-radius:0 6px 6px 0"},
    {".default-badge",
     "background:#4a90e2;color:#fff;font-size:11px;padding:3px 9px;border-radius:10px;"
     "margin-left:8px"},
    {".footer", "display:none"},
}};

std::string readerStyle() {
    constexpr std::string_view weight = " !important";
    std::string style = R"(<style id="murvaneHelpHostFix">)";
    for (const ReaderRule& rule : readerRules) {
        style += fmt::format("{}{{{}{}}}", rule.selector,
                             office::replaceAll(rule.declarations, ";", fmt::format("{};", weight)),
                             weight);
    }
    return style + "</style>";
}

/// Behind the ">" of the page's first tag of this name; `npos` if there is none.
std::size_t behindTag(std::string_view lowerPage, std::string_view name) {
    const std::string start = fmt::format("<{}", name);
    for (std::size_t at = lowerPage.find(start); at != std::string_view::npos;
         at = lowerPage.find(start, at + 1)) {
        const std::size_t end = at + start.size();
        if (end < lowerPage.size() &&
            std::string_view("> \t\r\n").find(lowerPage[end]) != std::string_view::npos) {
            const std::size_t close = lowerPage.find('>', end);
            return close == std::string_view::npos ? close : close + 1;
        }
    }
    return std::string_view::npos;
}

std::string inserted(std::string_view page, std::size_t at, std::string_view what) {
    std::string whole(page);
    return whole.insert(at == std::string_view::npos ? 0 : at, what);
}

}  // namespace

std::string injectHelpStyle(std::string_view page) {
    return inserted(page, office::lowerCase(page).find("</head>"), readerStyle());
}

std::string withBase(std::string_view page, std::string_view folder) {
    const std::string base = fmt::format("<base{}>", attribute("href", fmt::format("{}/", folder)));
    return inserted(page, behindTag(office::lowerCase(page), "head"), base);
}

std::string helpMessagePage(std::string_view message) {
    std::string text = office::replaceAll(message, "&", "&amp;");
    text = office::replaceAll(text, "<", "&lt;");
    text = office::replaceAll(text, ">", "&gt;");
    return R"(<!DOCTYPE html><html><head><meta charset="utf-8"></head>)"
           R"(<body style="font-family:Tahoma,sans-serif;background:#111827;color:#f1f5f9;)"
           R"(padding:24px;overflow-y:scroll;">)"
           "<h3>Murvane Help</h3><p>" +
           office::replaceAll(text, "\r\n", "<br>") + "</p></body></html>";
}

std::string titleOfPage(std::string_view page) {
    const std::string lower = office::lowerCase(page);
    const std::size_t start = behindTag(lower, "title");
    if (start == std::string::npos) return {};
    return std::string(office::trim(page.substr(start, lower.find("</title>", start) - start)));
}

}  // namespace panels
