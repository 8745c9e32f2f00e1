#pragma once

#include <string>
#include <vector>

#include "desktop/sample_rows.h"
#include "forms/controls.h"
#include "forms/desktop.h"
#include "forms/form.h"
#include "forms/list_view.h"
#include "forms/timer.h"
#include "forms/web_browser.h"
#include "furniture/progress_bar.h"
#include "furniture/shadow.h"
#include "furniture/title_bar.h"

namespace sample {

/// A form with one control of each kind, laid out and themed as those of the program. It keeps a
/// record of its events.
class SampleForm : public forms::Form {
public:
    explicit SampleForm(forms::Desktop& desktop, std::size_t rowCount = 12);

    void Form_Load() override;
    void Form_Unload() override { happened.emplace_back("unload"); }
    void Form_Resize() override { happened.emplace_back("resize"); }

    std::vector<std::string> happened;
    Rows rows;
    furniture::clsShadow shadow;

    furniture::TitleBar TitelBar1{*this, "TitelBar1", {0, 0, 12000, 480}};
    forms::Frame Frame4{*this, "Frame4", {240, 720, 7200, 4200}};
    forms::CheckBox Check1{*this, "Check1", {240, 450, 2400, 255}, &Frame4};
    forms::Label NbCharts{*this, "NbCharts", {4200, 480, 2760, 255}, &Frame4};
    forms::ListView listCharts{*this, "listCharts", {240, 780, 6720, 2700}, &Frame4};
    forms::CommandButton Up{*this, "Up", {240, 3630, 405, 375}, &Frame4};
    forms::CommandButton Down{*this, "Down", {720, 3630, 405, 375}, &Frame4};
    forms::CommandButton AddCaption{*this, "AddCaption", {1560, 3630, 1005, 375}, &Frame4};
    forms::TextBox SlideTitle{*this, "SlideTitle", {2760, 3630, 4200, 375}, &Frame4};

    forms::Frame Frame1{*this, "Frame1", {7680, 720, 4080, 2400}};
    forms::Shape Shape1{*this, "Shape1", {360, 420, 915, 915}, &Frame1};
    forms::Image Image1{*this, "Image1", {420, 480, 795, 795}, &Frame1};
    forms::Image Image2{*this, "Image2", {1620, 480, 795, 795}, &Frame1};
    forms::Image Image3{*this, "Image3", {2820, 480, 795, 795}, &Frame1};
    forms::OptionButton OptionPpt{*this, "OptionPpt", {300, 1410, 1035, 375}, &Frame1};
    forms::OptionButton OptionWord{*this, "OptionWord", {1500, 1410, 1035, 375}, &Frame1};
    forms::OptionButton OptionHtml{*this, "OptionHtml", {2700, 1410, 1035, 375}, &Frame1};
    forms::Label DestinationFile{*this, "DestinationFile", {300, 1980, 3480, 255}, &Frame1};

    forms::Frame Frame3{*this, "Frame3", {7680, 3240, 4080, 1680}};
    forms::OptionButton Picture{*this, "Picture", {300, 480, 1500, 375}, &Frame3};
    forms::OptionButton Editable{*this, "Editable", {1980, 480, 1980, 375}, &Frame3};
    forms::Slider WidthSlider{*this,
                              "WidthSlider",
                              {300, 1020, 3480, 480},
                              forms::Slider::Orientation::Horizontal,
                              &Frame3};

    forms::Image imgChart{*this, "imgChart", {240, 5160, 1800, 1200}};
    furniture::ProgressBar prbHorizontal{*this, "prbHorizontal", {240, 6600, 7200, 300}};
    forms::WebBrowser wbStatus{*this, "wbStatus", {2280, 5160, 9480, 1320}};
    forms::Label lblActionBar{*this, "lblActionBar", {0, 7080, 12000, 900}};
    forms::CommandButton cmdHelp{*this, "cmdHelp", {240, 7260, 315, 315}};
    forms::CommandButton btnCancel{*this, "btnCancel", {7680, 7200, 1920, 540}};
    forms::CommandButton ContinueOk{*this, "ContinueOk", {9840, 7200, 1920, 540}};
    forms::Timer Timer1{*this, "Timer1", std::chrono::milliseconds{5}};

private:
    void name(std::string event) { happened.push_back(std::move(event)); }
    void fillCaptions();
    void fillList();
    void fillPictures();
    void connectEvents();
};

}  // namespace sample
