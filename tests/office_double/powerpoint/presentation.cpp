#include "office_double/powerpoint/presentation.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "office_double/powerpoint/application.h"
#include "support/png_file.h"

namespace office_double {

namespace {

/// The item at a place from 1; null if there is none.
template <class Item>
std::shared_ptr<Item> at(const std::vector<std::shared_ptr<Item>>& items, std::int32_t place) {
    const auto index = static_cast<std::size_t>(place) - 1;
    return index < items.size() ? items[index] : nullptr;
}

/// A PNG keeps its density in whole pixels a metre; without rounding, 240 points would come back as
/// 239.991.
double rounded(double points) {
    return std::round(points * 10) / 10;
}

}  // namespace

Shape& Slide::shape(Shape::Kind kind, std::string name, const Box& box) {
    shapes_.push_back(std::make_shared<Shape>(*this, kind, std::move(name), box));
    return *shapes_.back();
}

void Slide::makePlaceholders() {
    const auto layout = static_cast<Layout>(layout_);
    if (layout == Layout::Blank || title() != nullptr) return;
    const auto [width, height] = presentation_.slideSize();
    const auto add = [&, w = width, h = height](const char* name, double top, double share) {
        shape(Shape::Kind::Placeholder, freshName(name), {w * 0.07, h * top, w * 0.86, h * share});
    };
    add("Title", 0.05, 0.19);
    title_ = shapes_.back();
    if (layout == Layout::Title) add("Subtitle", 0.55, 0.24);
    if (layout == Layout::Text) add("Content Placeholder", 0.27, 0.63);
}

void Slide::removeShape(Shape& shape) {
    shape.markGone();
    std::erase_if(shapes_, [&](const auto& held) { return held.get() == &shape; });
}

void Slide::markGone() {
    isGone_ = true;
    for (const auto& shape : shapes_) shape->markGone();
}

std::int32_t Slide::place() {
    const auto& all = presentation_.slides();
    const auto self =
        std::find_if(all.begin(), all.end(), [&](const auto& held) { return held.get() == this; });
    return static_cast<std::int32_t>(self - all.begin()) + 1;
}

void Slide::setLayout(std::int32_t layout) {
    layout_ = layout;
    makePlaceholders();
}

model::DeckShapePtr Slide::shapeAt(std::int32_t place) {
    return at(shapes_, place);
}

model::DeckShapePtr Slide::addPicture(const std::string& file, const model::Point& corner) {
    try {
        const support::PngSize natural = support::pngSizeOf(file);
        shape(Shape::Kind::Picture, freshName("Picture"),
              {corner.left, corner.top, rounded(natural.widthPoints()),
               rounded(natural.heightPoints())});
    } catch (const std::runtime_error& error) {
        throw office::Failure(office::FailureNumber::FileNotFound, "Shapes.AddPicture",
                              error.what());
    }
    return shapes_.back();
}

model::DeckShapePtr Slide::addLabel(const model::Point& corner, const model::Size& size) {
    return shape(Shape::Kind::TextBox, freshName("TextBox"),
                 {corner.left, corner.top, size.width, size.height})
        .shared_from_this();
}

void Slide::remove() {
    presentation_.removeSlide(*this);
}

std::string Slide::freshName(const char* kind) const {
    return fmt::format("{} {}", kind, shapes_.size() + 1);
}

Slide& Presentation::addSlide(Layout layout) {
    addSlide(slideCount() + 1, static_cast<std::int32_t>(layout));
    return *slides_.back();
}

Presentation& Presentation::addSlides(int number, Layout layout) {
    for (int i = 0; i < number; ++i) addSlide(layout);
    return *this;
}

Presentation& Presentation::slideSize(double width, double height) {
    slideSize_ = {width, height};
    return *this;
}

Presentation& Presentation::runSlideShow() {
    showRuns_ = true;
    return *this;
}

model::InDeck Presentation::home() {
    return {application_.guard(), shared_from_this()};
}

void Presentation::removeSlide(Slide& slide) {
    slide.markGone();
    std::erase_if(slides_, [&](const auto& held) { return held.get() == &slide; });
}

void Presentation::markGone() {
    isGone_ = true;
    for (const auto& slide : slides_) slide->markGone();
}

model::DeckSlidePtr Presentation::slideAt(std::int32_t place) {
    return at(slides_, place);
}

model::DeckSlidePtr Presentation::addSlide(std::int32_t place, std::int32_t layout) {
    if (place < 1 || place > slideCount() + 1) return nullptr;
    auto slide = std::make_shared<Slide>(*this, layout);
    slides_.insert(slides_.begin() + place - 1, slide);
    slide->makePlaceholders();
    return slide;
}

void Presentation::activate() {
    application_.activate(*this);
}

void Presentation::saveCopy(const std::string& path) {
    const std::string text = "A copy of " + name_ + "\n";
    support::writeBytes(path, {text.begin(), text.end()});
}

void Presentation::close() {
    application_.closePresentation(*this);
}

model::DeckSlidePtr Presentation::slideInView() {
    if (const auto shown = inView_.lock(); shown && !shown->isGone()) return shown;
    return at(slides_, 1);
}

void Presentation::show(const model::DeckSlidePtr& slide) {
    unselect();
    inView_ = slide;
}

std::vector<model::DeckShapePtr> Presentation::selectedShapes() {
    const auto shape = selected_.lock();
    if (!shape || shape->isGone()) return {};
    return {shape};
}

void Presentation::select(const model::DeckShapePtr& shape) {
    if (slideInView().get() != &dynamic_cast<Shape&>(*shape).slide())
        model::refuse("Shape.Select", "Only a shape of the slide in view can be selected");
    selected_ = shape;
}

}  // namespace office_double
