#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "office/failure.h"
#include "panels/form_progress.h"
#include "panels/powerpoint_dialog.h"
#include "panels/show_tool_form.h"
#include "session/powerpoint_session.h"
#include "session_doubles/test_session.h"

namespace {

using forms_double::press;
using Row = panels::PowerPointDialogLinks::Row;
using Strings = std::vector<std::string>;

constexpr const char* noPowerPoint =
    "No open PowerPoint found. \r Please open an existing presentation or create a new one";
constexpr const char* noPresentation =
    "No open PowerPoint presentation found. \r Please open an existing presentation or create a "
    "new one";
constexpr const char* numberTooHigh =
    "At least one Slide Number in the list is greater\rthan the number of slides in the "
    "PowerPoint file.\rExport can't take place ";

/// A form that stands for another one.
struct Other : forms::Form {
    Other(forms::Desktop& desktop, const char* name) : Form(desktop, name, 100, 100) {}
};

/// A deck of three slides, a list with rows, and a main form that answers from public members.
class PowerPointDialog : public testing::Test {
protected:
    PowerPointDialog() {
        desktop.page.readFile = [this](std::string_view path) {
            const auto found = test.host.written.find(path);
            return found == test.host.written.end() ? std::string() : found->second;
        };
        test.host.onEvents = [this] { desktop.letEventsRun(); };
        test.suite.excel().addWorkbook("Book1.xlsx").sheet("Sales");
        test.suite.powerPoint().addPresentation("Deck.pptx").addSlides(3);
        test.attach();
        session::AttachPowerPoint(test.session);
        session().CheckedCount = 2;
        desktop.load(main);
        session().MainFormOpen = true;
    }

    [[nodiscard]] session::OfficeSession& session() { return test.session; }

    panels::PowerPointDialogLinks links() {
        panels::PowerPointDialogLinks made;
        made.predefinedSlides = [this] { return predefined; };
        made.formatIsChosen = [this](int index) { return index == format; };
        made.rows = [this] { return rows; };
        made.countRowsForExport = [this] { return std::int16_t{7}; };
        for (std::size_t i = 0; i < made.batches.size(); ++i) {
            made.batches.at(i) = [this, i] {
                ran.push_back(static_cast<int>(i));
                atBatch();
            };
        }
        made.styles = &styles;
        made.layout = &layout;
        return made;
    }

    void choose(int index) {
        format = index;
        session().ExportFormatIndex = static_cast<std::int16_t>(index);
    }

    /// Opens the dialog; `user` gets it with its page loaded and need not close it.
    void open(const std::function<void()>& user) {
        desktop.answer("Dialog", [this, user](forms::Form& form) {
            desktop.letEventsRun();
            user();
            desktop.unload(form);
        });
        panels::ShowOptionsDialog(dialog);
    }

    [[nodiscard]] std::string page() {
        desktop.letEventsRun();
        return desktop.browser(dialog)->page();
    }
    [[nodiscard]] bool shows(const std::string& text) {
        return page().find(text) != std::string::npos;
    }
    bool click(const std::string& link) {
        desktop.letEventsRun();
        return desktop.browser(dialog)->click(link);
    }

    session_doubles::TestSession test;
    forms_double::WindowlessDesktop desktop;
    Other main{desktop, "UserformObj"};
    Other styles{desktop, "PredefinedStyles"};
    Other layout{desktop, "LayoutForm"};

    bool predefined = false;
    int format = 0;
    std::vector<Row> rows;
    std::vector<int> ran;
    std::function<void()> atBatch = [] {};

    panels::Dialog dialog{desktop, test.session, links()};
};

TEST_F(PowerPointDialog, TellsHowManyObjectsGoWhereAndAsWhat) {
    const Strings names = {"Pictures", "editable within PowerPoint", "Excel embedded",
                           "embedded linked objects"};
    for (int i = 0; i < 4; ++i) {
        choose(i);
        open([&] {
            EXPECT_TRUE(shows("<div class=\"count\">2</div>"));
            EXPECT_TRUE(shows("<div class=\"dest-name\">Deck.pptx</div>"));
            EXPECT_TRUE(shows("<div class=\"format-tag\">" + names.at(static_cast<std::size_t>(i)) +
                              "</div>"))
                << i;
            EXPECT_TRUE(shows("class=\"panel info\""));
        });
    }
}

TEST_F(PowerPointDialog, OffersToolsForPicturesAndTheShadowForEditableObjects) {
    struct Case {
        int format;
        bool hasTools;
        bool hasShadow;
    };
    for (const Case& it : {Case{0, true, false}, Case{1, false, true}, Case{2, false, false},
                           Case{3, false, false}}) {
        choose(it.format);
        open([&] {
            desktop.letEventsRun();
            const auto* browser = desktop.browser(dialog);
            EXPECT_EQ(browser->hasLink("murvane://action/style"), it.hasTools) << it.format;
            EXPECT_EQ(browser->hasLink("murvane://action/layout"), it.hasTools) << it.format;
            EXPECT_EQ(browser->hasLink("murvane://toggle/checkShadow"), it.hasShadow) << it.format;
            EXPECT_TRUE(browser->hasLink("murvane://toggle/slideTitle"));
            EXPECT_TRUE(browser->hasLink("murvane://toggle/sourceInc"));
        });
    }
}

TEST_F(PowerPointDialog, FlipsAnOptionByItsLinkAndShowsItAnew) {
    open([&] {
        EXPECT_TRUE(click("murvane://toggle/slideTitle"));
        EXPECT_TRUE(dialog.SlideTitle.isChecked());
        EXPECT_TRUE(shows("href=\"murvane://toggle/slideTitle\" class=\"opt-row checked\""));
        EXPECT_TRUE(click("murvane://toggle/slideTitle"));
        EXPECT_FALSE(dialog.SlideTitle.isChecked());
        EXPECT_FALSE(shows("opt-row checked"));
        dialog.ToggleOption("SOURCEINC");
        EXPECT_TRUE(dialog.SourceInc.isChecked());
        dialog.ToggleOption("other");
        EXPECT_FALSE(dialog.wbStatus_BeforeNavigate2("file:///a.html"));
    });
}

TEST_F(PowerPointDialog, KeepsTheTitlesOfSlidesThatExist) {
    predefined = true;
    open([&] {
        desktop.letEventsRun();
        EXPECT_FALSE(desktop.browser(dialog)->hasLink("murvane://toggle/slideTitle"));
        EXPECT_TRUE(shows("<div class=\"opt-row disabled\">"));
        dialog.ToggleOption("slideTitle");
        EXPECT_FALSE(dialog.SlideTitle.isChecked());
        EXPECT_FALSE(dialog.CreateBlankPPT.enabled);
    });
}

TEST_F(PowerPointDialog, OpensItsToolsAboveItself) {
    open([&] {
        for (const char* name : {"PredefinedStyles", "LayoutForm"}) {
            desktop.answer(name, [&](forms::Form& tool) {
                EXPECT_FALSE(dialog.topmost);
                forms_double::close(tool);
            });
        }
        EXPECT_TRUE(click("murvane://action/style"));
        EXPECT_TRUE(click("murvane://action/layout"));
        EXPECT_EQ(desktop.openAnswers(), 0U);
    });
}

TEST_F(PowerPointDialog, DoesNotComeUpWithoutPowerPointOrAPresentation) {
    struct Case {
        bool isRunning;
        std::string text;
    };
    for (const Case& it : {Case{false, noPowerPoint}, Case{true, noPresentation}}) {
        test.suite.quitPowerPoint();
        if (it.isRunning) test.suite.powerPoint();
        session::AttachPowerPoint(session());
        test.notices.shown.clear();
        panels::ShowOptionsDialog(dialog);
        ASSERT_EQ(test.notices.messages(), Strings{it.text});
        EXPECT_EQ(test.notices.shown.front().kind, "warning");
        EXPECT_EQ(test.notices.shown.front().title, "Murvane");
        EXPECT_FALSE(desktop.isLoaded(dialog));
        EXPECT_FALSE(session().PowerPointDialogOpen);
        EXPECT_TRUE(session().MainFormOpen);
    }
}

TEST_F(PowerPointDialog, CanOnlyBeReadWhenNothingIsChecked) {
    session().CheckedCount = 0;
    open([&] {
        EXPECT_TRUE(shows("No objects were selected for pasting"));
        EXPECT_TRUE(shows("class=\"panel warning\""));
        EXPECT_FALSE(dialog.ContinueOk.enabled);
    });
    session().CheckedCount = 2;
    open([&] { EXPECT_TRUE(dialog.ContinueOk.enabled); });
}

TEST_F(PowerPointDialog, HandsItsOptionsToTheExportOfTheChosenFormatAndEndsTheSession) {
    choose(1);
    panels::FormProgress windows(desktop, [] { return 7; });
    session::OfficeSession shown(test.suite, test.host, test.notices, windows);
    shown.ExcelApp = session().ExcelApp;
    shown.CheckedCount = 2;
    shown.ExportFormatIndex = 1;
    session::AttachPowerPoint(shown);
    panels::Dialog own(desktop, shown, links());
    atBatch = [&] {
        EXPECT_FALSE(desktop.isLoaded(own));
        EXPECT_TRUE(desktop.isLoaded(main));
        EXPECT_NE(desktop.findLoaded("Progress"), nullptr);
        EXPECT_TRUE(shown.slideTitle);
        EXPECT_FALSE(shown.sourceInc);
        EXPECT_TRUE(shown.checkShadow);
        EXPECT_EQ(shown.CheckedCount, 7);
        EXPECT_EQ(shown.SessionPresentation.get("Name").toText(), "Deck.pptx");
    };
    desktop.answer("Dialog", [&](forms::Form&) {
        own.ToggleOption("slideTitle");
        own.ToggleOption("checkShadow");
        press(own, "ContinueOk");
    });
    panels::ShowOptionsDialog(own);
    EXPECT_EQ(ran, std::vector<int>{1});
    EXPECT_TRUE(desktop.loadedForms().empty());
    EXPECT_TRUE(shown.PowerPointApp.isNothing());
    EXPECT_FALSE(shown.MainFormOpen);
    EXPECT_FALSE(shown.PowerPointDialogOpen);
}

TEST_F(PowerPointDialog, RunsTheBatchOfTheSessionsFormat) {
    for (int i = 0; i < 4; ++i) {
        test.attach();
        session().PowerPointFound = true;
        choose(i);
        open([&] { press(dialog, "ContinueOk"); });
    }
    EXPECT_EQ(ran, (std::vector<int>{0, 1, 2, 3}));
}

TEST_F(PowerPointDialog, RefusesASlideNumberBeyondTheDeck) {
    struct Case {
        std::vector<Row> rows;
        bool runs;
        int counted;
    };
    const std::vector<Case> cases = {
        {{{true, "3"}, {true, ""}, {false, "9"}}, true, 1},
        {{{true, "abc"}, {true, "2 "}}, true, 2},
        {{{true, "1"}, {true, "4"}, {true, "2"}}, false, 2},
        {{{true, "70000"}}, false, 1},
        {{}, true, 0},
    };
    predefined = true;
    for (const Case& it : cases) {
        test.attach();
        session().PowerPointFound = true;
        session().CheckedCount = 2;
        rows = it.rows;
        ran.clear();
        test.notices.shown.clear();
        open([&] {
            press(dialog, "ContinueOk");
            EXPECT_EQ(desktop.isLoaded(dialog), !it.runs);
        });
        EXPECT_EQ(ran.size(), it.runs ? 1U : 0U) << it.counted;
        EXPECT_EQ(test.notices.messages(), it.runs ? Strings{} : Strings{numberTooHigh});
        EXPECT_EQ(session().CheckedCount, it.counted);
    }
}

TEST_F(PowerPointDialog, StaysOpenWhenThePresentationHasGoneMeanwhile) {
    for (const bool toNamedSlides : {false, true}) {
        predefined = toNamedSlides;
        rows = {{true, "2"}};
        test.suite.powerPoint();
        if (test.suite.powerPoint().presentations().empty()) {
            test.suite.powerPoint().addPresentation("Deck.pptx").addSlides(3);
        }
        session::AttachPowerPoint(session());
        session().CheckedCount = 1;
        open([&] {
            auto& powerPoint = test.suite.powerPoint();
            powerPoint.closePresentation(*powerPoint.activePresentation());
            press(dialog, "ContinueOk");
            EXPECT_TRUE(desktop.isLoaded(dialog));
            EXPECT_TRUE(shows("Please open an existing presentation or create a new one"));
            EXPECT_TRUE(shows("class=\"panel warning\""));
        });
        EXPECT_TRUE(ran.empty());
    }
}

TEST_F(PowerPointDialog, LeavesAFailureOfTheBatchToItsCaller) {
    atBatch = [] { throw office::Failure(1004, "Shapes.AddPicture", "refused"); };
    desktop.answer("Dialog", [&](forms::Form&) { press(dialog, "ContinueOk"); });
    EXPECT_THROW(panels::ShowOptionsDialog(dialog), office::Failure);
    EXPECT_TRUE(session().PowerPointApp);
}

TEST_F(PowerPointDialog, GivesWayToTheMainFormWhenItIsClosed) {
    open([&] {
        EXPECT_TRUE(session().PowerPointDialogOpen);
        EXPECT_FALSE(session().MainFormOpen);
        EXPECT_TRUE(session().DefaultPlacement);
        dialog.ToggleOption("sourceInc");
        forms_double::pressEscape(dialog);
        EXPECT_FALSE(desktop.isLoaded(dialog));
    });
    EXPECT_FALSE(session().PowerPointDialogOpen);
    EXPECT_TRUE(session().MainFormOpen);
    EXPECT_TRUE(desktop.isLoaded(main));
    open([&] { EXPECT_FALSE(dialog.SourceInc.isChecked()); });
}

TEST_F(PowerPointDialog, WorksWithoutAPanel) {
    desktop.hasBrowsers = false;
    test.host.temporaryFolderIsFull = true;
    desktop.answer("Dialog", [&](forms::Form&) { forms_double::pressEnter(dialog); });
    panels::ShowOptionsDialog(dialog);
    EXPECT_EQ(ran, std::vector<int>{0});
}

}  // namespace
