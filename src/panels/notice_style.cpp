#include "panels/notice_style.h"

#include <array>

#include "panels/style_sheet.h"

namespace panels {

namespace {

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

std::string NoticeCss() {
    return styleSheet(noticeRules);
}

}  // namespace panels
