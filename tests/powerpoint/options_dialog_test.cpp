#include "export_stage.h"
#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "panels/dialogs.h"
#include "powerpoint/options_dialog.h"
#include "session/powerpoint_session.h"

namespace {

using catalogue::ExportFormat;
using forms_double::press;
using stage::chartRow;
using Strings = std::vector<std::string>;

constexpr const char* noPowerPoint =
    "No open PowerPoint found. \r Please open an existing presentation or create a new one";
constexpr const char* noPresentation =
    "No open PowerPoint presentation found. \r Please open an existing presentation or create a "
    "new one";
constexpr const char* numberTooHigh =
    "At least one Slide Number in the list is greater\rthan the number of slides in the "
    "PowerPoint file.\rExport can't take place ";

/// A deck of three slides, two checked charts, and a main form beneath the dialog.
class PowerPointDialog : public stage::ExportStage {
protected:
    PowerPointDialog() {
        desktop.page.files = &host.written;
        host.onEvents = [this] { desktop.letEventsRun(); };
        book.sheet("Sales").chart("Chart 1").chart("Chart 2");
        deck.addSlides(3);
        add(chartRow("Chart 1", "Sales", "1"));
        add(chartRow("Chart 2", "Sales", "2"));
        session::AttachPowerPoint(session);
        desktop.load(main);
    }

    /// Opens the dialog; `user` gets it with its page loaded and need not close it.
    void open(const std::function<void(powerpoint::Dialog&)>& user) {
        powerpoint::Dialog dialog(desktop, session, list, choices);
        desktop.answer("Dialog", [&](forms::Form& form) {
            desktop.letEventsRun();
            user(dialog);
            desktop.unload(form);
        });
        panels::ShowToolForm(dialog);
    }

    [[nodiscard]] bool shows(forms::Form& dialog, const std::string& text) {
        desktop.letEventsRun();
        return desktop.browser(dialog)->page().find(text) != std::string::npos;
    }
    bool click(forms::Form& dialog, const std::string& link) {
        desktop.letEventsRun();
        return desktop.browser(dialog)->click(link);
    }
    /// Back to the applications, after an export has let go of them.
    void attachAgain() {
        session.ExcelApp = suite.attach("Excel.Application");
        session.ActiveBook = book.handle();
        session::AttachPowerPoint(session);
    }

    forms_double::WindowlessDesktop desktop;
    forms::Form main{desktop, "UserformObj", 100, 100};
};

TEST_F(PowerPointDialog, TellsHowManyObjectsGoWhereAndOffersWhatTheirFormatHas) {
    struct Case {
        ExportFormat format;
        const char* name;
        bool hasTools;
        bool hasShadow;
    };
    add(chartRow("Chart 3", "A sheet that has gone"));
    for (const Case& it : {Case{ExportFormat::Pictures, "Pictures", true, false},
                           Case{ExportFormat::Editable, "editable within PowerPoint", false, true},
                           Case{ExportFormat::Embedded, "Excel embedded", false, false},
                           Case{ExportFormat::Linked, "embedded linked objects", false, false}}) {
        choices.format = it.format;
        open([&](powerpoint::Dialog& dialog) {
            for (const std::string& text :
                 {std::string("<div class=\"count\">2</div>"),
                  std::string("<div class=\"dest-name\">Deck.pptx</div>"),
                  "<div class=\"format-tag\">" + std::string(it.name) + "</div>"}) {
                EXPECT_TRUE(shows(dialog, text)) << text;
            }
            const std::string& said = dialog.ContinueOk.accessibleDescription;
            EXPECT_TRUE(said.starts_with("2 object(s) will be pasted to Deck.pptx as ")) << said;
            const auto* browser = desktop.browser(dialog);
            EXPECT_EQ(browser->hasLink("murvane://action/style"), it.hasTools) << it.name;
            EXPECT_EQ(browser->hasLink("murvane://action/layout"), it.hasTools) << it.name;
            EXPECT_EQ(browser->hasLink("murvane://toggle/checkShadow"), it.hasShadow) << it.name;
        });
    }
}

TEST_F(PowerPointDialog, FlipsAnOptionByItsLinkAndShowsItAnew) {
    open([&](powerpoint::Dialog& dialog) {
        EXPECT_TRUE(click(dialog, "murvane://toggle/slideTitle"));
        EXPECT_TRUE(dialog.SlideTitle.isChecked());
        EXPECT_TRUE(
            shows(dialog, "href=\"murvane://toggle/slideTitle\" class=\"opt-row checked\""));
        EXPECT_TRUE(click(dialog, "murvane://toggle/slideTitle"));
        EXPECT_FALSE(dialog.SlideTitle.isChecked());
        EXPECT_FALSE(shows(dialog, "opt-row checked"));
        dialog.ToggleOption("SOURCEINC");
        EXPECT_TRUE(dialog.SourceInc.isChecked());
        dialog.ToggleOption("other");
        EXPECT_FALSE(dialog.CheckShadow.isChecked());
        dialog.ToggleOption("checkShadow");
        EXPECT_TRUE(dialog.CheckShadow.isChecked());
        EXPECT_FALSE(dialog.wbStatus_BeforeNavigate2("file:///a.html"));
    });
}

TEST_F(PowerPointDialog, KeepsTheTitlesOfSlidesThatExistAndGivesWayToTheMainForm) {
    choices.predefinedSlides = true;
    open([&](powerpoint::Dialog& dialog) {
        EXPECT_FALSE(desktop.browser(dialog)->hasLink("murvane://toggle/slideTitle"));
        dialog.ToggleOption("slideTitle");
        EXPECT_FALSE(dialog.SlideTitle.isChecked());
        forms_double::pressEscape(dialog);
        EXPECT_FALSE(desktop.isLoaded(dialog));
    });
    EXPECT_TRUE(desktop.isLoaded(main) && main.takesInput);
}

TEST_F(PowerPointDialog, OpensItsToolsAboveItself) {
    open([&](powerpoint::Dialog& dialog) {
        for (const char* name : {"PredefinedStyles", "LayoutForm"}) {
            desktop.answer(name, [&](forms::Form& tool) {
                EXPECT_FALSE(dialog.topmost);
                forms_double::close(tool);
            });
        }
        EXPECT_TRUE(click(dialog, "murvane://action/style"));
        EXPECT_TRUE(click(dialog, "murvane://action/layout"));
        EXPECT_EQ(desktop.openAnswers(), 0U);
    });
}

TEST_F(PowerPointDialog, DoesNotComeUpWithoutPowerPointOrAPresentation) {
    suite.quitPowerPoint();
    powerpoint::StartPowerPointExport(session, desktop, list, choices);
    suite.powerPoint();
    powerpoint::StartPowerPointExport(session, desktop, list, choices);
    EXPECT_EQ(notices.messages(), (Strings{noPowerPoint, noPresentation}));
    EXPECT_EQ(desktop.loadedForms().size(), 1U);
}

TEST_F(PowerPointDialog, CanOnlyBeReadWhenNothingIsChecked) {
    for (catalogue::ExportItem& row : list.rows) row.checked = false;
    open([&](powerpoint::Dialog& dialog) {
        EXPECT_TRUE(shows(dialog, "No objects were selected for pasting"));
        EXPECT_TRUE(shows(dialog, "class=\"panel warning\""));
        EXPECT_FALSE(dialog.ContinueOk.enabled);
    });
}

TEST_F(PowerPointDialog, HandsItsOptionsToTheExportAndEndsTheSession) {
    list.rows[0].caption = "North";
    desktop.answer("Dialog", [&](forms::Form& form) {
        auto& dialog = dynamic_cast<powerpoint::Dialog&>(form);
        dialog.ToggleOption("slideTitle");
        dialog.ToggleOption("sourceInc");
        press(dialog, "ContinueOk");
    });
    powerpoint::StartPowerPointExport(session, desktop, list, choices);
    ASSERT_EQ(deck.slideCount(), 5);
    EXPECT_EQ(deck.slide(4).title().text(), "North");
    EXPECT_EQ(deck.slide(4).shapes().back().text(), "/documents/Book1.xlsx");
    EXPECT_EQ(picturesOn(5), Strings{"Chart 2"});
    EXPECT_TRUE(desktop.loadedForms().empty());
    EXPECT_FALSE(main.takesInput) << "the rows are being read";
    EXPECT_TRUE(session.PowerPointApp.isNothing());
    EXPECT_FALSE(session.ExcelApp || session.SessionPresentation);
    EXPECT_EQ(progress.calls.front(), "item 0 of 2");
    EXPECT_EQ(suite.log().texts("DisplayAlerts"),
              (Strings{"Application.DisplayAlerts", "Application.DisplayAlerts = False",
                       "Application.DisplayAlerts = True"}));
}

TEST_F(PowerPointDialog, GoesOnOverAChartThatHasGoneButNotWithoutItsPresentation) {
    list.rows[0].name = "Chart 9";
    open([](powerpoint::Dialog& dialog) { press(dialog, "ContinueOk"); });
    ASSERT_EQ(deck.slideCount(), 5);
    EXPECT_TRUE(picturesOn(4).empty());
    EXPECT_EQ(picturesOn(5), Strings{"Chart 2"});
    EXPECT_EQ(notices.messages(),
              Strings{"1 item(s) could not be exported:\r"
                      "Chart 9: Chart 'Chart 9' was not found on sheet 'Sales'."});

    // A picture that fails late is told with the others, and the program goes on. An Excel may have
    // a number of its own for a chart that has gone.
    attachAgain();
    notices.shown.clear();
    open([&](powerpoint::Dialog& dialog) {
        suite.failures().fail("ChartObjects.Item");
        constexpr int putBack = 2;
        suite.failures().failAfter("Shapes.AddPicture", "DocumentWindow.ViewType", putBack);
        EXPECT_NO_THROW(press(dialog, "ContinueOk"));
    });
    ASSERT_EQ(notices.shown.size(), 1U);
    EXPECT_EQ(notices.messages()[0].find("2 item(s) could not be exported:\rChart 9: "
                                         "Chart 'Chart 9' was not found on sheet 'Sales'."),
              0U);
    EXPECT_NE(notices.messages()[0].find("\rA picture: "), std::string::npos);

    attachAgain();
    notices.shown.clear();
    open([&](powerpoint::Dialog& dialog) {
        host.onEvents = [this] {
            if (progress.calls.back() == "item 2 of 2") deck.close();
        };
        try {
            press(dialog, "ContinueOk");
            ADD_FAILURE() << "no failure";
        } catch (const office::Failure& failure) {
            EXPECT_EQ(failure.description(),
                      "The presentation has been closed. 0 of 2 items were exported.");
        }
    });
    ASSERT_EQ(notices.shown.size(), 1U) << "what failed until then is told all the same";
    EXPECT_EQ(notices.messages()[0].find("1 item(s) could not be exported:\rChart 9: "), 0U);
}

TEST_F(PowerPointDialog, KeepsTheStyleThatWasChosenAnEarlierTimeButNotTheLayout) {
    storePlacement(0.5, 0.25, 0.1);
    open([&](powerpoint::Dialog& dialog) {
        desktop.answer("PredefinedStyles", [](forms::Form& form) {
            forms_double::choose(form, "OptionStyle",
                                 static_cast<int>(session::PictureLook::Shadow));
            press(form, "Styles");
        });
        desktop.answer("LayoutForm", [](forms::Form& form) { press(form, "CloseLayout"); });
        dialog.RunPanelAction("style");
        dialog.RunPanelAction("layout");
    });
    open([](powerpoint::Dialog& dialog) { press(dialog, "ContinueOk"); });
    ASSERT_EQ(deck.slideCount(), 5);
    EXPECT_TRUE(deck.slide(5).shapes().back().hasShadow());
    EXPECT_NE(deck.slide(5).shapes().back().box().left, 96);
}

TEST_F(PowerPointDialog, ExportsToThePresentationThatItNamesWhateverTheUserLooksAtMeanwhile) {
    auto& other = suite.powerPoint().addPresentation("Other.pptx").addSlides(1);
    deck.activate();
    storePlacement(0.5, 0.25, 0.1);
    open([&](powerpoint::Dialog& dialog) {
        desktop.answer("PredefinedStyles", [](forms::Form& form) {
            forms_double::choose(form, "OptionStyle",
                                 static_cast<int>(session::PictureLook::Shadow));
            press(form, "Styles");
        });
        desktop.answer("LayoutForm", [](forms::Form& form) { press(form, "CloseLayout"); });
        dialog.RunPanelAction("style");
        dialog.RunPanelAction("layout");
        for (const char* option : {"slideTitle", "sourceInc"}) dialog.ToggleOption(option);
        other.activate();
        suite.excel().addWorkbook("Other.xlsx").sheet("Sheet1");
        press(dialog, "ContinueOk");
    });
    EXPECT_EQ(other.slideCount(), 1);
    EXPECT_EQ(other.slide(1).shapes().size(), 1U);
    ASSERT_EQ(deck.slideCount(), 5);
    EXPECT_EQ(deck.slide(5).shapes().size(), 3U);
    EXPECT_DOUBLE_EQ(deck.slide(5).shapes()[1].box().left, 96) << "as the list's workbook says";
    EXPECT_TRUE(deck.slide(5).shapes()[1].hasShadow());
    EXPECT_EQ(suite.raisedWindow(), suite.findWindow("", "Deck.pptx - PowerPoint"));
}

TEST_F(PowerPointDialog, RefusesASlideNumberBeyondTheDeck) {
    const struct {
        const char* number;
        bool runs;
    } cases[] = {{"3", true},  {"3.4", true},  {"2 ", true},
                 {"4", false}, {"3.6", false}, {"70000", false}};
    choices.predefinedSlides = true;
    for (const auto& each : cases) {
        attachAgain();
        notices.shown.clear();
        progress.calls.clear();
        list.rows[0].slideNumber = each.number;
        open([&](powerpoint::Dialog& dialog) {
            press(dialog, "ContinueOk");
            EXPECT_EQ(desktop.isLoaded(dialog), !each.runs) << each.number;
        });
        EXPECT_EQ(notices.messages(), each.runs ? Strings{} : Strings{numberTooHigh});
        EXPECT_EQ(progress.calls.size(), each.runs ? 5U : 0U) << each.number;
    }
}

TEST_F(PowerPointDialog, StaysOpenOverAPresentationThatIsOpenForReadingOnly) {
    open([&](powerpoint::Dialog& dialog) {
        deck.readOnly = true;
        press(dialog, "ContinueOk");
        ASSERT_EQ(notices.messages().size(), 1U);
        EXPECT_EQ(notices.messages()[0].find("The presentation is opened for reading only."), 0U);
        EXPECT_EQ(deck.slideCount(), 3);
        deck.readOnly = false;
        press(dialog, "ContinueOk");
        EXPECT_EQ(deck.slideCount(), 5);
        EXPECT_FALSE(desktop.isLoaded(dialog));
    });
}

TEST_F(PowerPointDialog, StaysOpenWhenThePresentationHasGoneAndNamesAnotherOneFirst) {
    open([&](powerpoint::Dialog& dialog) {
        deck.close();
        press(dialog, "ContinueOk");
        EXPECT_TRUE(shows(dialog, "Please open an existing presentation or create a new one"));
        EXPECT_TRUE(shows(dialog, "class=\"panel warning\""));
        // What the user has started since is found too.
        suite.quitPowerPoint();
        auto& other = suite.powerPoint().addPresentation("Other.pptx");
        press(dialog, "ContinueOk");
        EXPECT_TRUE(shows(dialog, "Other.pptx"));
        EXPECT_EQ(other.slideCount(), 0);
        press(dialog, "ContinueOk");
        EXPECT_EQ(other.slideCount(), 2);
        EXPECT_FALSE(desktop.isLoaded(dialog));
    });
}

TEST_F(PowerPointDialog, WorksWithoutAPanel) {
    desktop.hasBrowsers = false;
    host.temporaryFolderIsFull = true;
    desktop.answer("Dialog", [&](forms::Form& form) { forms_double::pressEnter(form); });
    powerpoint::StartPowerPointExport(session, desktop, list, choices);
    EXPECT_EQ(deck.slideCount(), 5);
}

}  // namespace
