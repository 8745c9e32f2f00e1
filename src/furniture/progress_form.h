#pragma once

#include <optional>

#include "forms/controls.h"
#include "forms/form.h"
#include "furniture/progress_bar.h"
#include "furniture/shadow.h"

namespace furniture {

/// The small form that shows how far an export is, and where the user ends it early.
class Progress : public forms::Form {
public:
    explicit Progress(forms::Desktop& desktop);

    void Form_Load() override;
    void Form_Unload() override { isCancelled_ = true; }
    /// Puts the item at hand and the total into the line that is seen.
    void RefreshProgressDisplay();
    void Cancel_Click();

    /// Forgets that an earlier export was cancelled.
    void begin() { isCancelled_ = false; }
    /// Labels and bar for the item `item` of `total`.
    void showItem(int item, int total);
    /// Whether the user has pressed Cancel or Escape, or has closed the form.
    [[nodiscard]] bool isCancelled() const { return isCancelled_; }

    forms::Label lblStatus;
    /// The item at hand, the word between and the total: values, of which `lblStatus` shows the
    /// sum.
    forms::Label ONe;
    forms::Label Label3;
    forms::Label Of;
    ProgressBar prbHorizontal;
    forms::CommandButton Cancel;

private:
    bool isCancelled_ = false;
    std::optional<clsShadow> shadow_;
};

}  // namespace furniture
