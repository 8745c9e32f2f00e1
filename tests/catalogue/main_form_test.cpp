#include <gtest/gtest.h>

#include <chrono>
#include <iterator>
#include <string>
#include <vector>

#include "catalogue/userform_obj.h"
#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "office/failure.h"
#include "session/workbook_store.h"
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
    int started = 0;
    catalogue::ExportChoices choices;
    std::vector<std::string> inserted;
    MainFormHooks hooks;

    TheMainForm() {
        auto& book = test.suite.excel().addWorkbook("Book1.xlsx");
        auto& sales = book.sheet("Sales");
        sales.chart("Chart 1");
        sales.chart("Chart 2");
        sales.value("A1", 1.0).define("Parts", "A1:A5,C1:C5").define("Whole", "A1:B2");
        test.suite.powerPoint().addPresentation("Deck.pptx").addSlides(2);
        test.attach();
        hooks.StartExport = [this](catalogue::ExportList&, const catalogue::ExportChoices& chosen) {
            choices = chosen;
            ++started;
            return chosen.destination == catalogue::Destination::PowerPoint;
        };
        hooks.InsertOneItem = [this](const catalogue::ExportItem& row,
                                     const catalogue::ExportChoices&) {
            inserted.push_back(row.name);
            return true;
        };
    }

    void show(UserformObj& form) { desktop.show(form, forms::ShowMode::Modeless); }
    [[nodiscard]] static std::vector<std::string> orders(UserformObj& form) {
        std::vector<std::string> all;
        for (const auto& row : form.list().rows) all.push_back(row.name + " " + row.order);
        return all;
    }
};

TEST_F(TheMainForm, comesUpFilledOnPowerPointPicturesAndNewSlides) {
    UserformObj form(desktop, test.session, hooks);
    show(form);
    EXPECT_EQ(orders(form),
              (std::vector<std::string>{"Chart 1 1", "Chart 2 2", "Parts ", "Whole 3"}));
    EXPECT_EQ(form.NbCharts.caption, "3 of 4 items selected");
    EXPECT_EQ(form.ActiveWbk.text(), "Active Workbook:Book1.xlsx ");
    EXPECT_EQ(form.DestinationFile.caption, "Active presentation: Deck.pptx");
    EXPECT_EQ(form.PasteExpress.caption, "*DoubleClick to paste displayed item only");
    EXPECT_EQ(form.Check1.value(), CheckBox::State::Checked)
        << "the red row was counted before it was unchecked";
    EXPECT_FALSE(form.TitlesFrame.visible);
    EXPECT_TRUE(test.session.MainFormOpen);
    EXPECT_FALSE(form.choices().predefinedSlides);
    EXPECT_TRUE(form.Shape1[0].visible);
    EXPECT_FALSE(form.Option1[3].visible) << "PDF is not offered";
}

TEST_F(TheMainForm, saysThatPowerPointIsNotRunningAndStaysUsable) {
    test.suite.quitPowerPoint();
    UserformObj form(desktop, test.session, hooks);
    show(form);
    EXPECT_EQ(form.DestinationFile.caption, "PowerPoint is not running");
    EXPECT_EQ(form.list().rows.size(), 4U);
}

TEST_F(TheMainForm, changesWithTheDestination) {
    UserformObj form(desktop, test.session, hooks);
    show(form);
    forms_double::choose(form, "Option1", 2);
    EXPECT_EQ(form.DestinationFile.caption, "To a new HTML file ");
    EXPECT_EQ(form.OptionNewSlides.caption, "Paste to new created pages");
    EXPECT_TRUE(form.OptionFormat[0].enabled);
    EXPECT_FALSE(form.OptionFormat[2].enabled);
    EXPECT_FALSE(form.OptionPredefSlides.enabled);
    EXPECT_FALSE(form.PasteExpress.visible);
    EXPECT_TRUE(form.TitlesFrame.visible) << "the caption panel comes up with every change";
    EXPECT_TRUE(form.Option1[2].font.bold && !form.Option1[0].font.bold);
    forms_double::choose(form, "Option1", 0);
    EXPECT_TRUE(form.OptionFormat[2].enabled && form.OptionPredefSlides.enabled);
    EXPECT_EQ(form.OptionNewSlides.caption, "Paste to new created slides");
}

TEST_F(TheMainForm, opensAndClosesThePanelOfSlideNumbersByTheClock) {
    UserformObj form(desktop, test.session, hooks);
    show(form);
    desktop.advance(1s);
    EXPECT_EQ(form.imgChart.place.width, 4296);
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

TEST_F(TheMainForm, showsTheTextsOfWhicheverRowIsSelectedFromTheStartOn) {
    {
        UserformObj form(desktop, test.session, hooks);
        show(form);
        form.SlideTitle.setText("Kept");
        form.TextBox10.setText("2");
        forms_double::close(form);
    }
    test.attach();
    UserformObj form(desktop, test.session, hooks);
    show(form);
    EXPECT_EQ(form.SlideTitle.text() + form.TextBox10.text(), "Kept2");
    EXPECT_EQ(form.focus, &form.listCharts);
    form.listCharts.click(2);
    EXPECT_EQ(form.SlideTitle.text(), "") << "the row that is refused has texts of its own too";
}

TEST_F(TheMainForm, takesCaptionsOneAfterTheOtherWithoutTheMouse) {
    UserformObj form(desktop, test.session, hooks);
    show(form);
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
    form.TextBox10.onStep(-1);
    form.TextBox10.onStep(-1);
    form.TextBox10.onStep(-1);
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
    UserformObj form(desktop, test.session, hooks);
    show(form);
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
    UserformObj form(desktop, test.session, hooks);
    show(form);
    desktop.advance(1s);
    const auto placesOf = [&] {
        std::vector<forms::Place> places;
        for (const auto* control : form.controls()) places.push_back(control->place);
        return places;
    };
    const auto natural = placesOf();
    const auto list = form.listCharts.place;
    const auto preview = form.imgChart.place;
    const auto columns = form.listCharts.columns;
    form.place.width += 3000;
    form.place.height += 1500;
    form.Form_Resize();
    EXPECT_EQ(form.listCharts.place.width + form.imgChart.place.width,
              list.width + preview.width + 3000);
    EXPECT_EQ(form.listCharts.place.height, list.height + 1500);
    EXPECT_EQ(form.imgChart.place.height, preview.height + 1500);
    EXPECT_GT(form.listCharts.columns[4].width, columns[4].width);
    // What stood apart stands apart, within the form.
    const forms::Control* rows[] = {&form.Frame4, &form.Frame1, &form.Frame3, &form.PasteIT};
    for (std::size_t i = 0; i + 1 < std::size(rows); ++i) {
        EXPECT_LT(rows[i]->place.top + rows[i]->place.height, rows[i + 1]->place.top) << i;
    }
    EXPECT_LE(form.PasteIT.place.left + form.PasteIT.place.width, form.place.width);
    EXPECT_LE(form.listCharts.place.left + form.listCharts.place.width, form.imgChart.place.left);
    form.place.width -= 3000;
    form.place.height -= 1500;
    form.Form_Resize();
    EXPECT_EQ(placesOf(), natural);
}

TEST_F(TheMainForm, offersADestinationByThePictureInItsShape) {
    UserformObj form(desktop, test.session, hooks);
    show(form);
    const int destinations[] = {0, 1, 2, 4};
    for (std::size_t i = 0; i < form.Image1.size(); ++i) {
        const forms::Place& picture = form.Image1.at(i).place;
        form.Image1.at(i).onClick();
        const auto chosen = static_cast<std::size_t>(destinations[i]);
        EXPECT_TRUE(form.Option1.at(chosen).value());
        const forms::Shape& shape = form.Shape1.at(chosen);
        EXPECT_TRUE(shape.visible);
        EXPECT_EQ(2 * picture.left + picture.width, 2 * shape.place.left + shape.place.width);
        EXPECT_EQ(2 * picture.top + picture.height, 2 * shape.place.top + shape.place.height);
        EXPECT_LT(picture.width, shape.place.width);
    }
}

TEST_F(TheMainForm, endsWithItsLoadingForm) {
    test.progress.isLoadingCancelled = true;
    UserformObj form(desktop, test.session, hooks);
    show(form);
    EXPECT_FALSE(desktop.isLoaded(form));
    EXPECT_FALSE(test.session.MainFormOpen);
    EXPECT_TRUE(desktop.record.empty() || desktop.record.back() != "show UserformObj modeless");
}

TEST_F(TheMainForm, hasItsListInTheWorkbookBeforeAnExportBegins) {
    std::string stored;
    hooks.StartExport = [&](catalogue::ExportList&, const catalogue::ExportChoices&) -> bool {
        auto again = session::MergeIntoStore(test.session, {});
        stored = again.items.at(0).caption;
        throw office::Failure(office::FailureNumber::ApplicationDefined, "Excel", "Lost");
    };
    UserformObj form(desktop, test.session, hooks);
    show(form);
    form.SlideTitle.setText("Kept");
    EXPECT_THROW(forms_double::press(form, "PasteIT"), office::Failure);
    EXPECT_EQ(stored, "Kept");
}

TEST_F(TheMainForm, numbersTheCheckedRowsFromTheTopWhateverMovesThem) {
    UserformObj form(desktop, test.session, hooks);
    show(form);
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
    UserformObj form(desktop, test.session, hooks);
    show(form);
    form.listCharts.check(2, true);
    EXPECT_FALSE(form.list().rows[2].checked);
    form.listCharts.click(2);
    ASSERT_EQ(desktop.messages.size(), 2U);
    EXPECT_EQ(desktop.messages[0].text, "You can't check a multiple range");
    EXPECT_EQ(desktop.messages[1].text,
              "Murvane does not support multiple selection. This item could not be pasted");
}

TEST_F(TheMainForm, writesCaptionAndSlideNumberThroughToTheSelectedRow) {
    UserformObj form(desktop, test.session, hooks);
    show(form);
    form.listCharts.click(1);
    form.SlideTitle.setText("Sales\tin May");
    form.TextBox10.setText("12a");
    EXPECT_EQ(form.list().rows[1].caption, "Sales\tin May");
    EXPECT_EQ(form.list().rows[1].slideNumber, "12");
    form.TextBox10.setText(" 7");
    EXPECT_EQ(form.list().rows[1].slideNumber, "7");
    form.listCharts.click(0);
    EXPECT_EQ(form.SlideTitle.text(), "");
    form.listCharts.click(1);
    EXPECT_EQ(form.SlideTitle.text(), "Sales\tin May");
    EXPECT_EQ(form.TextBox10.text(), "7");
    form.TextBox10.setText("-");
    EXPECT_EQ(form.TextBox10.text(), "") << "a lone sign is wiped";
}

TEST_F(TheMainForm, previewsTheRowThatIsClicked) {
    UserformObj form(desktop, test.session, hooks);
    show(form);
    desktop.advance(1s);
    const int before = form.imgChart.version();
    form.listCharts.click(1);
    EXPECT_GT(form.imgChart.version(), before);
    EXPECT_FALSE(form.imgChart.picture().isEmpty());
    EXPECT_EQ(form.imgChart.place.width, 336);
    form.list().rows[1].name = "Gone";
    form.listCharts.click(1);
    EXPECT_TRUE(form.imgChart.picture().isEmpty()) << "an object that has gone leaves it empty";
}

TEST_F(TheMainForm, putsOneItemOnTheSlideThatIsShown) {
    UserformObj form(desktop, test.session, hooks);
    show(form);
    form.listCharts.click(1);
    form.imgChart.onDblClick();
    EXPECT_EQ(inserted, std::vector<std::string>{"Chart 2"});
    ASSERT_FALSE(desktop.messages.empty());
    EXPECT_EQ(desktop.messages.back().text, "Done!");
}

TEST_F(TheMainForm, takesNoInputWhileAnItemIsPutOnItsSlide) {
    bool tookInput = true;
    hooks.InsertOneItem = [&](const catalogue::ExportItem&, const catalogue::ExportChoices&) {
        tookInput = desktop.findLoaded("UserformObj")->takesInput;
        return false;
    };
    UserformObj form(desktop, test.session, hooks);
    show(form);
    form.imgChart.onDblClick();
    EXPECT_FALSE(tookInput);
    EXPECT_TRUE(form.takesInput);
    EXPECT_TRUE(desktop.messages.empty()) << "nothing was done";
}

TEST_F(TheMainForm, startsAnExportOnlyAfterTheReview) {
    UserformObj form(desktop, test.session, hooks);
    show(form);
    forms_double::press(form, "PasteIT");
    EXPECT_EQ(started, 1);
    form.OptionFormat[2].setValue(true);
    form.OptionPredefSlides.setValue(true);
    for (auto& row : form.list().rows) row.slideNumber = "1";
    forms_double::press(form, "PasteIT");
    EXPECT_EQ(started, 2);
    EXPECT_EQ(choices.format, catalogue::ExportFormat::Embedded);
    EXPECT_TRUE(choices.predefinedSlides);
    form.Check1.setValue(CheckBox::State::Unchecked);
    forms_double::press(form, "PasteIT");
    EXPECT_EQ(started, 2);
    ASSERT_FALSE(test.notices.shown.empty());
    EXPECT_EQ(test.notices.shown.back().title, "Export blocked");
}

TEST_F(TheMainForm, saysWhichDestinationsThisVersionHasNotGot) {
    UserformObj form(desktop, test.session, hooks);
    show(form);
    form.Option1[3].setValue(true);
    forms_double::press(form, "PasteIT");
    ASSERT_EQ(test.notices.shown.size(), 1U);
    EXPECT_EQ(test.notices.shown[0].message, "The export to PDF is not part of this version yet.");
}

TEST_F(TheMainForm, keepsItsListInTheWorkbookWhenItCloses) {
    {
        UserformObj form(desktop, test.session, hooks);
        show(form);
        form.listCharts.check(0, false);
        form.listCharts.click(1);
        form.SlideTitle.setText("Kept");
        forms_double::press(form, "Up");
        forms_double::close(form);
    }
    EXPECT_FALSE(test.session.MainFormOpen);
    test.attach();
    UserformObj again(desktop, test.session, hooks);
    show(again);
    EXPECT_EQ(again.list().rows[0].name, "Chart 2");
    EXPECT_EQ(again.list().rows[0].caption, "Kept");
    EXPECT_FALSE(again.list().rows[1].checked);
}

TEST_F(TheMainForm, keepsItsListAheadOfWhatMayEndTheProgram) {
    std::vector<std::string> stored;
    const auto look = [&] {
        stored.push_back(
            test.sheet(session::store::sheetName).get("Range", "T1").get("Value").toText());
    };
    hooks.StartExport = [&](auto&, const auto&) {
        look();
        return true;
    };
    hooks.InsertOneItem = [&](const auto&, const auto&) {
        look();
        return false;
    };
    UserformObj form(desktop, test.session, hooks);
    show(form);
    form.SlideTitle.setText("First");
    forms_double::press(form, "PasteIT");
    form.SlideTitle.setText("Second");
    form.imgChart.onDblClick();
    EXPECT_EQ(stored, (std::vector<std::string>{"First", "Second"}));
}

TEST_F(TheMainForm, leavesTheStoredListAloneIfItsOwnNeverCameUp) {
    {
        UserformObj form(desktop, test.session, hooks);
        show(form);
        form.SlideTitle.setText("Kept");
        forms_double::close(form);
    }
    test.attach();
    {
        UserformObj broken(desktop, test.session, hooks);
        test.suite.failures().fail("Range.Value");
        show(broken);
        EXPECT_TRUE(broken.list().rows.empty());
        EXPECT_NE(broken.listCharts.placeholder.find("could not be read"), std::string::npos);
        forms_double::close(broken);
    }
    test.attach();
    UserformObj again(desktop, test.session, hooks);
    show(again);
    ASSERT_EQ(again.list().rows.size(), 4U);
    EXPECT_EQ(again.list().rows[0].caption, "Kept");
}

TEST_F(TheMainForm, staysWithItsWorkbookWhicheverTheUserLooksAt) {
    {
        UserformObj form(desktop, test.session, hooks);
        show(form);
        form.SlideTitle.setText("Kept");
        test.suite.excel().addWorkbook("Other.xlsx");
        forms_double::press(form, "PasteIT");
        EXPECT_EQ(test.session.ExcelApp.get("ActiveWorkbook").get("Name").toText(), "Book1.xlsx");
        test.session.ActiveBook =
            test.session.ExcelApp.get("Workbooks").get("Item", "Other.xlsx").toObject();
        forms_double::close(form);
    }
    test.attach();
    UserformObj again(desktop, test.session, hooks);
    show(again);
    EXPECT_EQ(again.list().rows[0].caption, "Kept");
}

}  // namespace
