#include "furniture/load_form.h"

#include "furniture/theme.h"

namespace furniture {

MurvaneLoad::MurvaneLoad(forms::Desktop& desktop)
    : Form(desktop, "MurvaneLoad", 7200, 3000),
      TitelBar1(*this, "TitelBar1", {0, 0, 7200, 420}),
      Image1(*this, "Image1", {360, 720, 720, 720}),
      Label1(*this, "Label1", {1260, 660, 5580, 480}),
      Label3(*this, "Label3", {1260, 1140, 5580, 300}),
      lblCaption(*this, "lblCaption", {360, 1680, 6480, 300}),
      prbHorizontalOnLoad(*this, "prbHorizontalOnLoad", {360, 2040, 6480, 360}),
      Label4(*this, "Label4", {360, 2520, 6480, 240}) {
    caption = "Murvane";
    TitelBar1.caption = " Murvane";
    Image1.setPicture({.bytes = {}, .drawing = "icon:murvane"});
    Image1.stretch = true;
    Label1.caption = "Murvane";
    Label1.font = {.name = "Tahoma", .sizePt = 18, .bold = true};
    Label3.caption = "From Excel to slides, documents and pictures";
    Label3.font.sizePt = 9;
    prbHorizontalOnLoad.accessibleName = "Progress of loading the workbook";
    lblCaption.font.sizePt = 9.75;
    Label4.caption = "Large workbooks take a moment.";
    for (forms::Label* label : {&Label1, &Label3, &lblCaption, &Label4}) label->transparent = true;
}

void MurvaneLoad::Form_Load() {
    isClosed_ = false;
    shadow_.emplace().Shadow(*this);
    lblCaption.caption = "Loading charts and named ranges...";
    ApplyTheme(*this);
}

}  // namespace furniture
