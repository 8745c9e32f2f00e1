#include "panels/notices.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <exception>

#include "office/failure.h"
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

using Lines = std::vector<std::string>;

std::string list(const Lines& lines, std::string_view cssClass) {
    std::string items;
    for (const std::string& line : lines) items += element("li", {}, HtmlEscape(line));
    return block("ul", cssClass, items);
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
    return BuildNoticeHtml(notice.title, TextToParagraphs(notice.message), notice.kind, {});
}

int ShowExportBlockedNotice(session::NoticePresenter& presenter, const Lines& fixes,
                            const Lines& reviews) {
    session::Notice notice;
    notice.title = "Export blocked";
    notice.kind = "error";
    notice.message = fmt::format("{}", fmt::join(fixes, "\r\n"));

    std::string body = lead("Fix these before exporting:") + list(fixes, "issue-list");
    if (!reviews.empty()) {
        body += lead("Also review:") + list(reviews, "issue-list review");
        notice.message += fmt::format("\r\n\r\n{}", fmt::join(reviews, "\r\n"));
    }
    notice.page = BuildNoticeHtml(notice.title, body, notice.kind, "Pre-export check");
    return presenter.show(notice);
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
