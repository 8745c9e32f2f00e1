#pragma once

#include <functional>
#include <optional>

#include "forms/controls.h"
#include "forms/form.h"
#include "furniture/progress_bar.h"
#include "furniture/shadow.h"

namespace furniture {

/// The small form that shows how far an export is.
class Progress : public forms::Form {
public:
    /// `checkedCount` tells how many items the export at hand takes.
    Progress(forms::Desktop& desktop, std::function<int()> checkedCount);

    void Form_Load() override;
    /// Puts the item at hand and the total into the line that is seen.
    void RefreshProgressDisplay();

    forms::Label lblStatus;
    /// The item at hand, the word between and the total: values, of which `lblStatus` shows the
    /// sum.
    forms::Label ONe;
    forms::Label Label3;
    forms::Label Of;
    ProgressBar prbHorizontal;

private:
    std::function<int()> checkedCount_;
    std::optional<clsShadow> shadow_;
};

}  // namespace furniture
