#pragma once

#include <array>
#include <optional>

#include "forms/controls.h"
#include "forms/form.h"
#include "furniture/shadow.h"
#include "furniture/title_bar.h"
#include "session/picture_look.h"

namespace powerpoint {

/// Where the look of what an export puts on slides is chosen. There is no way back: the choice
/// counts from the click on, and the form begins without a style each time it opens.
class PredefinedStyles : public forms::Form {
public:
    PredefinedStyles(forms::Desktop& desktop, session::PictureLook& chosen);

    void Form_Load() override;
    void OptionStyle_Click(int index);
    void Styles_Click();

    furniture::TitleBar TitelBar1;
    forms::Image Image1;
    forms::Label Label1;
    forms::Frame Frame3;
    forms::Image Picture1;
    /// By the numbers of the looks; on the form they stand from right to left.
    std::array<forms::OptionButton, 6> OptionStyle;
    forms::CommandButton Styles;

private:
    session::PictureLook& chosen_;
    std::optional<furniture::clsShadow> shadow_;
};

}  // namespace powerpoint
