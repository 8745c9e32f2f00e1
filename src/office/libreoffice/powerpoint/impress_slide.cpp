#include "office/libreoffice/powerpoint/impress_slide.h"

#include <com/sun/star/graphic/XGraphic.hpp>
#include <com/sun/star/lang/IndexOutOfBoundsException.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/objects/picture_graphic.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/units.h"

namespace libreoffice::powerpoint {

namespace {

/// Numbers above this one in a name are dates and the like, and not counted on from.
constexpr std::int32_t highestCounter = 9999;

/// The counter that a shape's name ends with; 0 if there is none.
std::int32_t counterOf(std::string_view name) {
    const auto start = name.find_last_not_of("0123456789") + 1;  // npos + 1 is 0: digits alone
    std::int32_t number = 0;
    std::from_chars(name.data() + start, name.data() + name.size(), number);
    return number <= highestCounter ? number : 0;
}

}  // namespace

const uno::Reference<css::beans::XPropertySet>& ImpressSlide::properties() {
    if (!properties_.is()) properties_ = as<css::beans::XPropertySet>(page_);
    return properties_;
}

ImpressShapePtr ImpressSlide::title() {
    const std::int32_t count = shapeCount();
    if (title_ && titlePlace_ <= count && at(titlePlace_) == title_) return title_;
    if (countWithoutTitle_ == count) return nullptr;
    title_ = nullptr;
    countWithoutTitle_.reset();
    for (std::int32_t place = 1; place <= count; ++place) {
        if (auto shape = at(place); shape && shape->isTitle()) {
            titlePlace_ = place;
            return title_ = shape;
        }
    }
    countWithoutTitle_ = count;
    return nullptr;
}

ImpressShapePtr ImpressSlide::held(const uno::Reference<css::drawing::XShape>& shape) {
    // One remote shape is one proxy for as long as the proxy is held: comparing pointers is enough
    // and asks nobody.
    for (const auto& known : shapes_) {
        if (known->reference().get() == shape.get()) return known;
    }
    shapes_.push_back(std::make_shared<ImpressShape>(shape, *this));
    return shapes_.back();
}

std::int32_t ImpressSlide::workbooksAmong(const std::set<rtl::OUString>& stored) {
    std::int32_t found = 0;
    const std::int32_t count = shapeCount();
    for (std::int32_t place = 1; place <= count; ++place) {
        const auto shape = at(place);
        if (shape && stored.contains(shape->workbook())) ++found;
    }
    return found;
}

void ImpressSlide::markGone() {
    isGone_ = true;
    for (const auto& shape : shapes_) shape->markGone();
}

bool ImpressSlide::isGone() const {
    return isGone_ || deck_.isGone();
}

std::int32_t ImpressSlide::place() {
    sal_Int16 number = 0;
    properties()->getPropertyValue("Number") >>= number;
    // A slide that was deleted goes on answering.
    if (number == 0)
        throw office::Failure(office::FailureNumber::Disconnected, "Slide", "The slide has gone");
    return number;
}

std::int32_t ImpressSlide::layout() {
    return deck_.layouts().layoutOf(*this);
}

void ImpressSlide::setLayout(std::int32_t layout) {
    deck_.requireWritable("Slide.Layout");
    deck_.layouts().apply(*this, layout);
}

ImpressShapePtr ImpressSlide::at(std::int32_t place) {
    try {
        return held(uno::Reference<css::drawing::XShape>(page_->getByIndex(place - 1),
                                                         uno::UNO_QUERY_THROW));
    } catch (const css::lang::IndexOutOfBoundsException&) {
        return nullptr;
    }
}

ImpressShapePtr ImpressSlide::add(const char* service) {
    const auto shape = deck_.createShape(service);
    page_->add(shape);
    return held(shape);
}

model::DeckShapePtr ImpressSlide::addPicture(const std::string& file, const model::Point& corner) {
    deck_.requireWritable("Shapes.AddPicture");
    if (const auto onItsWay = deck_.latePictures().take(file))
        return addPicture(*onItsWay, {onItsWay->widthPt, onItsWay->heightPt}, corner);
    const FilePicture picture = pictureOfFile(deck_.connection(), file);
    const std::string name = freshName("Picture");
    auto shape = add("com.sun.star.drawing.GraphicObjectShape");
    shape->setNamed(name, {{"Graphic", uno::Any(picture.graphic)}});
    shape->reference()->setSize(picture.size);
    shape->moveTo(corner);
    shape->setKeepsProportions(true);
    return shape;
}

ImpressShapePtr ImpressSlide::addPicture(const office::Picture& picture, const office::Size& size,
                                         const model::Point& corner) {
    const std::string name = freshName("Picture");
    auto shape = add("com.sun.star.drawing.GraphicObjectShape");
    shape->setName(name);
    shape->resize(size);
    shape->moveTo(corner);
    shape->setKeepsProportions(true);
    deck_.latePictures().hang(as<css::beans::XPropertySet>(shape->reference()), picture);
    return shape;
}

model::DeckShapePtr ImpressSlide::addLabel(const model::Point& corner, const office::Size& size) {
    const std::string name = freshName("TextBox");
    auto shape = add("com.sun.star.drawing.TextShape");
    shape->setNamed(name, {{"TextAutoGrowHeight", uno::Any(true)},
                           {"TextAutoGrowWidth", uno::Any(true)},
                           {"TextWordWrap", uno::Any(false)}});
    shape->resize(size);
    shape->moveTo(corner);
    shape->setKeepsProportions(false);
    return shape;
}

void ImpressSlide::remove() {
    deck_.removeSlide(*this);
}

std::string ImpressSlide::freshName(std::string_view kind) {
    if (!highestNumber_) highestNumber_ = highestNumber();
    highestNumber_ = std::max(*highestNumber_, shapeCount()) + 1;
    return fmt::format("{} {}", kind, *highestNumber_);
}

std::int32_t ImpressSlide::highestNumber() {
    std::int32_t highest = 0;
    const std::int32_t count = shapeCount();
    for (std::int32_t place = 1; place <= count; ++place) {
        if (const auto shape = at(place)) highest = std::max(highest, counterOf(shape->name()));
    }
    return highest;
}

}  // namespace libreoffice::powerpoint
