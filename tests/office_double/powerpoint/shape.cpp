#include "office_double/powerpoint/shape.h"

#include "office/model/powerpoint/objects.h"
#include "office_double/powerpoint/presentation.h"

namespace office_double {

Shape& Shape::text(std::string words) {
    words_ = std::move(words);
    return *this;
}

Shape& Shape::refuseChanges() {
    refusesChanges_ = true;
    return *this;
}

office::Object Shape::handle() {
    return model::shapeObject(slide_.presentation().home(), shared_from_this());
}

void Shape::moveTo(const model::Point& corner) {
    changed().box_.left = corner.left;
    box_.top = corner.top;
}

void Shape::resize(const model::Size& size) {
    changed().box_.width = size.width;
    box_.height = size.height;
}

void Shape::setOutline(model::Outline outline) {
    changed().outline_ = outline;
    adjustments_.clear();
    if (outline == model::Outline::RoundedRectangle) adjustments_.push_back(1.0 / 6);
}

std::optional<double> Shape::adjustment(std::int32_t place) {
    const auto index = static_cast<std::size_t>(place) - 1;
    if (index >= adjustments_.size()) return std::nullopt;
    return adjustments_[index];
}

bool Shape::setAdjustment(std::int32_t place, double value) {
    if (!adjustment(place)) return false;
    changed().adjustments_[static_cast<std::size_t>(place) - 1] = value;
    return true;
}

void Shape::remove() {
    slide_.removeShape(*this);
}

Shape& Shape::changed() {
    if (refusesChanges_) model::refuse("Shape", "This shape can't be changed");
    return *this;
}

void Shape::growWithText() {
    constexpr double marginPt = 14.4;
    if (kind_ != Kind::TextBox || wraps_) return;
    box_.width = marginPt + static_cast<double>(words_.size()) * font_.sizePt * 0.5;
}

void Shape::setWords(const std::string& words) {
    changed().words_ = words;
    growWithText();
}

void Shape::setFont(const model::FontChange& change) {
    if (change.name) changed().font_.name = *change.name;
    if (change.sizePt) changed().font_.sizePt = *change.sizePt;
    if (change.colour) changed().font_.colour = *change.colour;
    growWithText();
}

}  // namespace office_double
