#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/list_view.h"
#include "forms_double/windowless_desktop.h"

namespace {

using forms::CheckBox;
using forms::OptionButton;

/// Two groups of options, one of them in a frame, and one of every other kind of value.
struct Sheet : forms::Form {
    explicit Sheet(forms::Desktop& desktop) : Form(desktop, "Sheet", 3000, 3000) {}

    forms::Frame frame{*this, "Frame1", {}};
    OptionButton pictures{*this, "OptionFormat", {}, &frame};
    OptionButton editable{*this, "OptionFormat", {}, &frame};
    OptionButton newSlides{*this, "OptionNewSlides", {}};
    OptionButton namedSlides{*this, "OptionPredefSlides", {}};
    CheckBox shadow{*this, "CheckShadow", {}};
    forms::TextBox title{*this, "SlideTitle", {}};
    forms::Slider slider{*this, "TopSlider", {}, forms::Slider::Orientation::Vertical};
    forms::CommandButton apply{*this, "CloseLayout", {}};
};

class Controls : public testing::Test {
protected:
    /// What the controls raised since the last look.
    std::vector<std::string> taken() { return std::exchange(raised, {}); }
    [[nodiscard]] forms::Event raises(const std::string& name) {
        return [this, name] { raised.push_back(name); };
    }

    forms_double::WindowlessDesktop desktop;
    Sheet sheet{desktop};
    std::vector<std::string> raised;
};

using Strings = std::vector<std::string>;

TEST_F(Controls, AnOptionIsClickedOnceWhenItBecomesChosenAndNeverWhenItLosesTheChoice) {
    sheet.newSlides.startWith(true);
    sheet.pictures.onClick = raises("pictures");
    sheet.editable.onClick = [this] {
        raised.push_back("editable");
        EXPECT_FALSE(sheet.pictures.value()) << "the others have lost the choice by then";
        EXPECT_TRUE(sheet.newSlides.value()) << "those of another container keep it";
    };
    sheet.pictures.setValue(true);
    EXPECT_EQ(taken(), Strings{"pictures"});
    sheet.pictures.setValue(true);
    EXPECT_EQ(taken(), Strings{});
    sheet.editable.setValue(true);
    EXPECT_EQ(taken(), Strings{"editable"});
    sheet.editable.setValue(false);
    EXPECT_EQ(taken(), Strings{});
}

TEST_F(Controls, RaiseTheirEventOnceForAValueThatIsAnotherOne) {
    sheet.shadow.onClick = raises("shadow");
    sheet.title.onChange = raises("title");
    sheet.slider.onChange = raises("slider");
    sheet.apply.onClick = raises("apply");
    for (int i = 0; i < 2; ++i) {
        sheet.shadow.setValue(CheckBox::State::Checked);
        sheet.title.setText("Sales");
        sheet.slider.setValue(250);
        sheet.apply.enabled = false;
        sheet.apply.press();
    }
    EXPECT_EQ(taken(), (Strings{"shadow", "title", "slider"}));
    EXPECT_EQ(sheet.slider.value(), 100);
    sheet.slider.setValue(-5);
    EXPECT_EQ(sheet.slider.value(), 0);
    sheet.apply.enabled = true;
    sheet.apply.press();
    EXPECT_EQ(taken(), (Strings{"slider", "apply"}));
}

TEST_F(Controls, AreLaidOutWithoutAnEvent) {
    sheet.shadow.onClick = raises("shadow");
    sheet.title.onChange = raises("title");
    sheet.pictures.onClick = raises("pictures");
    sheet.shadow.startWith(CheckBox::State::Checked);
    sheet.title.startWith("Sales");
    sheet.pictures.startWith(true);
    EXPECT_EQ(taken(), Strings{});
    EXPECT_TRUE(sheet.shadow.isChecked());
}

/// Two rows that any list could show.
struct TwoRows : forms::ListRows {
    [[nodiscard]] std::size_t count() const override { return 2; }
    [[nodiscard]] std::string_view text(std::size_t, std::size_t) const override { return "x"; }
    [[nodiscard]] bool isChecked(std::size_t row) const override { return checked[row]; }
    void setChecked(std::size_t row, bool value) override { checked[row] = value; }
    [[nodiscard]] forms::Colour textColour(std::size_t) const override { return {}; }
    [[nodiscard]] std::string_view icon(std::size_t) const override { return {}; }
    [[nodiscard]] std::ptrdiff_t selected() const override { return chosen; }
    void select(std::ptrdiff_t row) override { chosen = row; }
    [[nodiscard]] bool isMarked(std::size_t row) const override { return marked[row]; }
    void setMarked(std::size_t row, bool value) override { marked[row] = value; }

    std::vector<bool> checked = {false, false};
    std::vector<bool> marked = {false, false};
    std::ptrdiff_t chosen = -1;
};

TEST_F(Controls, AListChangesTheRowBeforeItTells) {
    TwoRows rows;
    forms::ListView list(sheet, "listCharts", {});
    list.rows = &rows;
    list.onItemCheck = [&](std::size_t row) { raised.push_back(rows.checked[row] ? "on" : "off"); };
    list.onItemClick = [&](std::size_t) { raised.push_back(std::to_string(rows.chosen)); };
    list.check(1, true);
    list.check(1, true);
    list.click(1);
    list.check(2, true);
    list.click(2);
    list.check(1, false);
    EXPECT_EQ(taken(), (Strings{"on", "1", "off"}));
    EXPECT_EQ(list.version(), 3);
}

TEST_F(Controls, TheRowThatIsShownAsChosenStaysSoWhenAnotherIsAddedToIt) {
    TwoRows rows;
    rows.chosen = 0;
    forms::ListView list(sheet, "listCharts", {});
    list.rows = &rows;
    using Marks = std::vector<bool>;
    list.click(1, forms::ListView::Pick::Toggle);
    EXPECT_EQ(rows.marked, (Marks{true, true}));
    list.click(0, forms::ListView::Pick::Toggle);
    EXPECT_EQ(rows.marked, (Marks{false, true}));
}

}  // namespace
