#pragma once

#include <optional>

#include "forms/controls.h"
#include "forms/form.h"
#include "furniture/progress_bar.h"
#include "furniture/shadow.h"
#include "furniture/title_bar.h"

namespace furniture {

/// The form that shows how far the inventory of a workbook is, before the main form comes up.
class MurvaneLoad : public forms::Form {
public:
    explicit MurvaneLoad(forms::Desktop& desktop);

    void Form_Load() override;
    void Form_Unload() override { isClosed_ = true; }
    /// Whether it has been closed since it was loaded last.
    [[nodiscard]] bool isClosed() const { return isClosed_; }

    TitleBar TitelBar1;
    forms::Image Image1;
    forms::Label Label1;
    forms::Label Label3;
    forms::Label lblCaption;
    ProgressBar prbHorizontalOnLoad;
    forms::Label Label4;

private:
    bool isClosed_ = false;
    std::optional<clsShadow> shadow_;
};

}  // namespace furniture
