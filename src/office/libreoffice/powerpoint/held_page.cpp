#include "office/libreoffice/powerpoint/held_page.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <utility>

#include "office/failure.h"

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

HeldPage::HeldPage(uno::Reference<css::drawing::XDrawPage> page, std::int32_t slideId)
    : page_(std::move(page)),
      slideId_(slideId) {}

const uno::Reference<css::beans::XPropertySet>& HeldPage::properties() {
    if (!properties_.is()) properties_ = as<css::beans::XPropertySet>(page_);
    return properties_;
}

std::int32_t HeldPage::number() {
    sal_Int16 number = 0;
    properties()->getPropertyValue("Number") >>= number;
    // A slide that was deleted goes on answering.
    if (number == 0)
        throw office::Failure(office::FailureNumber::Disconnected, "Slide", "The slide has gone");
    return number;
}

HeldShapePtr HeldPage::shapeAt(std::int32_t place) {
    return held(
        uno::Reference<css::drawing::XShape>(page_->getByIndex(place - 1), uno::UNO_QUERY_THROW));
}

HeldShapePtr HeldPage::held(const uno::Reference<css::drawing::XShape>& shape) {
    // One remote shape is one proxy for as long as the proxy is held: comparing pointers is enough
    // and asks nobody.
    for (const auto& known : shapes_) {
        if (known->shape().get() == shape.get()) return known;
    }
    shapes_.push_back(std::make_shared<HeldShape>(shape, weak_from_this()));
    return shapes_.back();
}

HeldShapePtr HeldPage::title() {
    const std::int32_t count = shapeCount();
    if (title_ && titlePlace_ <= count && shapeAt(titlePlace_) == title_) return title_;
    if (countWithoutTitle_ == count) return nullptr;
    title_ = nullptr;
    countWithoutTitle_.reset();
    for (std::int32_t place = 1; place <= count; ++place) {
        if (auto shape = shapeAt(place); shape->isTitle()) {
            titlePlace_ = place;
            return title_ = shape;
        }
    }
    countWithoutTitle_ = count;
    return nullptr;
}

HeldShapePtr HeldPage::add(const uno::Reference<css::drawing::XShape>& shape) {
    page_->add(shape);
    return held(shape);
}

void HeldPage::remove(const HeldShapePtr& shape) {
    page_->remove(shape->shape());
    std::erase(shapes_, shape);
    if (title_ == shape) title_ = nullptr;
}

std::string HeldPage::freshName(std::string_view kind) {
    if (!highestNumber_) highestNumber_ = highestNumber();
    highestNumber_ = std::max(*highestNumber_, shapeCount()) + 1;
    return fmt::format("{} {}", kind, *highestNumber_);
}

std::int32_t HeldPage::highestNumber() {
    std::int32_t highest = 0;
    const std::int32_t count = shapeCount();
    for (std::int32_t place = 1; place <= count; ++place) {
        const auto name = fromUno(shapeAt(place)->get<rtl::OUString>("Name"));
        highest = std::max(highest, counterOf(name));
    }
    return highest;
}

}  // namespace libreoffice::powerpoint
