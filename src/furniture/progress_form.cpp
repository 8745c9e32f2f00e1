#include "furniture/progress_form.h"

#include <algorithm>
#include <string>
#include <utility>

#include "furniture/theme.h"

namespace furniture {

Progress::Progress(forms::Desktop& desktop, std::function<int()> checkedCount)
    : Form(desktop, "Progress", 6000, 1680),
      lblStatus(*this, "lblStatus", {360, 300, 5280, 300}),
      ONe(*this, "ONe", {360, 1320, 600, 240}),
      Label3(*this, "Label3", {960, 1320, 600, 240}),
      Of(*this, "Of", {1560, 1320, 600, 240}),
      prbHorizontal(*this, "prbHorizontal", {360, 780, 5280, 420}),
      checkedCount_(std::move(checkedCount)) {
    caption = "Murvane";
    lblStatus.transparent = true;
    lblStatus.alignment = forms::Alignment::Centre;
    lblStatus.font = {.name = "Tahoma", .sizePt = 11, .bold = true};
    Label3.caption = "of";
    prbHorizontal.accessibleName = "Progress of the export";
    for (forms::Label* value : {&ONe, &Label3, &Of}) value->visible = false;
}

void Progress::Form_Load() {
    topmost = true;
    shadow_.emplace().Shadow(*this);
    Of.caption = std::to_string(std::max(checkedCount_(), 1));
    ONe.caption = "0";
    RefreshProgressDisplay();
    prbHorizontal.setValue(0);
    prbHorizontal.caption = "0%";
    ApplyTheme(*this);
}

void Progress::RefreshProgressDisplay() {
    lblStatus.caption = ONe.caption + " of " + Of.caption;
}

}  // namespace furniture
