#include "furniture/progress_form.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>

#include "furniture/theme.h"

namespace furniture {

Progress::Progress(forms::Desktop& desktop)
    : Form(desktop, "Progress", 6000, 2220),
      lblStatus(*this, "lblStatus", {360, 300, 5280, 300}),
      ONe(*this, "ONe", {360, 1320, 600, 240}),
      Label3(*this, "Label3", {960, 1320, 600, 240}),
      Of(*this, "Of", {1560, 1320, 600, 240}),
      prbHorizontal(*this, "prbHorizontal", {360, 780, 5280, 420}),
      Cancel(*this, "Cancel", {2040, 1440, 1920, 480}) {
    caption = "Murvane";
    lblStatus.transparent = true;
    lblStatus.alignment = forms::Alignment::Centre;
    lblStatus.font = {.name = "Tahoma", .sizePt = 11, .bold = true};
    Label3.caption = "of";
    prbHorizontal.accessibleName = "Progress of the export";
    for (forms::Label* value : {&ONe, &Label3, &Of}) value->visible = false;
    Cancel.isCancel = true;
    Cancel.onClick = [this] { Cancel_Click(); };
}

void Progress::Form_Load() {
    topmost = true;
    shadow_.emplace().Shadow(*this);
    Cancel.caption = "Cancel";
    Cancel.enabled = true;
    showItem(0, 0);
    ApplyTheme(*this);
}

void Progress::RefreshProgressDisplay() {
    lblStatus.caption = ONe.caption + " of " + Of.caption;
}

void Progress::Cancel_Click() {
    isCancelled_ = true;
    Cancel.enabled = false;
    Cancel.caption = "Ending...";
}

void Progress::showItem(int item, int total) {
    total = std::max(total, 1);
    ONe.caption = std::to_string(item);
    Of.caption = std::to_string(total);
    RefreshProgressDisplay();
    prbHorizontal.setValue(item * 100 / total);
    prbHorizontal.caption = fmt::format("{}%", prbHorizontal.value());
}

}  // namespace furniture
