// Where the controls of the main form stand, what they say at first, and which event goes where.

#include <algorithm>
#include <string>
#include <utility>

#include "catalogue/userform_obj.h"
#include "forms/desktop.h"

namespace catalogue {

namespace {

using forms::Form;
using forms::Frame;
using forms::Place;

constexpr forms::Twips formWidth = 13425;
constexpr forms::Twips formHeight = 10245;
constexpr forms::Twips helpSize = 255;
constexpr forms::Twips naturalPreviewWidth = 4296;
/// Of each hundred twips that the form gains in width, what the list gets; the rest is the
/// preview's.
constexpr int listShare = 60;

std::array<forms::OptionButton, 5> destinationOptions(Form& form, Frame& frame) {
    const auto at = [](forms::Twips left, forms::Twips top) { return Place{left, top, 855, 375}; };
    return {forms::OptionButton{form, "Option1", at(360, 1320), &frame},
            forms::OptionButton{form, "Option1", at(2160, 1320), &frame},
            forms::OptionButton{form, "Option1", at(3960, 1320), &frame},
            forms::OptionButton{form, "Option1", at(0, 0), &frame},
            forms::OptionButton{form, "Option1", at(5760, 1320), &frame}};
}

std::array<forms::Shape, 5> destinationShapes(Form& form, Frame& frame) {
    const auto at = [](forms::Twips left, forms::Twips top) { return Place{left, top, 855, 855}; };
    return {forms::Shape{form, "Shape1", at(360, 360), &frame},
            forms::Shape{form, "Shape1", at(2100, 360), &frame},
            forms::Shape{form, "Shape1", at(3900, 360), &frame},
            forms::Shape{form, "Shape1", at(0, 0), &frame},
            forms::Shape{form, "Shape1", at(5640, 360), &frame}};
}

/// Pictures of the four destinations that the form offers, each inside its shape.
std::array<forms::Image, 4> destinationImages(Form& form, Frame& frame) {
    const auto at = [](forms::Twips left) { return Place{left + 90, 450, 675, 675}; };
    return {forms::Image{form, "Image1", at(360), &frame},
            forms::Image{form, "Image1", at(2100), &frame},
            forms::Image{form, "Image1", at(3900), &frame},
            forms::Image{form, "Image1", at(5640), &frame}};
}

std::array<forms::OptionButton, 4> formatOptions(Form& form, Frame& frame) {
    return {forms::OptionButton{form, "OptionFormat", {600, 480, 1335, 375}, &frame},
            forms::OptionButton{form, "OptionFormat", {3240, 480, 1815, 495}, &frame},
            forms::OptionButton{form, "OptionFormat", {600, 960, 2055, 495}, &frame},
            forms::OptionButton{form, "OptionFormat", {3240, 960, 2055, 492}, &frame}};
}

/// Which destination each picture of `Image1` belongs to: there is none for PDF.
constexpr std::array<int, 4> destinationOfImage = {0, 1, 2, 4};

}  // namespace

/// In hundredths of what the form gains, by how much a control moves and grows.
struct UserformObj::Gain {
    forms::Control* control;
    int left, top, width, height;
    Place natural;
};

UserformObj::UserformObj(forms::Desktop& desktop, session::OfficeSession& session,
                         MainFormHooks hooks)
    : Form(desktop, "UserformObj", formWidth, formHeight),
      TitelBar1(*this, "TitelBar1", {0, 0, formWidth, 660}),
      ActiveWbk(*this, "ActiveWbk", {5640, 240, 6015, 375}),
      Frame4(*this, "Frame4", {240, 720, 12615, 3975}),
      Check1(*this, "Check1", {240, 450, 1815, 255}, &Frame4),
      NbCharts(*this, "NbCharts", {2880, 480, 4215, 255}, &Frame4),
      cmdItemsHelp(*this, "cmdItemsHelp", {12240, 240, helpSize, helpSize}, &Frame4),
      listCharts(*this, "listCharts", {240, 720, 6915, 2535}, &Frame4),
      imgChart(*this, "imgChart", {7560, 720, 330, 2505}, &Frame4),
      Up(*this, "Up", {120, 3360, 405, 375}, &Frame4),
      Down(*this, "Down", {600, 3360, 405, 375}, &Frame4),
      AddCaption(*this, "AddCaption", {2040, 3480, 855, 375}, &Frame4),
      TitlesFrame(*this, "TitlesFrame", {3000, 3480, 3135, 435}, &Frame4),
      SlideTitle(*this, "SlideTitle", {0, 0, 3132, 420}, &TitlesFrame),
      PasteExpress(*this, "PasteExpress", {7560, 3360, 4695, 375}, &Frame4),
      SlideNb(*this, "SlideNb", {240, 4800, 3135, 852}),
      Label1(*this, "Label1", {120, 300, 2100, 440}, &SlideNb),
      TextBox10(*this, "TextBox10", {2280, 240, 735, 492}, &SlideNb),
      Frame1(*this, "Frame1", {3480, 5025, 6975, 2175}),
      Shape1(destinationShapes(*this, Frame1)),
      Image1(destinationImages(*this, Frame1)),
      Option1(destinationOptions(*this, Frame1)),
      DestinationFile(*this, "DestinationFile", {120, 1800, 6735, 255}, &Frame1),
      cmdPowerWhere(*this, "cmdPowerWhere", {6600, 240, helpSize, helpSize}, &Frame1),
      Frame3(*this, "Frame3", {600, 7440, 5535, 1635}),
      OptionFormat(formatOptions(*this, Frame3)),
      cmdExportHelp(*this, "cmdExportHelp", {5160, 240, helpSize, helpSize}, &Frame3),
      Frame2(*this, "Frame2", {7320, 7440, 5535, 1635}),
      OptionNewSlides(*this, "OptionNewSlides", {360, 600, 2652, 495}, &Frame2),
      OptionPredefSlides(*this, "OptionPredefSlides", {3120, 600, 2295, 495}, &Frame2),
      cmdChartsNewSlides(*this, "cmdChartsNewSlides", {5160, 240, helpSize, helpSize}, &Frame2),
      PasteIT(*this, "PasteIT", {11040, 9360, 2175, 615}),
      session_(session),
      hooks_(std::move(hooks)),
      listRows_(list_),
      previewWidth_(naturalPreviewWidth) {
    constexpr std::array<int, 5> intervalsMs = {5, 1, 5, 5, 5};
    for (std::size_t i = 0; i < timers_.size(); ++i) {
        timers_.at(i) = std::make_unique<forms::Timer>(
            *this, "Timer1", std::chrono::milliseconds(intervalsMs.at(i)));
    }
    setCaptionsAndTips();
    setFirstState();
    wireEvents();
    prepareToGrow();
}

UserformObj::~UserformObj() = default;

void UserformObj::prepareToGrow() {
    resizable = true;
    gains_ = {{&TitelBar1, 0, 0, 100, 0, {}},
              {&Frame4, 0, 0, 100, 100, {}},
              {&cmdItemsHelp, 100, 0, 0, 0, {}},
              {&listCharts, 0, 0, listShare, 100, {}},
              {&imgChart, listShare, 0, 0, 100, {}},
              {&PasteExpress, listShare, 100, 100 - listShare, 0, {}},
              {&Up, 0, 100, 0, 0, {}},
              {&Down, 0, 100, 0, 0, {}},
              {&AddCaption, 0, 100, 0, 0, {}},
              {&TitlesFrame, 0, 100, 0, 0, {}},
              {&SlideNb, 0, 100, 0, 0, {}},
              {&Frame1, 50, 100, 0, 0, {}},
              {&Frame3, 50, 100, 0, 0, {}},
              {&Frame2, 50, 100, 0, 0, {}},
              {&PasteIT, 100, 100, 0, 0, {}}};
    for (Gain& gain : gains_) gain.natural = gain.control->place;
}

void UserformObj::Form_Resize() {
    const forms::Twips wider = place.width - naturalWidth();
    const forms::Twips higher = place.height - naturalHeight();
    for (const Gain& gain : gains_) {
        Place& now = gain.control->place;
        now.left = gain.natural.left + wider * gain.left / 100;
        now.top = gain.natural.top + higher * gain.top / 100;
        // The widths of the others change by the clock.
        if (gain.width > 0) now.width = gain.natural.width + wider * gain.width / 100;
        now.height = gain.natural.height + higher * gain.height / 100;
    }
    const forms::Twips before = previewWidth_;
    previewWidth_ = naturalPreviewWidth + wider * (100 - listShare) / 100;
    if (imgChart.place.width == before) imgChart.place.width = previewWidth_;
    resizeColumns();
}

void UserformObj::giveWayToLowScreen() {
    // Of the list's height; some rows of it stay.
    constexpr forms::Twips mostGiven = 1950;
    place.height =
        std::clamp(desktop().screen().height, naturalHeight() - mostGiven, naturalHeight());
    if (place.height < naturalHeight()) Form_Resize();
}

void UserformObj::setCaptionsAndTips() {
    caption = "Murvane";
    TitelBar1.caption = " Murvane";
    Frame4.caption = "1. Select Items to Export";
    Check1.caption = "Select/Deselect all";
    Up.caption = "5";
    Down.caption = "6";
    AddCaption.caption = "Caption";
    PasteExpress.caption = "*Double-click the preview to insert it into the current slide";
    SlideNb.caption = "Slide number";
    Label1.caption = "Enter slide number for selected item in the list";
    Frame1.caption = " 2. Select destination";
    Frame3.caption = "3. Output Format";
    Frame2.caption = " 4. Slide insertion mode:";
    OptionNewSlides.caption = "Export to new created  slides ";
    OptionPredefSlides.caption = "Export to predefined slides ";
    PasteIT.caption = "Continue  >";

    constexpr std::array<const char*, 5> destinations = {"PPT", "Word", "Html", "Html", "Image"};
    for (std::size_t i = 0; i < Option1.size(); ++i) Option1.at(i).caption = destinations.at(i);
    constexpr std::array<const char*, 4> pictures = {"icon:powerpoint", "icon:word", "icon:html",
                                                     "icon:images"};
    for (std::size_t i = 0; i < Image1.size(); ++i) {
        Image1.at(i).setPicture({{}, pictures.at(i)});
        Image1.at(i).stretch = true;
    }

    constexpr const char* editableTip = "Charts and table are copied as Excel editable objects ";
    constexpr std::array<std::array<const char*, 2>, 4> formats = {{
        {"Picture ", "Charts and tables are copied as not editable enhanced pictures"},
        {"Editable Office Shapes", editableTip},
        {"Embedded Excel Object", editableTip},
        {"Linked Excel Object",
         "Copied charts and tables are editable and automatically updated if Excel source changes"},
    }};
    for (std::size_t i = 0; i < OptionFormat.size(); ++i) {
        OptionFormat.at(i).caption = formats.at(i)[0];
        OptionFormat.at(i).toolTip = formats.at(i)[1];
    }
    OptionNewSlides.toolTip =
        "Objects will be copied to automatically new added slides at the end of the active "
        "PowerPoint file";
    OptionPredefSlides.toolTip =
        "Objects will be copied to predefined slides according to the \"slide number\" in the list "
        "above";

    listCharts.accessibleName = "Items to export";
    listCharts.placeholder = "There is no chart, chart sheet or named range on a visible sheet.";
    imgChart.accessibleName = "Preview of the selected item";
    SlideTitle.accessibleName = "Caption of the selected item";
    TextBox10.accessibleName = "Slide number of the selected item";
    ActiveWbk.accessibleName = "Active workbook";
    Up.accessibleName = "Move the selected item up";
    Down.accessibleName = "Move the selected item down";
    for (forms::CommandButton* help :
         {&cmdItemsHelp, &cmdPowerWhere, &cmdExportHelp, &cmdChartsNewSlides}) {
        help->caption = "?";
        help->accessibleName = "Help";
    }
}

void UserformObj::setFirstState() {
    ActiveWbk.readOnly = true;
    ActiveWbk.alignment = forms::Alignment::Centre;
    Check1.startWith(forms::CheckBox::State::Checked);
    imgChart.stretch = true;
    TitlesFrame.hasBorder = false;
    TitlesFrame.visible = false;
    TextBox10.alignment = forms::Alignment::Centre;
    TextBox10.font = {"Tahoma", 12, true};
    focus = &listCharts;

    // PowerPoint, pictures, new slides: nothing of a choice is kept from one start to the next.
    Option1[0].startWith(true);
    Option1[0].font.bold = true;
    Option1[3].visible = false;
    for (std::size_t i = 0; i < Shape1.size(); ++i) {
        Shape1.at(i).visible = i == 0;
        Shape1.at(i).rounded = true;
    }
    OptionFormat[0].startWith(true);
    OptionFormat[0].font.bold = true;
    OptionNewSlides.startWith(true);
    OptionNewSlides.font.bold = true;

    timer(5).enabled = true;
}

void UserformObj::wireEvents() {
    for (std::size_t i = 0; i < Option1.size(); ++i) {
        Option1.at(i).onClick = [this, i] { Option1_Click(static_cast<int>(i)); };
        Option1.at(i).onClickAgain = [this] { nameTarget(); };
    }
    for (std::size_t i = 0; i < Image1.size(); ++i) {
        const auto destination = static_cast<std::size_t>(destinationOfImage.at(i));
        Image1.at(i).onClick = [this, destination] { Option1.at(destination).setValue(true); };
    }
    for (std::size_t i = 0; i < OptionFormat.size(); ++i) {
        OptionFormat.at(i).onClick = [this, i] { OptionFormat_Click(static_cast<int>(i)); };
    }
    for (int i = 1; i <= static_cast<int>(timers_.size()); ++i) {
        timer(i).onTimer = [this, i] { Timer1_Timer(i); };
    }
    OptionNewSlides.onClick = [this] { OptionNewSlides_Click(); };
    OptionPredefSlides.onClick = [this] { OptionPredefSlides_Click(); };
    AddCaption.onClick = [this] { AddCaption_Click(); };
    Up.onClick = [this] { listCharts_RowsStep(-1); };
    Down.onClick = [this] { listCharts_RowsStep(1); };
    Check1.onClick = [this] { Check1_Click(); };
    listCharts.onItemCheck = [this](std::size_t row) { listCharts_ItemCheck(row); };
    listCharts.onItemClick = [this](std::size_t row) { listCharts_ItemClick(row); };
    listCharts.onColumnClick = [this](std::size_t column) { listCharts_ColumnClick(column + 1); };
    listCharts.onRowsStep = [this](int step) { listCharts_RowsStep(step); };
    listCharts.onRowsMove = [this](std::size_t before) { listCharts_RowsMove(before); };
    listCharts.onRowsClear = [this] { listCharts_RowsClear(); };
    listCharts.onRowInsert = [this] { imgChart_DblClick(); };
    imgChart.onDblClick = [this] { imgChart_DblClick(); };
    SlideTitle.onChange = [this] { SlideTitle_Change(); };
    TextBox10.onChange = [this] { TextBox10_Change(); };
    for (forms::TextBox* box : {&SlideTitle, &TextBox10}) {
        box->onStep = [this, box](int step) { stepFromBox(*box, step); };
    }
    PasteIT.onClick = [this] { PasteIT_Click(); };
    for (forms::CommandButton* help :
         {&cmdItemsHelp, &cmdPowerWhere, &cmdExportHelp, &cmdChartsNewSlides}) {
        wireHelp(*help);
    }
}

void UserformObj::wireHelp(forms::CommandButton& button) {
    // A button that leads nowhere is worse than none.
    button.visible = hooks_.ShowContextHelp != nullptr;
    button.onClick = [this, &button] { hooks_.ShowContextHelp(button); };
}

}  // namespace catalogue
