#pragma once

#include <optional>
#include <string_view>

#include "forms/controls.h"
#include "forms/form.h"
#include "furniture/shadow.h"
#include "furniture/title_bar.h"
#include "session/office_session.h"

namespace panels {

/// The product's name, its version and the way to its web pages.
class MurvaneAbout : public forms::Form {
public:
    MurvaneAbout(forms::Desktop& desktop, session::OfficeSession& session,
                 std::string_view version);

    void Form_Load() override;

    furniture::TitleBar TitelBar1;
    forms::Image Image1;
    forms::Label lblName;
    forms::Label lblVersion;
    forms::Label lblPurpose;
    forms::CommandButton btnOverview;
    forms::CommandButton btnFaq;
    forms::CommandButton btnContact;
    forms::CommandButton btnClose;

private:
    std::optional<furniture::clsShadow> shadow_;
};

/// Shows it modally.
void ShowAboutForm(session::OfficeSession& session, forms::Desktop& desktop,
                   std::string_view version);

}  // namespace panels
