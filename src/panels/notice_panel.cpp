#include "panels/notice_panel.h"

#include <exception>

#include "office/failure.h"
#include "panels/dialogs.h"
#include "panels/notice_page.h"

namespace panels {

int NoticePanel::show(const session::Notice& notice) {
    PendingNotice pending;
    pending.Html = noticePage(notice);
    pending.Title = notice.title;
    pending.Message = notice.message;
    pending.Buttons = notice.buttons;
    MurvaneNotice form(desktop_, host_, std::move(pending));

    const bool hadMainForm = DropTopmost(desktop_);
    try {
        ShowNoticeForm(form);
    } catch (const office::SuiteLost&) {
        throw;
    } catch (const std::exception&) {
        // A message that can't be shown as a page is shown as it can be.
        desktop_.messageBox("Murvane could not open the notice panel.", "Murvane");
    }
    if (hadMainForm) RaiseMainForm(desktop_);
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
