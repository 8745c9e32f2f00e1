#include "panels/notices.h"

#include <exception>

#include "office/failure.h"
#include "office/text.h"
#include "panels/dialogs.h"
#include "panels/markup.h"
#include "panels/style_sheets.h"

namespace panels {

namespace {

std::string_view defaultBadge(std::string_view kind) {
    if (kind == "warning") return "Please review and continue";
    if (kind == "error") return "Action could not be completed";
    if (kind == "success") return "Completed successfully";
    return "Murvane notice";
}

std::string lead(std::string_view text) {
    return block("p", "lead", element("strong", {}, HtmlEscape(text)));
}

std::string unescaped(std::string text) {
    text = office::replaceAll(text, "&lt;", "<");
    text = office::replaceAll(text, "&gt;", ">");
    text = office::replaceAll(text, "&quot;", "\"");
    text = office::replaceAll(text, "&#39;", "'");
    return office::replaceAll(text, "&amp;", "&");
}

}  // namespace

std::string BuildNoticeHtml(std::string_view title, std::string_view body, std::string_view kind,
                            std::string_view badge) {
    const std::string normalKind = NormalizeNoticeKind(kind);
    const std::string hero =
        element("h1", {}, HtmlEscape(title)) +
        block("div", "badge", HtmlEscape(badge.empty() ? defaultBadge(normalKind) : badge));
    const std::string card = block("div", "hero " + normalKind, hero) +
                             block("div", "content", body) +
                             block("div", "footer-note", "Murvane 2027");
    return wholePage(
        NoticeCss(),
        element("div", attribute("class", "card") + attribute("id", "noticeRoot"), card));
}

std::string noticePage(const session::Notice& notice) {
    if (!notice.page.empty()) return notice.page;
    return BuildNoticeHtml(notice.title, TextToParagraphs(notice.message), notice.kind,
                           notice.badge);
}

int ShowExportBlockedNotice(session::NoticePresenter& presenter, std::string_view fixes,
                            std::string_view reviews) {
    session::Notice notice;
    notice.title = "Export blocked";
    notice.kind = "error";
    notice.badge = "Pre-export check";
    notice.message = listText(fixes);

    std::string body = lead("Fix these before exporting:") + block("ul", "issue-list", fixes);
    if (!reviews.empty()) {
        body += lead("Also review:") + block("ul", "issue-list review", reviews);
        notice.message += "\r\n\r\n" + listText(reviews);
    }
    notice.page = BuildNoticeHtml(notice.title, body, notice.kind, notice.badge);
    return presenter.show(notice);
}

std::string listText(std::string_view listItems) {
    const std::string broken = office::replaceAll(listItems, "</li><li>", "\r\n");
    return unescaped(office::replaceAll(office::replaceAll(broken, "<li>", ""), "</li>", ""));
}

int NoticePanel::show(const session::Notice& notice) {
    PendingNotice pending;
    pending.Html = noticePage(notice);
    pending.Title = notice.title;
    pending.Message = notice.message;
    pending.Buttons = notice.buttons;
    MurvaneNotice form(desktop_, host_, std::move(pending));

    const TopmostDropped dropped(desktop_);
    try {
        ShowNoticeForm(form);
    } catch (const office::SuiteLost&) {
        throw;
    } catch (const std::exception&) {
        // A message that can't be shown as a page is shown as it can be.
        desktop_.messageBox("Murvane could not open the notice panel.", "Murvane");
    }
    return form.Result;
}

void NoticePanel::ShowNoticeForm(MurvaneNotice& form) {
    if (forms::Form* earlier = desktop_.findLoaded(form.name())) desktop_.unload(*earlier);
    desktop_.load(form);
    desktop_.letEventsRun();
    desktop_.show(form, forms::ShowMode::Modal);
    desktop_.unload(form);
}

}  // namespace panels
