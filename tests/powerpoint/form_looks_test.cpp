#include <fmt/format.h>

#include "catalogue/userform_obj.h"
#include "export_stage.h"
#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "furniture/load_form.h"
#include "furniture/progress_form.h"
#include "panels/about_form.h"
#include "panels/notice_form.h"
#include "powerpoint/layout_form.h"
#include "powerpoint/options_dialog.h"
#include "powerpoint/picture_styles_form.h"
#include "support/approved.h"

namespace {

std::string described(const std::optional<forms::Colour>& colour) {
    return colour ? fmt::format("#{:02X}{:02X}{:02X}", colour->red, colour->green, colour->blue)
                  : "-";
}

std::string described(const forms::Place& place) {
    return fmt::format("{},{} {}x{}", place.left, place.top, place.width, place.height);
}

/// What only some kinds of controls have.
std::string particulars(const forms::Control& control) {
    if (const auto* label = dynamic_cast<const forms::Label*>(&control))
        return fmt::format("aligned {}", static_cast<int>(label->alignment));
    if (const auto* button = dynamic_cast<const forms::CommandButton*>(&control))
        return fmt::format("{}{}", button->isDefault ? "default " : "",
                           button->isCancel ? "cancel" : "");
    if (const auto* box = dynamic_cast<const forms::CheckBox*>(&control))
        return fmt::format("state {}", static_cast<int>(box->value()));
    if (const auto* option = dynamic_cast<const forms::OptionButton*>(&control))
        return option->value() ? "chosen" : "";
    if (const auto* text = dynamic_cast<const forms::TextBox*>(&control))
        return fmt::format("'{}'{}", text->text(), text->readOnly ? " read only" : "");
    if (const auto* slider = dynamic_cast<const forms::Slider*>(&control))
        return fmt::format("{} of {}..{} by {} and {}", slider->value(), slider->minimum,
                           slider->maximum, slider->smallChange, slider->largeChange);
    if (const auto* image = dynamic_cast<const forms::Image*>(&control))
        return image->stretch ? "stretched" : "";
    if (const auto* list = dynamic_cast<const forms::ListView*>(&control)) {
        std::string columns;
        for (const auto& column : list->columns)
            columns += fmt::format("{} {} {} ", column.text, column.width,
                                   static_cast<int>(column.alignment));
        return columns + fmt::format("boxes {} grid {} scroll bar {} first row {}",
                                     list->checkBoxes, list->gridLines, list->horizontalScrollBar,
                                     list->rows->text(0, 0));
    }
    return {};
}

std::string described(const forms::Form& form) {
    std::string all =
        fmt::format("\n{} '{}' {}x{} {}{}{}{}shadow {} {}{}\n", form.name(), form.caption,
                    form.place.width, form.place.height, described(form.backColour),
                    form.resizable ? " resizable " : " ", form.escapeCloses ? "escape closes " : "",
                    form.topmost ? "topmost " : "", form.shadowDepthPx, form.shadowOpacity,
                    form.focus != nullptr ? " focus " + form.focus->name() : "");
    for (const forms::Control* control : form.controls()) {
        const forms::Control& it = *control;
        std::string line = fmt::format(
            "  {}{} [{}]{}{} '{}' {} {}{} {}{} layer {} '{}' '{}' {}", it.name(),
            it.container() != nullptr ? " in " + it.container()->name() : "", described(it.place),
            it.visible ? "" : " hidden", it.enabled ? "" : " disabled", it.caption, it.font.name,
            it.font.sizePt, it.font.bold ? " bold" : "",
            described(it.backColour) + " " + described(it.foreColour),
            it.transparent ? " clear" : "", it.layer(), it.toolTip, it.accessibleName,
            particulars(it));
        line.erase(line.find_last_not_of(' ') + 1);
        all += line + "\n";
    }
    for (const forms::Timer* timer : form.timers())
        all += fmt::format("  timer {}{}\n", timer->interval.count(), timer->enabled ? " on" : "");
    return all;
}

using Forms = stage::ExportStage;

/// Every form as it comes up: text, place, order, type and colour of each control.
TEST_F(Forms, LookAsApproved) {
    using forms::ShowMode;
    forms_double::WindowlessDesktop desktop;
    book.sheet("Sales").chart("Chart 1").define("Parts", "A1:A5,C1:C5");
    deck.addSlides(1);
    session.PowerPointFound = true;
    std::string all;
    const auto show = [&](forms::Form& form) {
        desktop.show(form, ShowMode::Modeless);
        all += described(form);
    };
    const auto advance = [&](forms::Form& form, int milliseconds) {
        desktop.advance(std::chrono::milliseconds(milliseconds));
        all += described(form);
    };
    catalogue::UserformObj main(desktop, session, {});
    show(main);
    advance(main, 40);
    advance(main, 1000);
    forms_double::choose(main, "OptionPredefSlides");
    forms_double::choose(main, "Option1", 2);
    advance(main, 40);
    powerpoint::Dialog dialog(desktop, session, main.list(), main.choices());
    powerpoint::LayoutForm layout(desktop, session);
    auto style = session::PictureLook::None;
    powerpoint::PredefinedStyles styles(desktop, style);
    panels::MurvaneAbout about(desktop, session, "1.2.3");
    panels::MurvaneNotice notice(desktop, host, {.Html = "page", .Title = "Title", .Buttons = 33});
    furniture::MurvaneLoad load(desktop);
    furniture::Progress working(desktop);
    for (forms::Form* form : std::initializer_list<forms::Form*>{&dialog, &layout, &styles, &about,
                                                                 &notice, &load, &working})
        show(*form);
    advance(notice, 200);
    support::expectApprovedText(all, "forms.txt");
}

}  // namespace
