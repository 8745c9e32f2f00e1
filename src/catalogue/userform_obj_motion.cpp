// The panels of the main form that open and close step by step.

#include <algorithm>

#include "catalogue/userform_obj.h"
#include "office/failure_patterns.h"

namespace catalogue {

namespace {

constexpr forms::Twips panelStep = 150;
constexpr forms::Twips slidePanelWidth = 3135;
constexpr forms::Twips captionPanelWidth = 3615;

/// One step of a growing panel. True once it has its full width.
bool grow(forms::Control& panel, forms::Twips fullWidth) {
    if (panel.place.width < fullWidth) panel.place.width += panelStep;
    if (panel.place.width < fullWidth) return false;
    panel.place.width = fullWidth;
    return true;
}

}  // namespace

void UserformObj::runOnlyTimer(int index) {
    for (int i = 1; i <= 4; ++i) timer(i).enabled = i == index;
}

void UserformObj::Timer1_Timer(int index) {
    switch (index) {
        case 2:
            return growPreview();
        case 4:
            return moveSlidePanel();
        case 5:
            return growCaptionPanel();
        default:
            return;
    }
}

void UserformObj::growPreview() {
    if (grow(imgChart, previewWidth_)) timer(2).enabled = false;
}

void UserformObj::growCaptionPanel() {
    if (grow(TitlesFrame, captionPanelWidth)) timer(5).enabled = false;
    SlideTitle.place.width = std::max<forms::Twips>(TitlesFrame.place.width - 3, 0);
}

void UserformObj::moveSlidePanel() {
    constexpr forms::Twips closedWidth = 5;
    if (slidePanelMotion_ == SlidePanelMotion::Opening) {
        if (!grow(SlideNb, slidePanelWidth)) return;
    } else if (SlideNb.place.width > closedWidth) {
        // Excel is asked for the greater of the two; with Excel gone the width rests for this tick.
        office::ContinueOnFailure scope;
        scope.attempt([this] {
            SlideNb.place.width =
                session_.ExcelApp.call("Max", SlideNb.place.width - panelStep, 0).toLong();
        });
        return;
    } else {
        SlideNb.place.width = 0;
    }
    timer(4).enabled = false;
    resizeColumns();
    recolourRows();
}

}  // namespace catalogue
