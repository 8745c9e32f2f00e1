#include "office_double/powerpoint/slide.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "office_double/loose_object.h"
#include "office_double/powerpoint/presentation.h"
#include "office_double/powerpoint/window.h"
#include "support/png_file.h"

namespace office_double {

const office::MemberTable<Slide>& Slide::members() {
    using Self = Slide;
    static const auto table = office::MemberTable<Self>("Slide")
                                  .property("SlideIndex", &Self::readIndex)
                                  .property("SlideID", reading(&Self::id_))
                                  .property("Name", reading(&Self::name_), writing(&Self::name_))
                                  .property("Layout", &Self::readLayout, &Self::setLayout)
                                  .property("Shapes", &Self::readShapes)
                                  .method("Select", {}, &Self::select)
                                  .method("Delete", {}, &Self::deleteSlide);
    return table;
}

Slide::Slide(Owner presentation, std::int32_t layout, std::int32_t id)
    : Doubled(presentation),
      name_(fmt::format("Slide{}", id - 255)),
      layout_(layout),
      id_(id) {}

Shape& Slide::shape(Shape::Kind kind, const std::string& name, const Box& box) {
    shapes_.push_back(std::make_shared<Shape>(*this, kind, name, box));
    return *shapes_.back();
}

Presentation& Slide::presentation() const {
    return parent<Presentation>();
}

DocumentWindow& Slide::window() const {
    return presentation().window();
}

void Slide::makePlaceholders() {
    const auto layout = static_cast<Layout>(layout_);
    if (layout == Layout::Blank || title() != nullptr) return;
    const double width = presentation().slideWidth();
    const double height = presentation().slideHeight();
    const auto add = [&](const char* name, double top, double share) -> Shape& {
        return shape(Shape::Kind::Placeholder, fmt::format("{} {}", name, shapes_.size() + 1),
                     {width * 0.07, height * top, width * 0.86, height * share});
    };
    add("Title", 0.05, 0.19);
    title_ = shapes_.back();
    if (layout == Layout::Title) add("Subtitle", 0.55, 0.24);
    if (layout == Layout::Text) add("Content Placeholder", 0.27, 0.63);
}

void Slide::removeShape(Shape& shape) {
    shape.remove();
    std::erase_if(shapes_, [&](const auto& held) { return held.get() == &shape; });
}

Value Slide::readIndex() {
    return count(presentation().indexOf(*this));
}

Value Slide::readShapes() {
    auto made = collection(*this, "Shapes", [this] { return itemsOf(shapes_); });
    made->reads("HasTitle", [this] { return triState(title() != nullptr); });
    made->reads("Title", [this] {
        if (title() != nullptr) return Value(title()->handle());
        throw Failure(FailureNumber::ApplicationDefined, "Shapes.Title", "The slide has no title");
    });
    made->method("AddPicture",
                 {"FileName", "LinkToFile", "SaveWithDocument", "Left", "Top", "Width", "Height"},
                 [this](const CallArguments& arguments) { return addPicture(arguments); });
    const std::vector<std::string> label = {"Orientation", "Left", "Top", "Width", "Height"};
    made->method("AddLabel", label,
                 [this](const CallArguments& arguments) { return addLabel(arguments); });
    made->method("AddTextbox", label,
                 [this](const CallArguments& arguments) { return addLabel(arguments); });
    return valueOf(made);
}

void Slide::setLayout(const Value& layout) {
    layout_ = layout.toLong();
    makePlaceholders();
}

namespace {

/// A PNG keeps its density in whole pixels a metre; without rounding, 240 points would come back as
/// 239.991.
double rounded(double points) {
    return std::round(points * 10) / 10;
}

}  // namespace

Value Slide::addPicture(const CallArguments& arguments) {
    support::PngSize natural;
    try {
        natural = support::pngSizeOf(arguments.at(0).toText());
    } catch (const Failure&) {
        throw;
    } catch (const std::runtime_error& error) {
        throw Failure(FailureNumber::FileNotFound, arguments.source(), error.what());
    }
    const double width = arguments.at(5, -1.0).toDouble();
    const double height = arguments.at(6, -1.0).toDouble();
    return shape(Shape::Kind::Picture, fmt::format("Picture {}", shapes_.size() + 1),
                 {arguments.at(3).toDouble(), arguments.at(4).toDouble(),
                  width < 0 ? rounded(natural.widthPoints()) : width,
                  height < 0 ? rounded(natural.heightPoints()) : height})
        .handle();
}

Value Slide::addLabel(const CallArguments& arguments) {
    return shape(Shape::Kind::TextBox, fmt::format("TextBox {}", shapes_.size() + 1),
                 {arguments.at(1).toDouble(), arguments.at(2).toDouble(),
                  arguments.at(3).toDouble(), arguments.at(4).toDouble()})
        .handle();
}

Value Slide::select(const CallArguments&) {
    window().selectSlide(*this);
    return {};
}

Value Slide::deleteSlide(const CallArguments&) {
    presentation().removeSlide(*this);
    return {};
}

}  // namespace office_double
