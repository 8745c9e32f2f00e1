#include "office/libreoffice/word/writer_object.h"

#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/table/ShadowFormat.hpp>
#include <com/sun/star/text/HoriOrientation.hpp>
#include <com/sun/star/text/RelOrientation.hpp>
#include <com/sun/star/text/TextContentAnchorType.hpp>

#include <cmath>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/units.h"
#include "office/libreoffice/word/writer_document.h"

namespace libreoffice::word {

namespace {

using css::table::ShadowFormat;

constexpr const char* shadowProperty = "ShadowFormat";

/// Soft shadows don't exist here: a narrow one in a light grey comes close.
ShadowFormat fallingShadow() {
    constexpr std::int16_t width = 106;  // 3 points
    constexpr std::int32_t lightGrey = 0xBFBFBF;
    ShadowFormat shadow;
    shadow.Location = css::table::ShadowLocation_BOTTOM_RIGHT;
    shadow.ShadowWidth = width;
    shadow.Color = lightGrey;
    return shadow;
}

/// A length as a text keeps it.
std::int32_t inWholeTwips(std::int32_t hundredthMm) {
    constexpr double hundredthMmPerTwip = hundredthMmPerInch / 1440;
    return static_cast<std::int32_t>(
        std::lround(std::round(hundredthMm / hundredthMmPerTwip) * hundredthMmPerTwip));
}

}  // namespace

WriterObject::WriterObject(ContentRef content, WriterDocument& document)
    : content_(std::move(content)),
      name_(as<css::container::XNamed>(content_)->getName()),
      properties_(as<css::beans::XPropertySet>(content_)),
      document_(document),
      anchoring_(property<css::text::TextContentAnchorType>(properties_, "AnchorType") ==
                         css::text::TextContentAnchorType_AS_CHARACTER
                     ? model::Anchoring::Inline
                     : model::Anchoring::Floating) {}

WriterObject::WriterObject(ContentRef content, uno::Reference<css::beans::XPropertySet> properties,
                           model::Anchoring anchoring, WriterDocument& document)
    : content_(std::move(content)),
      properties_(std::move(properties)),
      document_(document),
      anchoring_(anchoring) {}

const rtl::OUString& WriterObject::name() {
    if (name_.isEmpty()) name_ = as<css::container::XNamed>(content_)->getName();
    return name_;
}

bool WriterObject::isGone() const {
    return document_.isClosed();
}

void WriterObject::noteSize(const css::awt::Size& size) {
    size_ = {pointsOf(inWholeTwips(size.Width)), pointsOf(inWholeTwips(size.Height))};
}

office::Size WriterObject::size() {
    if (size_) return *size_;
    const auto shown = property<css::awt::Size>(properties_, "Size");
    const office::Size size{pointsOf(shown.Width), pointsOf(shown.Height)};
    if (document_.isUnseen()) size_ = size;
    return size;
}

void WriterObject::setSize(const office::Size& size) {
    setProperty(properties_, "Size",
                css::awt::Size(hundredthMmOf(size.width), hundredthMmOf(size.height)));
}

void WriterObject::resize(const office::Size& size) {
    if (!document_.isUnseen()) return setSize(size);
    size_ = size;
    isResized_ = true;
}

void WriterObject::finishResizing() {
    if (std::exchange(isResized_, false)) setSize(*size_);
}

std::string WriterObject::alternativeText() {
    return fromUno(property<rtl::OUString>(properties_, "Description"));
}

void WriterObject::setAlternativeText(const std::string& text) {
    setProperty(properties_, "Description", toUno(text));
}

model::ObjectShadow WriterObject::shadow() {
    shadow_.isShown = property<ShadowFormat>(properties_, shadowProperty).Location !=
                      css::table::ShadowLocation_NONE;
    return shadow_;
}

void WriterObject::setShadow(const model::ObjectShadow& shadow) {
    setProperty(properties_, shadowProperty, shadow.isShown ? fallingShadow() : ShadowFormat());
    shadow_ = shadow;
}

void WriterObject::setLeft(double left) {
    if (anchoring_ == model::Anchoring::Inline)
        office::refuse("Shape.Left", "What stands in a line has the place that the line gives it");
    setProperty(properties_, "HoriOrient", css::text::HoriOrientation::NONE);
    setProperty(properties_, "HoriOrientRelation", css::text::RelOrientation::PAGE_PRINT_AREA);
    setProperty(properties_, "HoriOrientPosition", hundredthMmOf(left));
}

void WriterObject::select() {
    document_.caret().select(content_);
}

}  // namespace libreoffice::word
