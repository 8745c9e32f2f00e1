#include "panels/style_sheets.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace panels {

namespace {

/// One rule of a style sheet.
struct StyleRule {
    std::string_view selector;
    /// As they stand between the braces.
    std::string_view declarations;
};

/// The rules one after another, without a line break.
template <std::size_t count>
std::string styleSheet(const std::array<StyleRule, count>& rules) {
    std::string text;
    for (const StyleRule& rule : rules) {
        text += rule.selector;
        text += '{';
        text += rule.declarations;
        text += '}';
    }
    return text;
}

// clang-format off
constexpr std::array<StyleRule, 24> baseRules{{
    {"html,body",
     "margin:0;padding:0;overflow:hidden;background:#111827;"
     "font-family:Segoe UI,Tahoma,Arial,sans-serif;color:#f1f5f9;height:100%"},
    // The shadow is stated twice: the older engine knows only the filter.
    {".panel",
     "box-sizing:border-box;border:1px solid #334155;border-radius:10px;overflow:hidden;"
     "background:#1a2332;box-shadow:0 2px 8px rgba(0,0,0,.25);"
     "filter:progid:DXImageTransform.Microsoft.dropShadow(OffX=0,OffY=2,Color=#44000000,Positive=true);"},
    {".panel.info", "border-color:#2563eb;background:#152238"},
    {".panel.warning", "border-color:#d97706;background:#1f1a14"},
    {".panel.error", "border-color:#dc2626;background:#1f1414"},
    {".panel.success", "border-color:#16a34a;background:#142018"},
    {".body",
     "padding:14px 16px 10px;font-size:13px;line-height:1.5;text-align:center;color:#e2e8f0"},
    {".body p", "margin:0 0 8px 0"},
    {".summary", "display:table;width:100%;margin:0 auto 6px auto"},
    {".count",
     "display:table-cell;vertical-align:middle;width:52px;font-size:26px;font-weight:700;"
     "color:#60a5fa;line-height:1"},
    {".summary-text", "display:table-cell;vertical-align:middle;text-align:left;padding-left:10px"},
    {".summary-lead", "font-size:12px;color:#94a3b8;margin-bottom:2px"},
    {".dest-name", "font-size:15px;font-weight:700;color:#f1f5f9;word-wrap:break-word"},
    {".format-tag",
     "display:inline-block;margin-top:4px;padding:2px 10px;border-radius:999px;"
     "background:rgba(37,99,235,.25);color:#93c5fd;font-size:11px;font-weight:700"},
    {".detail-note", "margin-top:4px;font-size:11px;color:#94a3b8;line-height:1.4"},
    {".flow-inline", "margin-top:6px"},
    {".app-badge",
     "display:inline-block;min-width:34px;padding:3px 9px;border-radius:5px;font-size:11px;"
     "font-weight:700;color:#fff;letter-spacing:.3px"},
    {".app-badge.excel", "background:#217346"},
    {".app-badge.ppt", "background:#d24726"},
    {".app-badge.word", "background:#2b579a"},
    {".app-badge.pdf", "background:#c62828"},
    {".app-badge.html", "background:#1565c0"},
    {".app-badge.images", "background:#7b1fa2"},
    {".flow-arrow",
     "display:inline-block;margin:0 8px;font-size:13px;color:#64748b;font-weight:700"},
}};

constexpr std::array<StyleRule, 20> optionRules{{
    {".opts", "padding:8px 14px 14px 14px;text-align:left;border-top:1px solid #334155"},
    {".opts-title",
     "font-size:11px;font-weight:700;color:#94a3b8;margin:0 0 6px 2px;letter-spacing:.2px"},
    {".opt-row",
     "display:block;padding:10px 12px;margin:5px 0;border:1px solid #334155;border-radius:8px;"
     "background:#162032;text-decoration:none;color:#f1f5f9;cursor:pointer"},
    {".opt-row.checked", "border-color:#2563eb;background:#152238"},
    {".opt-row.disabled", "opacity:.55;cursor:default"},
    {".opt-box",
     "display:inline-block;width:16px;height:16px;border:1px solid #64748b;border-radius:3px;"
     "margin-right:8px;text-align:center;line-height:14px;font-size:11px;color:#60a5fa;"
     "vertical-align:middle"},
    {".opt-row.checked .opt-box", "border-color:#2563eb;background:#2563eb;color:#fff"},
    {".opt-label", "font-size:12px;line-height:1.45;vertical-align:middle"},
    {".field-row", "padding:6px 4px 2px 4px;font-size:12px;color:#e2e8f0"},
    {".field-label", "margin-right:6px"},
    {".field-input",
     "width:44px;padding:3px 6px;border:1px solid #334155;border-radius:5px;text-align:center;"
     "font-size:12px;font-weight:700;color:#60a5fa;background:#111827"},
    {".field-area",
     "width:96%;margin-top:4px;padding:4px 6px;border:1px solid #334155;border-radius:5px;"
     "font-family:inherit;font-size:12px;color:#60a5fa;background:#111827;resize:none"},
    {".field-suffix", "margin-left:6px;color:#94a3b8;font-size:11px"},
    {".field-input:disabled,.field-input:disabled+.field-suffix", "opacity:.4"},
    {".choice-group", "padding:6px 14px 2px;text-align:left;border-top:1px solid #334155"},
    {".choice-title",
     "font-size:11px;font-weight:700;color:#94a3b8;margin:0 0 5px 2px;letter-spacing:.2px"},
    // The size of zero takes away the gaps between the chips.
    {".choice-grid", "font-size:0;line-height:1.3"},
    {".choice-chip",
     "display:inline-block;margin:0 6px 6px 0;padding:5px 12px;border:1px solid #334155;"
     "border-radius:999px;background:#162032;color:#f1f5f9;font-size:12px;font-weight:700;"
     "text-decoration:none;cursor:pointer"},
    {".choice-chip.selected", "border-color:#2563eb;background:#152238;color:#93c5fd"},
    {".choice-chip.disabled", "opacity:.55;cursor:default"},
}};

constexpr std::array<StyleRule, 9> toolRules{{
    {".tool-bar", "padding:8px 14px 4px;text-align:left;border-top:1px solid #334155"},
    {".tool-btn",
     "display:inline-block;margin:0 8px 6px 0;padding:7px 14px 7px 10px;border:1px solid #334155;"
     "border-radius:8px;background:#162032;color:#f1f5f9;font-size:12px;font-weight:700;"
     "text-decoration:none;cursor:pointer"},
    {".tool-btn:hover", "border-color:#2563eb;background:#152238;color:#93c5fd"},
    {".tool-icon",
     "display:inline-block;width:20px;height:18px;margin-right:8px;vertical-align:middle;"
     "overflow:hidden"},
    {".tool-icon-style",
     "border:2px solid #2563eb;border-radius:2px;background:rgba(37,99,235,.2)"},
    {".tool-icon-layout", "border:2px dashed #2563eb;border-radius:2px;background:#111827"},
    {".tool-icon-folder",
     "border:2px solid #2563eb;border-radius:0 2px 2px 2px;background:#111827"},
    {".tool-label", "vertical-align:middle;line-height:1.35"},
    {".app-badge", "text-align:center"},
}};

// So that nothing is out of reach in the strip: the usual options just have room, and a page that a
// long path makes higher can be scrolled.
constexpr std::array<StyleRule, 6> roomRules{{
    {"html,body", "overflow-x:hidden;overflow-y:auto"},
    {"::-webkit-scrollbar", "width:10px;background:#111827"},
    {"::-webkit-scrollbar-thumb", "background:#475569;border-radius:5px"},
    // Fixed, or a path without a blank would make it wider than the page.
    {".summary", "table-layout:fixed;margin-bottom:4px"},
    {".dest-name", "overflow-wrap:anywhere"},
    {".opts", "padding-top:6px;padding-bottom:8px"},
}};
// clang-format on

// clang-format off
constexpr std::array<StyleRule, 28> noticeRules{{
    {"html,body", "margin:0;padding:0;overflow:hidden"},
    {"body",
     "padding:20px 12px 18px 12px;font-family:Segoe UI,Tahoma,Arial,sans-serif;"
     "background:#111827;color:#f1f5f9"},
    {".card",
     "background:#111827;border-radius:12px;border:1px solid #334155;overflow:visible;"
     "box-shadow:none;filter:none;margin-top:4px"},
    {".hero", "padding:20px 22px 18px;color:#fff"},
    {".hero.info", "background:#1565c0"},
    {".hero.warning", "background:#ef6c00"},
    {".hero.error", "background:#c62828"},
    {".hero.success", "background:#2e7d32"},
    {"h1", "margin:0;font-size:20px;font-weight:700;line-height:1.35"},
    {".badge",
     "display:inline-block;margin-top:10px;padding:5px 12px;border-radius:999px;"
     "background:rgba(255,255,255,.22);font-size:12px;letter-spacing:.2px;line-height:1.4"},
    {".content",
     "padding:20px 22px 14px;font-size:14px;line-height:1.65;color:#e2e8f0;background:#111827"},
    {".content p,.content .lead", "margin:0 0 12px 0"},
    {".content strong", "color:#f8fafc"},
    {".content ul,.content ul.issue-list", "margin:8px 0 14px 0;padding:0 0 0 24px"},
    {".content li", "margin:0 0 10px 0;line-height:1.55"},
    {".content ul.review li", "color:#fcd34d"},
    {".highlight",
     "margin-top:4px;padding:14px 16px;border-radius:10px;background:rgba(239,108,0,.14);"
     "border:1px solid rgba(239,108,0,.4);color:#fdba74;font-size:14px;line-height:1.65"},
    {".pill",
     "display:inline-block;min-width:24px;text-align:center;padding:2px 9px;margin:0 4px;"
     "border-radius:999px;background:rgba(239,68,68,.24);color:#fecaca;font-weight:700;"
     "font-size:14px;vertical-align:baseline"},
    {".footer-note",
     "padding:10px 22px 16px;font-size:12px;color:#94a3b8;border-top:1px solid #334155;"
     "background:#111827;line-height:1.4"},
    {".review-item",
     "margin:8px 0;padding:12px 14px;border:1px solid #334155;border-radius:8px;"
     "background:#162032"},
    {".review-item label", "display:block;font-size:13px;line-height:1.5;color:#e2e8f0"},
    {".review-item input", "margin-right:8px;vertical-align:middle"},
    {".review-suggest", "margin:8px 0 0 26px;color:#93c5fd;font-size:13px;line-height:1.45"},
    {".review-replace", "margin:6px 0 0 26px;color:#fdba74;font-size:12px;line-height:1.45"},
    {".review-note", "margin-top:14px;color:#94a3b8;font-size:12px;line-height:1.5"},
    {".review-meta", "color:#94a3b8"},
    // As round as the card, whose corners they would cover.
    {".hero", "border-radius:11px 11px 0 0"},
    {".footer-note", "border-radius:0 0 11px 11px"},
}};
// clang-format on

}  // namespace

std::string PanelCss() {
    return styleSheet(baseRules) + styleSheet(optionRules) + styleSheet(toolRules) +
           styleSheet(roomRules);
}

std::string NoticeCss() {
    return styleSheet(noticeRules);
}

}  // namespace panels
