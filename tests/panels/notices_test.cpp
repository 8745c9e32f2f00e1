#include <fmt/format.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "panels/notices.h"
#include "panels/style_sheets.h"
#include "session_doubles/recording_notices.h"
#include "support/approved.h"

namespace {

using session_doubles::RecordingNotices;
using support::expectApproved;

void expectNotice(const std::string& page, const std::string& name) {
    expectApproved(support::withoutStyle(page, panels::NoticeCss()), name);
}

TEST(NoticePage, IsACardWithTheMessageAsParagraphs) {
    session::Notice notice;
    notice.message = "The export has ended.\r\r5 of 6 items <placed>.";
    notice.title = "Murvane & you";
    notice.kind = "done";
    expectNotice(panels::noticePage(notice), "notice_success.html");
}

TEST(NoticePage, HasTheBadgeOfItsKindUnlessOneIsGivenOrThePageIsTheCallers) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"info", "", "Murvane notice"},
        {" Warn ", "", "Please review and continue"},
        {"fatal", "", "Murvane notice"},
        {"critical", "", "Action could not be completed"},
        {"success", "", "Completed successfully"},
        {"error", "Check <1>", "Check &lt;1&gt;"},
    };
    for (const auto& [kind, given, badge] : cases) {
        const std::string page = panels::BuildNoticeHtml("T", "", kind, given);
        EXPECT_NE(page.find(fmt::format("<div class=\"badge\">{}</div>", badge)), std::string::npos)
            << kind;
    }
    session::Notice notice;
    notice.page = "<p>this</p>";
    EXPECT_EQ(panels::noticePage(notice), "<p>this</p>");
}

TEST(BlockedNotice, ListsWhatToFixAndWhatToReview) {
    RecordingNotices notices;
    panels::ShowExportBlockedNotice(notices, {"Fix \"A\"", "Fix B"}, {"Look at <C>"});
    ASSERT_EQ(notices.shown.size(), 1U);
    const session::Notice notice = notices.shown.front();
    EXPECT_EQ(notice.title, "Export blocked");
    EXPECT_EQ(notice.buttons, session::buttons::okOnly);
    EXPECT_EQ(notice.message, "Fix \"A\"\r\nFix B\r\n\r\nLook at <C>");
    expectNotice(notice.page, "export_blocked.html");
    panels::ShowExportBlockedNotice(notices, {"Fix A"}, {});
    EXPECT_EQ(notices.shown.back().page.find("Also review:"), std::string::npos);
    EXPECT_EQ(notices.shown.back().message, "Fix A");
}

}  // namespace
