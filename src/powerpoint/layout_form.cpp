#include "powerpoint/layout_form.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <exception>
#include <optional>

#include "forms/desktop.h"
#include "furniture/theme.h"
#include "office/failure_patterns.h"
#include "session/store_sheet.h"
#include "session/workbook_store.h"

namespace powerpoint {

namespace {

using forms::Place;
using forms::Slider;
using forms::Twips;

constexpr Twips layoutWidth = 9360;
constexpr Twips layoutHeight = 5880;
/// Where the sliders stand while the program chooses.
constexpr double standardTop = 0.25;
constexpr double standardWidth = 0.9;
constexpr double standardLeft = 0.1;

std::array<forms::OptionButton, 2> optionsOf(forms::Form& form, const char* name, Twips lineWidth,
                                             forms::Frame& frame) {
    return {forms::OptionButton(form, name, {240, 360, lineWidth, 300}, &frame),
            forms::OptionButton(form, name, {240, 720, lineWidth, 300}, &frame)};
}

/// Nothing where the first option leaves the choice to the program.
std::optional<double> shareOf(const std::array<forms::OptionButton, 2>& options, double fraction) {
    return options.front().value() ? std::nullopt : std::optional(fraction);
}

/// Between fractions of a slide and positions of a slider, 0 to 100. The slider of the top stands
/// upright: its 100 is the top edge of the slide. What lies outside the slide becomes its nearer
/// edge.
std::int32_t FractionToSlider(double fraction) {
    return static_cast<std::int32_t>(std::nearbyint(std::clamp(fraction, 0.0, 1.0) * 100));
}

std::int32_t TopToSlider(double fraction) {
    return FractionToSlider(1 - fraction);
}

double SliderToFraction(std::int32_t value) {
    return value / 100.0;
}

}  // namespace

LayoutForm::LayoutForm(forms::Desktop& theDesktop, session::OfficeSession& session)
    : Form(theDesktop, "LayoutForm", layoutWidth, layoutHeight),
      TitelBar1(*this, "TitelBar1", {0, 0, layoutWidth, 420}),
      Frame1(*this, "Frame1", {240, 660, 3840, 4260}),
      OptionTop(optionsOf(*this, "OptionTop", 3360, Frame1)),
      TopSlider(*this, "TopSlider", {1680, 1140, 480, 2520}, Slider::Orientation::Vertical,
                &Frame1),
      Label1(*this, "Label1", {240, 3780, 3360, 300}, &Frame1),
      Frame2(*this, "Frame2", {4320, 660, 4800, 2040}),
      OptionWidth(optionsOf(*this, "OptionWidth", 4320, Frame2)),
      WidthSlider(*this, "WidthSlider", {240, 1080, 4320, 480}, Slider::Orientation::Horizontal,
                  &Frame2),
      Label2(*this, "Label2", {240, 1620, 4320, 300}, &Frame2),
      Frame3(*this, "Frame3", {4320, 2880, 4800, 2040}),
      OptionAlign(optionsOf(*this, "OptionAlign", 4320, Frame3)),
      AlignSlider(*this, "AlignSlider", {240, 1080, 4320, 480}, Slider::Orientation::Horizontal,
                  &Frame3),
      Label3(*this, "Label3", {240, 1620, 4320, 300}, &Frame3),
      CloseLayout(*this, "CloseLayout", {layoutWidth - 240 - 1920, 5160, 1920, 480}),
      session_(session) {
    escapeCloses = true;
    setCaptions();
    wireEvents();
}

void LayoutForm::setCaptions() {
    caption = "Murvane";
    TitelBar1.caption = "Murvane";
    Frame1.caption = "Top";
    Frame2.caption = "Width";
    Frame3.caption = "Left";
    OptionTop[0].caption = "Just under the slide title";
    OptionTop[1].caption = "Relative to slide top edge";
    OptionWidth[0].caption = "90% of slide width";
    OptionWidth[1].caption = "% of slide width";
    OptionAlign[0].caption = "Center in slide";
    OptionAlign[1].caption = "Relative to slide left edge";
    TopSlider.accessibleName = "Height on the slide";
    WidthSlider.accessibleName = "Width as a share of the slide's";
    AlignSlider.accessibleName = "Distance from the slide's left edge";
    for (forms::Label* label : {&Label1, &Label2, &Label3}) {
        label->transparent = true;
        label->alignment = forms::Alignment::Centre;
    }
    CloseLayout.caption = "Apply";
    CloseLayout.isDefault = true;
}

void LayoutForm::wireEvents() {
    const auto wire = [this](Options& options, Slider& slider, forms::Label& value) {
        for (std::size_t i = 0; i < options.size(); ++i) {
            options.at(i).onClick = [&slider, &value, i] { choose(slider, value, i); };
        }
        slider.onChange = [this] { showValues(); };
    };
    wire(OptionTop, TopSlider, Label1);
    wire(OptionWidth, WidthSlider, Label2);
    wire(OptionAlign, AlignSlider, Label3);
    CloseLayout.onClick = [this] { CloseLayout_Click(); };
}

void LayoutForm::Form_Load() {
    topmost = true;
    isApplied_ = false;
    shadow_.emplace().Shadow(*this);
    const session::Placement stored = office::orElse(
        [&] { return session::readStoredPlacement(session_); }, session::Placement());
    showShare(stored.top, OptionTop, TopSlider, TopToSlider(stored.top.value_or(standardTop)));
    showShare(stored.width, OptionWidth, WidthSlider,
              FractionToSlider(stored.width.value_or(standardWidth)));
    showShare(stored.left, OptionAlign, AlignSlider,
              FractionToSlider(stored.left.value_or(standardLeft)));
    showValues();
    furniture::ApplyTheme(*this);
}

void LayoutForm::showShare(const std::optional<double>& share, Options& options, Slider& slider,
                           std::int32_t position) {
    for (forms::OptionButton& option : options) option.startWith(false);
    options.at(share ? 1 : 0).setValue(true);
    slider.setValue(position);
}

/// The slider and what it says are dim while the choice is the program's.
void LayoutForm::choose(Slider& slider, forms::Label& value, std::size_t index) {
    slider.enabled = index != 0;
    value.enabled = slider.enabled;
}

void LayoutForm::showValues() {
    Label1.caption = fmt::format("{}% from the top", 100 - TopSlider.value());
    Label2.caption = fmt::format("{}% of the width", WidthSlider.value());
    Label3.caption = fmt::format("{}% from the left", AlignSlider.value());
    // The number of the vertical one counts from below.
    TopSlider.accessibleDescription = Label1.caption;
    WidthSlider.accessibleDescription = Label2.caption;
    AlignSlider.accessibleDescription = Label3.caption;
}

void LayoutForm::CloseLayout_Click() {
    office::ContinueOnFailure scope;
    session::EnsureStoreSheet(session_);
    const bool isStored = scope.attempt([&] {
        session::writeStoredPlacement(
            session_, {shareOf(OptionTop, SliderToFraction(100 - TopSlider.value())),
                       shareOf(OptionWidth, SliderToFraction(WidthSlider.value())),
                       shareOf(OptionAlign, SliderToFraction(AlignSlider.value()))});
    });
    if (!isStored) {
        session::ShowWarningNotice(session_.notices,
                                   fmt::format("The slide position could not be kept in the "
                                               "workbook: {}.",
                                               scope.lastFailure()->description()));
        return;
    }
    isApplied_ = true;
    desktop().unload(*this);
}

void ShowLayoutUtility(session::OfficeSession& session, forms::Desktop& desktop) {
    if (session.ActiveBook.isNothing()) {
        session::ShowWarningNotice(session.notices,
                                   "An Excel workbook must be open to set slide position.");
        return;
    }
    try {
        if (!session::CanKeepStore(session)) return;
        session::EnsureStoreSheet(session);
        LayoutForm form(desktop, session);
        desktop.show(form, forms::ShowMode::Modal);
    } catch (const office::SuiteLost&) {
        throw;
    } catch (const std::exception&) {
        session::ShowWarningNotice(session.notices, "Could not open the slide position utility.");
    }
}

}  // namespace powerpoint
