#include "panels/about_form.h"

#include <fmt/format.h>

#include "forms/desktop.h"
#include "furniture/theme.h"
#include "session/web_pages.h"

namespace panels {

namespace {

constexpr forms::Twips width = 7200;
constexpr forms::Twips height = 4080;

}  // namespace

MurvaneAbout::MurvaneAbout(forms::Desktop& theDesktop, session::OfficeSession& session,
                           std::string_view version)
    : Form(theDesktop, "MurvaneAbout", width, height),
      TitelBar1(*this, "TitelBar1", {0, 0, width, 420}),
      Image1(*this, "Image1", {360, 780, 960, 960}),
      lblName(*this, "lblName", {1560, 720, 5280, 480}),
      lblVersion(*this, "lblVersion", {1560, 1200, 5280, 300}),
      lblPurpose(*this, "lblPurpose", {1560, 1500, 5280, 300}),
      btnOverview(*this, "btnOverview", {360, 2280, 2040, 480}),
      btnFaq(*this, "btnFaq", {2580, 2280, 2040, 480}),
      btnContact(*this, "btnContact", {4800, 2280, 2040, 480}),
      btnClose(*this, "btnClose", {4800, 3240, 2040, 480}) {
    caption = "Murvane";
    TitelBar1.caption = " About Murvane";
    Image1.setPicture({.bytes = {}, .drawing = "icon:murvane"});
    lblName.caption = "Murvane";
    lblName.font = {.name = "Tahoma", .sizePt = 18, .bold = true};
    lblVersion.caption = fmt::format("Version {}", version);
    lblPurpose.caption = "From Excel to slides, documents and pictures";
    for (forms::Label* label : {&lblName, &lblVersion, &lblPurpose}) label->transparent = true;

    btnOverview.caption = "Documentation";
    btnOverview.onClick = [&session] { session::OpenDocOverview(session); };
    btnFaq.caption = "Questions";
    btnFaq.onClick = [&session] { session::OpenDocFaq(session); };
    btnContact.caption = "Contact";
    btnContact.onClick = [&session] { session::OpenContactPage(session); };
    btnClose.caption = "Close";
    btnClose.isDefault = true;
    btnClose.isCancel = true;
    btnClose.onClick = [this] { desktop().unload(*this); };
}

void MurvaneAbout::Form_Load() {
    topmost = true;
    shadow_.emplace().Shadow(*this);
    focus = &btnClose;
    furniture::ApplyTheme(*this);
}

void ShowAboutForm(session::OfficeSession& session, forms::Desktop& desktop,
                   std::string_view version) {
    MurvaneAbout form(desktop, session, version);
    desktop.show(form, forms::ShowMode::Modal);
}

}  // namespace panels
