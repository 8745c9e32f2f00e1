#include "office/libreoffice/powerpoint/held_shape.h"

#include <com/sun/star/beans/XMultiPropertySet.hpp>

#include <algorithm>
#include <utility>
#include <vector>

#include "office/failure.h"

namespace libreoffice::powerpoint {

namespace {

constexpr std::string_view placeholderServices = "com.sun.star.presentation.";

std::string serviceOf(const uno::Reference<css::drawing::XShape>& shape) {
    // The call is marked as outdated and has no successor that names the one service in one call.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    return fromUno(shape->getShapeType());
#pragma GCC diagnostic pop
}

}  // namespace

HeldShape::HeldShape(uno::Reference<css::drawing::XShape> shape, std::weak_ptr<HeldPage> page)
    : shape_(std::move(shape)),
      page_(std::move(page)) {}

const uno::Reference<css::beans::XPropertySet>& HeldShape::properties() {
    if (!properties_.is()) properties_ = as<css::beans::XPropertySet>(shape_);
    return properties_;
}

const uno::Reference<css::text::XText>& HeldShape::text() {
    if (!text_.is()) text_ = tryAs<css::text::XText>(shape_);
    return text_;
}

std::shared_ptr<HeldPage> HeldShape::page() const {
    auto page = page_.lock();
    if (!page)
        throw office::Failure(office::FailureNumber::Disconnected, "Shape",
                              "The shape's slide has gone");
    return page;
}

void HeldShape::set(std::initializer_list<std::pair<const char*, uno::Any>> values) {
    setProperties(properties(), values);
}

const std::string& HeldShape::service() {
    if (service_.empty()) service_ = serviceOf(shape_);
    return service_;
}

bool HeldShape::isPicture() {
    return service() == "com.sun.star.drawing.GraphicObjectShape" ||
           service() == "com.sun.star.presentation.GraphicObjectShape";
}

bool HeldShape::isCustomShape() {
    return service() == "com.sun.star.drawing.CustomShape";
}

bool HeldShape::isPlaceholder() {
    return service().starts_with(placeholderServices);
}

bool HeldShape::isTitle() {
    return service() == "com.sun.star.presentation.TitleTextShape";
}

bool HeldShape::keepsProportions() {
    if (!keepsProportions_) keepsProportions_ = isPicture();
    return *keepsProportions_;
}

void HeldShape::become(uno::Reference<css::drawing::XShape> other) {
    keepsProportions_ = keepsProportions();
    shape_ = std::move(other);
    properties_.clear();
    text_.clear();
    service_.clear();
}

void setProperties(const uno::Reference<css::beans::XPropertySet>& properties,
                   std::initializer_list<std::pair<const char*, uno::Any>> values) {
    std::vector<std::pair<rtl::OUString, uno::Any>> sorted;
    for (const auto& [name, value] : values)
        sorted.emplace_back(rtl::OUString::createFromAscii(name), value);
    // The call demands the names in order.
    std::sort(sorted.begin(), sorted.end(),
              [](const auto& left, const auto& right) { return left.first < right.first; });
    const auto count = static_cast<sal_Int32>(sorted.size());
    uno::Sequence<rtl::OUString> names(count);
    uno::Sequence<uno::Any> anys(count);
    for (sal_Int32 i = 0; i < count; ++i) {
        names.getArray()[i] = sorted[static_cast<std::size_t>(i)].first;
        anys.getArray()[i] = sorted[static_cast<std::size_t>(i)].second;
    }
    as<css::beans::XMultiPropertySet>(properties)->setPropertyValues(names, anys);
}

}  // namespace libreoffice::powerpoint
