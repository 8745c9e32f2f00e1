#pragma once

#include <QtWidgets/QWidget>
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/qt_desktop.h"
#include "forms/list_view.h"
#include "forms/web_browser.h"
#include "furniture/progress_bar.h"
#include "furniture/shadow.h"
#include "furniture/title_bar.h"

namespace sample {

/// Rows as an export list has them.
struct Rows final : forms::ListRows {
    struct Row {
        std::vector<std::string> cells;
        bool checked = true;
        forms::Colour colour = forms::Colour::rgb(0x1E293B);
        bool marked = false;
    };

    explicit Rows(std::size_t howMany);

    [[nodiscard]] std::size_t count() const override { return rows.size(); }
    [[nodiscard]] std::string_view text(std::size_t row, std::size_t column) const override {
        return column < rows.at(row).cells.size() ? rows[row].cells[column] : std::string_view();
    }
    [[nodiscard]] bool isChecked(std::size_t row) const override { return rows.at(row).checked; }
    void setChecked(std::size_t row, bool checked) override { rows.at(row).checked = checked; }
    [[nodiscard]] forms::Colour textColour(std::size_t row) const override {
        return rows.at(row).colour;
    }
    [[nodiscard]] std::string_view icon(std::size_t) const override { return "icon:chart"; }
    [[nodiscard]] std::ptrdiff_t selected() const override { return selectedRow; }
    void select(std::ptrdiff_t row) override { selectedRow = row; }
    [[nodiscard]] bool isMarked(std::size_t row) const override { return rows.at(row).marked; }
    void setMarked(std::size_t row, bool marked) override { rows.at(row).marked = marked; }

    std::vector<Row> rows;
    std::ptrdiff_t selectedRow = 1;
};

/// A form with one control of each kind, themed as those of the program. It keeps a record of its
/// events.
class SampleForm : public forms::Form {
public:
    explicit SampleForm(forms::Desktop& desktop, std::size_t rowCount = 12);

    void Form_Load() override;
    void Form_Unload() override { happened.emplace_back("unload"); }
    void Form_Resize() override { happened.emplace_back("resize"); }
    void Form_Entered() override { visits += '+'; }
    void Form_Left() override { visits += '-'; }

    std::vector<std::string> happened;
    std::string visits;
    Rows rows;
    furniture::clsShadow shadow;

    furniture::TitleBar TitelBar1{*this, "TitelBar1", {0, 0, 12000, 480}};
    forms::Frame Frame4{*this, "Frame4", {240, 720, 7200, 4200}};
    forms::CheckBox Check1{*this, "Check1", {240, 450, 2400, 255}, &Frame4};
    forms::Label NbCharts{*this, "NbCharts", {4200, 480, 2760, 255}, &Frame4};
    forms::ListView listCharts{*this, "listCharts", {240, 780, 6720, 2700}, &Frame4};
    forms::CommandButton Up{*this, "Up", {240, 3630, 405, 375}, &Frame4};
    forms::TextBox SlideTitle{*this, "SlideTitle", {2760, 3630, 4200, 375}, &Frame4};

    forms::Frame Frame1{*this, "Frame1", {7680, 720, 4080, 2400}};
    forms::Shape Shape1{*this, "Shape1", {360, 420, 915, 915}, &Frame1};
    forms::Image Image2{*this, "Image2", {1620, 480, 795, 795}, &Frame1};
    forms::OptionButton OptionPpt{*this, "OptionPpt", {300, 1410, 1035, 375}, &Frame1};
    forms::OptionButton OptionWord{*this, "OptionWord", {1500, 1410, 1035, 375}, &Frame1};
    forms::OptionButton OptionHtml{*this, "OptionHtml", {2700, 1410, 1035, 375}, &Frame1};
    forms::Label DestinationFile{*this, "DestinationFile", {300, 1980, 3480, 255}, &Frame1};

    forms::Frame Frame3{*this, "Frame3", {7680, 3240, 4080, 1680}};
    forms::OptionButton Picture{*this, "Picture", {300, 480, 1500, 375}, &Frame3};
    forms::Slider WidthSlider{*this,
                              "WidthSlider",
                              {300, 1020, 3480, 480},
                              forms::Slider::Orientation::Horizontal,
                              &Frame3};

    forms::Image imgChart{*this, "imgChart", {240, 5160, 1800, 1200}};
    furniture::ProgressBar prbHorizontal{*this, "prbHorizontal", {240, 6600, 7200, 300}};
    forms::WebBrowser wbStatus{*this, "wbStatus", {2280, 5160, 9480, 1320}};
    forms::Label lblActionBar{*this, "lblActionBar", {0, 7080, 12000, 900}};
    forms::CommandButton btnCancel{*this, "btnCancel", {7680, 7200, 1920, 540}};
    forms::CommandButton ContinueOk{*this, "ContinueOk", {9840, 7200, 1920, 540}};
    forms::Timer Timer1{*this, "Timer1", std::chrono::milliseconds{5}};

private:
    [[nodiscard]] forms::Event notes(std::string event) {
        return [this, event = std::move(event)] { happened.push_back(event); };
    }
    /// The same of an event that says of what: "check 3".
    [[nodiscard]] auto notesWith(std::string event) {
        return [this, event = std::move(event)](auto what) {
            happened.push_back(fmt::format("{} {}", event, what));
        };
    }
};

}  // namespace sample

/// A desktop with the sample form on it, and a user's hands.
class OnTheDesktop : public testing::Test {
protected:
    void SetUp() override { desk.show(form, forms::ShowMode::Modeless); }

    [[nodiscard]] long times(const std::string& event) const {
        return std::count(form.happened.begin(), form.happened.end(), event);
    }
    template <class Widget>
    [[nodiscard]] Widget& widgetOf(const forms::Control& control) {
        desk.letEventsRun();
        return dynamic_cast<Widget&>(*desk.widgetOf(control));
    }

    /// Lets events run until the condition holds; false if it doesn't within the time.
    bool waitUntil(const std::function<bool()>& holds,
                   std::chrono::milliseconds patience = std::chrono::seconds{10});
    void letPass(std::chrono::milliseconds time) {
        waitUntil([] { return false; }, time);
    }
    void click(const forms::Control& control);
    void clickAt(QWidget& widget, QPoint at);
    /// The mouse button is down and moves to this point of the widget.
    void dragTo(QWidget& widget, QPoint at);
    /// To the widget that has the keyboard.
    void key(Qt::Key which, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        keyTo(form, which, modifiers);
    }
    void keyTo(const forms::Form& of, Qt::Key which,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const std::string& text);

    desktop::QtDesktop desk;
    sample::SampleForm form{desk};

private:
    [[nodiscard]] QWidget& keyboardOwner(const forms::Form& of);
};
