#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "forms/controls.h"
#include "forms/form.h"
#include "furniture/shadow.h"
#include "furniture/title_bar.h"
#include "session/office_session.h"

namespace powerpoint {

/// Where the user says how high, how wide and how far from the left pasted shapes stand. It places
/// nothing: it writes the three values to the store in the workbook, for the exports to read.
class LayoutForm : public forms::Form {
public:
    LayoutForm(forms::Desktop& desktop, session::OfficeSession& session);

    void Form_Load() override;
    /// Whether the values have been written since the form was loaded.
    [[nodiscard]] bool isApplied() const { return isApplied_; }
    /// Writes the values and unloads the form; where they can't be written a notice says why, and
    /// the form stays.
    void CloseLayout_Click();

    furniture::TitleBar TitelBar1;
    forms::Frame Frame1;
    std::array<forms::OptionButton, 2> OptionTop;
    forms::Slider TopSlider;
    forms::Label Label1;
    forms::Frame Frame2;
    std::array<forms::OptionButton, 2> OptionWidth;
    forms::Slider WidthSlider;
    forms::Label Label2;
    forms::Frame Frame3;
    std::array<forms::OptionButton, 2> OptionAlign;
    forms::Slider AlignSlider;
    forms::Label Label3;
    forms::CommandButton CloseLayout;

private:
    using Options = std::array<forms::OptionButton, 2>;

    void setCaptions();
    void wireEvents();
    static void showShare(const std::optional<double>& share, Options& options,
                          forms::Slider& slider, std::int32_t position);
    static void choose(forms::Slider& slider, forms::Label& value, std::size_t index);
    void showValues();

    session::OfficeSession& session_;
    bool isApplied_ = false;
    std::optional<furniture::clsShadow> shadow_;
};

/// Opens the form by itself, for the workbook that is open. Whatever keeps it from coming up
/// becomes a notice.
void ShowLayoutUtility(session::OfficeSession& session, forms::Desktop& desktop);

}  // namespace powerpoint
