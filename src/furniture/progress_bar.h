#pragma once

#include <cstdint>
#include <functional>

#include "forms/controls.h"

namespace furniture {

/// A bar that shows a percentage, with a caption over it.
class ProgressBar : public forms::Control {
public:
    enum class Orientation { Horizontal, Vertical };

    ProgressBar(forms::Form& owner, std::string name, forms::Place at,
                forms::Frame* frame = nullptr)
        : Control(owner, forms::ControlClass::ProgressBar, std::move(name), at, frame) {}

    /// 0 to 100; anything else is brought to the nearer end.
    [[nodiscard]] std::int32_t value() const { return value_; }
    void setValue(std::int32_t value);
    /// 0 and no caption, without an event.
    void Clear();

    forms::Colour BarColor = forms::Colour::rgb(0x2563EB);
    forms::Colour BorderColor = forms::Colour::rgb(0x334155);
    bool BorderDefault = true;
    Orientation orientation = Orientation::Horizontal;
    /// Where the caption stands.
    forms::Alignment Alignment = forms::Alignment::Centre;
    std::function<void()> onChange;

private:
    std::int32_t value_ = 0;
};

}  // namespace furniture
