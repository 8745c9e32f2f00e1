#include <gtest/gtest.h>

#include <chrono>
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
