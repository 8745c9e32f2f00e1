#pragma once

#include <cstdint>
#include <stdexcept>

#include "forms/form.h"

namespace furniture {

/// Why an instance refuses a form.
class ShadowRefused : public std::logic_error {
public:
    ShadowRefused() : logic_error("Only a single form per cShadow instance is allowed") {}
};

/// The soft edge around a form. A form makes one instance in its `Form_Load`, keeps it in a field
/// and attaches itself once; the edge goes with the instance.
class clsShadow {
public:
    clsShadow() = default;
    clsShadow(const clsShadow&) = delete;
    clsShadow& operator=(const clsShadow&) = delete;
    ~clsShadow();

    /// Gives the form its edge; true when it has it. `ShadowRefused` for a second call.
    bool Shadow(forms::Form& form);

    /// 0xBBGGRR, or a number of a system colour with the top bit set.
    [[nodiscard]] std::uint32_t Color() const { return color_; }
    void setColor(std::uint32_t color);
    /// Width of the edge in pixels.
    [[nodiscard]] std::int32_t Depth() const { return depthPx_; }
    void setDepth(std::int32_t depthPx);
    /// Opacity of its strongest part, 0 to 255.
    [[nodiscard]] std::uint8_t Transparency() const { return opacity_; }
    void setTransparency(std::uint8_t opacity);

private:
    void redraw() const;

    forms::Form* form_ = nullptr;
    std::uint32_t color_ = 0;
    std::int32_t depthPx_ = 7;
    std::uint8_t opacity_ = 140;
};

}  // namespace furniture
