#include "furniture/shadow.h"

#include <array>

namespace furniture {

namespace {

constexpr std::uint32_t systemColourBit = 0x80000000U;

/// The numbered system colours in their classic scheme, the only one that all platforms share.
constexpr std::array<std::uint32_t, 25> systemColours = {
    0xC8C8C8, 0x000000, 0x99B4D1, 0xBFCDDB, 0xF0F0F0, 0xFFFFFF, 0x646464, 0x000000, 0x000000,
    0x000000, 0xB4B4B4, 0xF4F7FC, 0xABABAB, 0x0078D7, 0xFFFFFF, 0xF0F0F0, 0xA0A0A0, 0x6D6D6D,
    0x000000, 0x000000, 0xFFFFFF, 0x696969, 0xE3E3E3, 0x000000, 0xFFFFE1};

forms::Colour resolved(std::uint32_t color) {
    if ((color & systemColourBit) == 0) return forms::Colour::bgr(color);
    const std::uint32_t number = color & ~systemColourBit;
    return number < systemColours.size() ? forms::Colour::rgb(systemColours.at(number))
                                         : forms::Colour{};
}

}  // namespace

clsShadow::~clsShadow() {
    if (form_ != nullptr) form_->shadowDepthPx = 0;
}

bool clsShadow::Shadow(forms::Form& form) {
    if (form_ != nullptr) throw ShadowRefused();
    form_ = &form;
    redraw();
    return true;
}

void clsShadow::setColor(std::uint32_t color) {
    if (color == color_) return;
    color_ = color;
    redraw();
}

void clsShadow::setDepth(std::int32_t depthPx) {
    if (depthPx == depthPx_) return;
    depthPx_ = depthPx;
    redraw();
}

void clsShadow::setTransparency(std::uint8_t opacity) {
    if (opacity == opacity_) return;
    opacity_ = opacity;
    redraw();
}

void clsShadow::redraw() const {
    if (form_ == nullptr) return;
    form_->shadowDepthPx = depthPx_;
    form_->shadowOpacity = opacity_;
    form_->shadowColour = resolved(color_);
}

}  // namespace furniture
