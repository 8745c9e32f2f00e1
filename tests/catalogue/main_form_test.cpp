#include <gtest/gtest.h>

#include <chrono>
#include <iterator>
#include <string>
#include <vector>

#include "catalogue/userform_obj.h"
#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "office/failure.h"
#include "session/store_sheet.h"
#include "session_doubles/test_session.h"

namespace {

using namespace std::chrono_literals;
using catalogue::MainFormHooks;
using catalogue::UserformObj;
using forms::CheckBox;
using session_doubles::TestSession;

class TheMainForm : public testing::Test {
protected:
    TestSession test;
    forms_double::WindowlessDesktop desktop;
    catalogue::ExportChoices choices;
    MainFormHooks hooks;
    std::vector<std::unique_ptr<UserformObj>> opened;

    TheMainForm() {
        auto& book = test.suite.excel().addWorkbook("Book1.xlsx");
        auto& sales = book.sheet("Sales");
        sales.chart("Chart 1");
        sales.chart("Chart 2");
        sales.value("A1", 1.0).define("Parts", "A1:A5,C1:C5").define("Whole", "A1:B2");
        test.suite.powerPoint().addPresentation("Deck.pptx").addSlides(2);
        test.attach();
    }

    /// A new main form, which stays as an object when it is closed.
    UserformObj& open() {
        opened.push_back(std::make_unique<UserformObj>(desktop, test.session, hooks));
        desktop.show(*opened.back(), forms::ShowMode::Modeless);
        return *opened.back();
    }
    void closeAndAttach(UserformObj& form) {
        forms_double::close(form);
        test.attach();
    }
    /// Leaves a caption and a slide number of the first row in the workbook.
    void keepCaption() {
        UserformObj& form = open();
        form.SlideTitle.setText("Kept");
        form.TextBox10.setText("2");
        closeAndAttach(form);
    }
    [[nodiscard]] static std::vector<std::string> orders(UserformObj& form) {
        std::vector<std::string> all;
        for (const auto& row : form.list().rows) all.push_back(row.name + " " + row.order);
        return all;
    }
};

TEST_F(TheMainForm, leadsToTheHelpThatFitsTheControlOrElseWhatIsChosen) {
    std::vector<std::string> pages;
    hooks.ShowHelp = [&](std::string_view file) { pages.emplace_back(file); };
    hooks.ShowContextHelp = [&](const forms::Control& control) { pages.push_back(control.name()); };
    UserformObj& form = open();
    form.cmdPowerWhere.press();
    const auto helpAt = [&](forms::Control* focus) {
        form.focus = focus;
        form.Form_Help();
    };
    helpAt(&form.SlideTitle);
    helpAt(&form.ActiveWbk);
    form.OptionPredefSlides.setValue(true);
    helpAt(&form.ActiveWbk);
    form.Option1[4].setValue(true);
    helpAt(nullptr);
    form.list().rows.clear();
    helpAt(&form.ActiveWbk);
    form.Option1[0].setValue(true);
    helpAt(&form.listCharts);
    EXPECT_EQ(pages,
              (std::vector<std::string>{"cmdPowerWhere", "SlideTitle", "help_powerpoint.html",
                                        "help_predefined_slides.html", "help_items_table.html",
                                        "help_no_items.html", "help_no_items.html"}));
}

TEST_F(TheMainForm, comesUpFilledOnPowerPointPicturesAndNewSlides) {
    UserformObj& form = open();
    EXPECT_EQ(orders(form),
              (std::vector<std::string>{"Chart 1 1", "Chart 2 2", "Parts ", "Whole 3"}));
    EXPECT_EQ(form.NbCharts.caption, "3 of 4 items selected");
    EXPECT_EQ(form.ActiveWbk.text(), "Active Workbook:Book1.xlsx ");
    EXPECT_EQ(form.DestinationFile.caption, "Active presentation: Deck.pptx");
    EXPECT_EQ(form.Check1.value(), CheckBox::State::Checked)
        << "the red row was counted before it was unchecked";
    EXPECT_FALSE(form.TitlesFrame.visible);
    EXPECT_FALSE(form.choices().predefinedSlides);
    EXPECT_FALSE(form.Option1[3].visible) << "PDF is not offered";
}

TEST_F(TheMainForm, changesWithTheDestination) {
    UserformObj& form = open();
    forms_double::choose(form, "Option1", 2);
    EXPECT_EQ(form.DestinationFile.caption, "To a new HTML file ");
    EXPECT_EQ(form.OptionNewSlides.caption, "Paste to new created pages");
    EXPECT_TRUE(form.OptionFormat[0].enabled);
    EXPECT_FALSE(form.OptionFormat[2].enabled);
    EXPECT_FALSE(form.OptionPredefSlides.enabled);
    EXPECT_TRUE(form.TitlesFrame.visible) << "the caption panel comes up with every change";
    forms_double::choose(form, "Option1", 0);
    EXPECT_TRUE(form.OptionFormat[2].enabled && form.OptionPredefSlides.enabled);
    EXPECT_EQ(form.OptionNewSlides.caption, "Paste to new created slides");
    closeAndAttach(form);
    test.suite.quitPowerPoint();
    EXPECT_EQ(open().DestinationFile.caption, "PowerPoint is not running");
}

TEST_F(TheMainForm, opensAndClosesThePanelOfSlideNumbersByTheClock) {
    UserformObj& form = open();
    const forms::Twips nameWidth = form.listCharts.columns[0].width;
    forms_double::choose(form, "OptionPredefSlides");
    desktop.advance(20ms);
    EXPECT_GT(form.SlideNb.place.width, 0);
    EXPECT_LT(form.SlideNb.place.width, 3135);
    desktop.advance(1s);
    EXPECT_EQ(form.SlideNb.place.width, 3135);
    EXPECT_EQ(form.listCharts.columns[2].width, 720);
    EXPECT_TRUE(form.list().rows[0].isMuted) << "no slide number yet";
    forms_double::choose(form, "OptionNewSlides");
    EXPECT_EQ(form.listCharts.columns[2].width, 1);
    EXPECT_EQ(form.listCharts.columns[0].width, nameWidth);
    EXPECT_FALSE(form.list().rows[0].isMuted);
    desktop.advance(1s);
    EXPECT_EQ(form.SlideNb.place.width, 0);
    for (const auto* timer : form.timers())
        EXPECT_FALSE(timer->enabled) << "an idle form has no timers";
}

/// The last letters of the checked rows from the top, a dot for each other one.
std::string checks(UserformObj& form) {
    std::string all;
    for (const auto& row : form.list().rows) all += row.checked ? row.name.back() : '.';
    return all;
}

TEST_F(TheMainForm, takesCaptionsOneAfterTheOtherWithoutTheMouse) {
    UserformObj& form = open();
    forms_double::press(form, "AddCaption");
    EXPECT_EQ(form.focus, &form.SlideTitle);
    const int selections = form.SlideTitle.selections();
    for (const char* caption : {"One", "Two"}) {
        form.SlideTitle.setText(caption);
        form.SlideTitle.onStep(1);
    }
    EXPECT_EQ(form.list().rows[0].caption + form.list().rows[1].caption, "OneTwo");
    EXPECT_EQ(form.list().selected, 2);
    EXPECT_EQ(form.SlideTitle.selections(), selections + 2) << "what is typed next is a new text";
    for (int i = 0; i < 3; ++i) form.TextBox10.onStep(1);
    EXPECT_EQ(form.list().selected, 3);
    for (int i = 0; i < 5; ++i) form.TextBox10.onStep(-1);
    EXPECT_EQ(form.list().selected, 0);
    for (const forms::Control* control : form.controls()) {
        const auto* button = dynamic_cast<const forms::CommandButton*>(control);
        EXPECT_FALSE(button != nullptr && button->isDefault) << "Enter belongs to the boxes";
    }
    forms_double::press(form, "AddCaption");
    EXPECT_EQ(form.focus, &form.listCharts);
}

TEST_F(TheMainForm, checksMovesAndClearsAllRowsThatAreChosen) {
    using Pick = forms::ListView::Pick;
    UserformObj& form = open();
    form.SlideTitle.setText("Kept");
    EXPECT_EQ(checks(form), "12.e");
    form.listCharts.click(1);
    form.SlideTitle.setText("Wiped out");
    form.listCharts.click(3, Pick::Through);
    form.listCharts.check(3, false);
    EXPECT_EQ(checks(form), "1...");
    form.listCharts.check(1, true);
    EXPECT_EQ(checks(form), "12.e") << "a range of several areas is left out";
    form.listCharts.onRowsMove(0);
    EXPECT_EQ(orders(form),
              (std::vector<std::string>{"Chart 2 1", "Parts ", "Whole 2", "Chart 1 3"}));
    form.listCharts.onRowsStep(1);
    EXPECT_EQ(form.list().rows[0].name, "Chart 1");
    form.listCharts.onRowsClear();
    EXPECT_EQ(form.list().rows[0].caption, "Kept");
    EXPECT_EQ(form.list().rows[1].caption, "");
}

TEST_F(TheMainForm, givesTheRoomThatItGainsToTheListAndThePreview) {
    UserformObj& form = open();
    desktop.advance(1s);
    const auto placesAfter = [&](forms::Twips wider, forms::Twips higher) {
        form.place.width += wider;
        form.place.height += higher;
        form.Form_Resize();
        std::vector<forms::Place> places;
        for (const auto* control : form.controls()) places.push_back(control->place);
        return places;
    };
    const auto natural = placesAfter(0, 0);
    const auto list = form.listCharts.place;
    const auto preview = form.imgChart.place;
    const auto caption = form.listCharts.columns[4].width;
    placesAfter(3000, 1500);
    EXPECT_EQ(form.listCharts.place.width + form.imgChart.place.width,
              list.width + preview.width + 3000);
    EXPECT_EQ(form.listCharts.place.height, list.height + 1500);
    EXPECT_EQ(form.imgChart.place.height, preview.height + 1500);
    EXPECT_GT(form.listCharts.columns[4].width, caption);
    // What stood apart stands apart, within the form.
    const forms::Control* rows[] = {&form.Frame4, &form.Frame1, &form.Frame3, &form.PasteIT};
    for (std::size_t i = 0; i + 1 < std::size(rows); ++i) {
        EXPECT_LT(rows[i]->place.top + rows[i]->place.height, rows[i + 1]->place.top) << i;
    }
    EXPECT_LE(form.PasteIT.place.left + form.PasteIT.place.width, form.place.width);
    EXPECT_LE(form.listCharts.place.left + form.listCharts.place.width, form.imgChart.place.left);
    EXPECT_EQ(placesAfter(-3000, -1500), natural);
}

TEST_F(TheMainForm, givesWayToAScreenThatIsLowerThanIt) {
    desktop.size.height = 576 * forms::twipsPerPixel;
    UserformObj& form = open();
    EXPECT_EQ(form.place.height, desktop.size.height);
    EXPECT_LT(form.PasteIT.place.top + form.PasteIT.place.height, form.place.height);
    EXPECT_GT(form.listCharts.place.height, 50 * forms::twipsPerPixel);
}

TEST_F(TheMainForm, offersADestinationByThePictureInItsShape) {
    UserformObj& form = open();
    const int destinations[] = {0, 1, 2, 4};
    for (std::size_t i = 0; i < form.Image1.size(); ++i) {
        form.Image1.at(i).onClick();
        const auto chosen = static_cast<std::size_t>(destinations[i]);
        EXPECT_TRUE(form.Option1.at(chosen).value() && form.Shape1.at(chosen).visible);
    }
}

TEST_F(TheMainForm, endsWithItsLoadingForm) {
    test.progress.isLoadingCancelled = true;
    UserformObj& form = open();
    EXPECT_FALSE(desktop.isLoaded(form));
    EXPECT_TRUE(desktop.record.empty() || desktop.record.back() != "show UserformObj modeless");
}

TEST_F(TheMainForm, numbersTheCheckedRowsFromTheTopWhateverMovesThem) {
    UserformObj& form = open();
    form.listCharts.check(0, false);
    EXPECT_EQ(orders(form),
              (std::vector<std::string>{"Chart 1 ", "Chart 2 1", "Parts ", "Whole 2"}));
    form.listCharts.click(3);
    forms_double::press(form, "Up");
    forms_double::press(form, "Up");
    EXPECT_EQ(orders(form),
              (std::vector<std::string>{"Chart 1 ", "Whole 1", "Chart 2 2", "Parts "}));
    form.Check1.setValue(CheckBox::State::Unchecked);
    form.Check1.setValue(CheckBox::State::Checked);
    EXPECT_EQ(orders(form),
              (std::vector<std::string>{"Chart 1 1", "Whole 2", "Chart 2 3", "Parts "}));
}

TEST_F(TheMainForm, refusesARangeOfSeveralAreas) {
    UserformObj& form = open();
    form.listCharts.check(2, true);
    EXPECT_FALSE(form.list().rows[2].checked);
    form.listCharts.click(2);
    ASSERT_EQ(desktop.messages.size(), 2U);
    EXPECT_EQ(desktop.messages[0].text, "You can't check a multiple range");
    EXPECT_EQ(desktop.messages[1].text,
              "Murvane does not support multiple selection. This item could not be pasted");
}

TEST_F(TheMainForm, writesCaptionAndSlideNumberThroughToTheSelectedRowAndShowsThemAgain) {
    UserformObj& form = open();
    form.listCharts.click(1);
    form.SlideTitle.setText("Sales\tin May");
    form.TextBox10.setText("12a");
    EXPECT_EQ(form.list().rows[1].caption, "Sales\tin May");
    EXPECT_EQ(form.list().rows[1].slideNumber, "12");
    form.listCharts.click(2);
    EXPECT_EQ(form.SlideTitle.text(), "") << "the row that is refused has texts of its own too";
    form.listCharts.click(1);
    EXPECT_EQ(form.SlideTitle.text() + form.TextBox10.text(), "Sales\tin May12");
    form.TextBox10.setText("-");
    EXPECT_EQ(form.TextBox10.text(), "") << "a lone sign is wiped";
    form.list().selected = -1;
    form.SlideTitle.setText("nobody's");
    closeAndAttach(form);
    keepCaption();
    UserformObj& again = open();
    EXPECT_EQ(again.SlideTitle.text() + again.TextBox10.text(), "Kept2") << "from the start on";
    EXPECT_EQ(again.focus, &again.listCharts);
}

TEST_F(TheMainForm, previewsTheRowThatIsClicked) {
    UserformObj& form = open();
    desktop.advance(1s);
    const int before = form.imgChart.version();
    form.listCharts.click(1);
    EXPECT_GT(form.imgChart.version(), before);
    EXPECT_FALSE(form.imgChart.picture().isEmpty());
    form.list().rows[1].name = "Gone";
    form.listCharts.click(1);
    EXPECT_TRUE(form.imgChart.picture().isEmpty()) << "an object that has gone leaves it empty";
}

TEST_F(TheMainForm, putsOneItemOnItsSlideAndTakesNoInputMeanwhile) {
    bool tookInput = true;
    bool succeeds = false;
    std::vector<std::string> inserted;
    hooks.InsertOneItem = [&](const catalogue::ExportItem& row, const auto&) {
        inserted.push_back(row.name);
        tookInput = desktop.findLoaded("UserformObj")->takesInput;
        return succeeds;
    };
    UserformObj& form = open();
    form.listCharts.click(1);
    form.imgChart.onDblClick();
    EXPECT_EQ(inserted, std::vector<std::string>{"Chart 2"});
    EXPECT_TRUE(form.takesInput && !tookInput);
    EXPECT_TRUE(desktop.messages.empty()) << "nothing was done";
    succeeds = true;
    form.imgChart.onDblClick();
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].text, "Done!");
}

TEST_F(TheMainForm, startsAnExportOnlyAfterTheReviewAndKeepsItsListAheadOfWhatMayEndTheProgram) {
    std::vector<std::string> stored;
    const auto storedCaption = [&] {
        return test.sheet(session::store::sheetName).get("Range", "T1").get("Value").toText();
    };
    hooks.StartExport = [&](auto&, const auto& chosen) {
        stored.push_back(storedCaption());
        choices = chosen;
    };
    hooks.InsertOneItem = [&](const auto&, const auto&) {
        stored.push_back(storedCaption());
        return false;
    };
    UserformObj& form = open();
    form.SlideTitle.setText("First");
    forms_double::press(form, "PasteIT");
    form.SlideTitle.setText("Second");
    form.imgChart.onDblClick();
    form.OptionFormat[2].setValue(true);
    form.OptionPredefSlides.setValue(true);
    for (auto& row : form.list().rows) row.slideNumber = "1";
    forms_double::press(form, "PasteIT");
    EXPECT_EQ(choices.format, catalogue::ExportFormat::Embedded);
    EXPECT_TRUE(choices.predefinedSlides);
    form.Check1.setValue(CheckBox::State::Unchecked);
    forms_double::press(form, "PasteIT");
    EXPECT_EQ(stored, (std::vector<std::string>{"First", "Second", "Second"}));
    ASSERT_FALSE(test.notices.shown.empty());
    EXPECT_EQ(test.notices.shown.back().title, "Export blocked");
    form.Option1[3].setValue(true);
    form.Check1.setValue(CheckBox::State::Checked);
    forms_double::press(form, "PasteIT");
    EXPECT_EQ(choices.destination, catalogue::Destination::Pdf);
}

TEST_F(TheMainForm, leavesTheStoredListAloneIfItsOwnNeverCameUp) {
    keepCaption();
    test.suite.failures().fail("Range.Value");
    UserformObj& broken = open();
    EXPECT_TRUE(broken.list().rows.empty());
    EXPECT_NE(broken.listCharts.placeholder.find("could not be read"), std::string::npos);
    closeAndAttach(broken);
    UserformObj& again = open();
    ASSERT_EQ(again.list().rows.size(), 4U);
    EXPECT_EQ(again.list().rows[0].caption, "Kept");
}

TEST_F(TheMainForm, keepsWhatWasChangedWhenTheUserLeavesItAndSaysSoWhereItCannot) {
    UserformObj& form = open();
    test.suite.log().clear();
    form.Form_Left();
    EXPECT_EQ(test.suite.log().count(), 0U) << "nothing was changed";
    form.SlideTitle.setText("Kept");
    form.Form_Left();
    const auto caption = test.sheet(session::store::sheetName).get("Range", "T1").get("Value");
    EXPECT_EQ(caption.toText(), "Kept");
    test.session.ActiveBook.call("Close", false);
    closeAndAttach(form);
    EXPECT_TRUE(test.notices.shown.empty()) << "all of it is in the workbook that was closed";

    test.suite.excel().addWorkbook("Book2.xlsx").sheet("Sales").chart("Chart 1");
    test.attach();
    UserformObj& late = open();
    late.SlideTitle.setText("Lost");
    test.session.ActiveBook.call("Close", false);
    closeAndAttach(late);
    ASSERT_EQ(test.notices.shown.size(), 1U);
    EXPECT_NE(test.notices.shown[0].message.find("could not be written"), std::string::npos);
}

TEST_F(TheMainForm, followsTheActivePresentationWithoutLeavingTheSlidesThatAreChosen) {
    UserformObj& form = open();
    form.OptionPredefSlides.setValue(true);
    test.suite.powerPoint().addPresentation("Other.pptx");
    form.Form_Entered();
    EXPECT_EQ(form.DestinationFile.caption, "Active presentation: Other.pptx");
    test.suite.powerPoint().addPresentation("Third.pptx");
    form.Image1[0].onClick();
    EXPECT_EQ(form.DestinationFile.caption, "Active presentation: Third.pptx");
    EXPECT_TRUE(form.OptionPredefSlides.value());
}

TEST_F(TheMainForm, followsTheNameOfItsWorkbook) {
    UserformObj& form = open();
    test.suite.excel().findOpen("Book1.xlsx")->saveAs("March.xlsx");
    test.suite.excel().addWorkbook("Other.xlsx");
    form.Form_Entered();
    EXPECT_EQ(form.ActiveWbk.text(), "Active Workbook:March.xlsx ");
    test.session.ActiveBook.call("Close", false);
    form.Form_Entered();
    EXPECT_EQ(form.ActiveWbk.text(), "Active Workbook:March.xlsx ");
}

TEST_F(TheMainForm, keepsItsListInItsWorkbookWhicheverTheUserLooksAt) {
    UserformObj& form = open();
    form.listCharts.check(0, false);
    form.listCharts.click(1);
    form.SlideTitle.setText("Kept");
    forms_double::press(form, "Up");
    test.suite.excel().addWorkbook("Other.xlsx");
    forms_double::press(form, "PasteIT");
    EXPECT_EQ(test.session.ExcelApp.get("ActiveWorkbook").get("Name").toText(), "Book1.xlsx");
    test.session.ActiveBook =
        test.session.ExcelApp.get("Workbooks").get("Item", "Other.xlsx").toObject();
    closeAndAttach(form);
    UserformObj& again = open();
    EXPECT_EQ(again.list().rows[0].name, "Chart 2");
    EXPECT_EQ(again.list().rows[0].caption, "Kept");
    EXPECT_FALSE(again.list().rows[1].checked);
}

}  // namespace
