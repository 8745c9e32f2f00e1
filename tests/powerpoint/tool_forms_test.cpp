#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "office/failure.h"
#include "powerpoint/layout_form.h"
#include "powerpoint/picture_styles_form.h"
#include "session/store_sheet.h"
#include "session_doubles/test_session.h"

namespace {

using forms_double::choose;
using forms_double::press;
using office::Value;
using Strings = std::vector<std::string>;

class ToolForms : public testing::Test {
protected:
    ToolForms() {
        test.suite.excel().addWorkbook("Book1.xlsx").sheet("Sales");
        test.attach();
    }

    [[nodiscard]] office::Value stored(const char* address) const {
        return test.sheet(session::store::sheetName).get("Range", address).get("Value");
    }
    void store(const Value& top, const Value& width, const Value& left) {
        session::EnsureStoreSheet(test.session);
        const office::Object sheet = test.sheet(session::store::sheetName);
        sheet.get("Range", "O1").put("Value", top);
        sheet.get("Range", "P1").put("Value", width);
        sheet.get("Range", "R1").put("Value", left);
    }

    session_doubles::TestSession test;
    forms_double::WindowlessDesktop desktop;
    powerpoint::LayoutForm layout{desktop, test.session};
    session::PictureLook chosenStyle = session::PictureLook::None;
    powerpoint::PredefinedStyles styles{desktop, chosenStyle};
};

/// What a group of the layout form shows: which option, and where the slider stands.
struct Shown {
    bool isDefault;
    int slider;
    bool isEnabled;
    bool operator==(const Shown&) const = default;
};

Shown shown(const std::array<forms::OptionButton, 2>& options, const forms::Slider& slider,
            const forms::Label& value) {
    EXPECT_EQ(slider.enabled, value.enabled);
    EXPECT_NE(options[0].value(), options[1].value());
    return {options[0].value(), slider.value(), slider.enabled};
}

TEST_F(ToolForms, ShowWhatTheStoreHolds) {
    const Shown defaultTop = {true, 75, false};
    const Shown defaultWidth = {true, 90, false};
    const Shown defaultLeft = {true, 10, false};
    const std::tuple<Value, Value, Value, Shown, Shown, Shown> cases[] = {
        {"Default", "Default", "Default", defaultTop, defaultWidth, defaultLeft},
        {Value(), Value(), Value(), defaultTop, defaultWidth, defaultLeft},
        {0.25, 0.5, 0.0, {false, 75, true}, {false, 50, true}, {false, 0, true}},
        {"Default", 1, 0.4, defaultTop, {false, 100, true}, {false, 40, true}},
        {"here", "Default", "there", defaultTop, defaultWidth, defaultLeft},
        {0.114, 7e30, -3.0, {false, 89, true}, {false, 100, true}, {false, 0, true}},
    };
    for (const auto& [top, width, left, shownTop, shownWidth, shownLeft] : cases) {
        store(top, width, left);
        desktop.load(layout);
        EXPECT_EQ(shown(layout.OptionTop, layout.TopSlider, layout.Label1), shownTop);
        EXPECT_EQ(shown(layout.OptionWidth, layout.WidthSlider, layout.Label2), shownWidth);
        EXPECT_EQ(shown(layout.OptionAlign, layout.AlignSlider, layout.Label3), shownLeft);
        desktop.unload(layout);
    }
}

TEST_F(ToolForms, AnOptionTurnsItsSliderOnAndApplyWritesTheStoreForTheExportsOfThisRun) {
    const auto width = [&] { return shown(layout.OptionWidth, layout.WidthSlider, layout.Label2); };
    store(0.25, "Default", 0.3);
    desktop.load(layout);
    choose(layout, "OptionWidth", 1);
    EXPECT_EQ(width(), (Shown{false, 90, true}));
    choose(layout, "OptionWidth", 0);
    EXPECT_EQ(width(), (Shown{true, 90, false}));
    choose(layout, "OptionWidth", 1);
    layout.WidthSlider.setValue(65);
    EXPECT_EQ(layout.Label2.caption, "65% of the width");
    choose(layout, "OptionAlign", 0);
    press(layout, "CloseLayout");
    EXPECT_DOUBLE_EQ(stored("O1").toDouble(), 0.25);
    EXPECT_DOUBLE_EQ(stored("P1").toDouble(), 0.65);
    EXPECT_EQ(stored("R1").toText(), "Default");
    EXPECT_TRUE(layout.isApplied());
    EXPECT_FALSE(desktop.isLoaded(layout));
}

TEST_F(ToolForms, ApplySaysWhyNothingWasKeptAndClosingWritesNothing) {
    store("Default", "Default", "Default");
    desktop.load(layout);
    choose(layout, "OptionTop", 1);
    test.suite.failures().fail("Range.Value");
    press(layout, "CloseLayout");
    ASSERT_EQ(test.notices.shown.size(), 1U);
    EXPECT_TRUE(test.notices.messages()[0].starts_with("The slide position could not be kept"));
    EXPECT_TRUE(desktop.isLoaded(layout));
    forms_double::pressEscape(layout);
    EXPECT_FALSE(desktop.isLoaded(layout) || layout.isApplied());
    EXPECT_EQ(stored("O1").toText(), "Default");
}

TEST_F(ToolForms, TheUtilityMakesTheStoreAndSaysWhatKeepsItFromComingUp) {
    desktop.answer("LayoutForm", [](forms::Form& form) { press(form, "CloseLayout"); });
    powerpoint::ShowLayoutUtility(test.session, desktop);
    EXPECT_EQ(stored("O1").toText(), "Default");
    EXPECT_EQ(test.sheet(session::store::sheetName).get("Visible").toLong(), 2);
    desktop.opensWindows = false;
    powerpoint::ShowLayoutUtility(test.session, desktop);
    test.suite.excel().addWorkbook("Shut.xlsx").protectStructure();
    test.attach();
    powerpoint::ShowLayoutUtility(test.session, desktop);
    EXPECT_NE(test.notices.shown.back().message.find("looks protected"), std::string::npos);
    test.notices.shown.pop_back();
    test.session.ActiveBook.release();
    powerpoint::ShowLayoutUtility(test.session, desktop);
    EXPECT_EQ(test.notices.messages(),
              (Strings{"Could not open the slide position utility.",
                       "An Excel workbook must be open to set slide position."}));
    EXPECT_TRUE(desktop.loadedForms().empty());
}

/// The numbers of the options in bold.
std::vector<int> boldOnes(const powerpoint::PredefinedStyles& form) {
    std::vector<int> bold;
    for (int i = 0; i < 6; ++i) {
        if (form.OptionStyle.at(static_cast<std::size_t>(i)).font.bold) bold.push_back(i);
    }
    return bold;
}

TEST_F(ToolForms, StylesBeginWithNoneEachTimeAndKeepTheLastClick) {
    for (int i = 0; i < 2; ++i) {
        desktop.load(styles);
        EXPECT_EQ(chosenStyle, session::PictureLook::None);
        EXPECT_EQ(boldOnes(styles), std::vector<int>{0});
        choose(styles, "OptionStyle", 4);
        EXPECT_EQ(boldOnes(styles), std::vector<int>{4});
        forms_double::close(styles);
        EXPECT_EQ(chosenStyle, session::PictureLook::Reflection);
    }
    desktop.load(styles);
    choose(styles, "OptionStyle", 2);
    press(styles, "Styles");
    EXPECT_FALSE(desktop.isLoaded(styles));
    EXPECT_EQ(chosenStyle, session::PictureLook::Shadow);
}

}  // namespace
