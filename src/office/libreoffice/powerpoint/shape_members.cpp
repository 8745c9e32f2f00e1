#include "office/libreoffice/powerpoint/shape_members.h"

#include <cmath>

#include "office/libreoffice/powerpoint/adjustments.h"
#include "office/libreoffice/powerpoint/auto_shape.h"
#include "office/libreoffice/powerpoint/reflection_format.h"
#include "office/libreoffice/powerpoint/shadow_format.h"
#include "office/libreoffice/powerpoint/shape_kind.h"
#include "office/libreoffice/powerpoint/text_frame.h"
#include "office/libreoffice/units.h"

namespace libreoffice::powerpoint {

namespace {

using office::CallArguments;
using office::Failure;
using office::FailureNumber;
using office::Value;

std::int32_t lengthOf(const Value& points, const char* member) {
    const double length = points.toDouble();
    if (!(length >= 0))
        throw Failure(FailureNumber::InvalidProcedureCall, member, "A length can't be negative");
    return hundredthMmOf(length);
}

/// The other side of a shape whose one side changes.
std::int32_t inProportion(std::int32_t other, std::int32_t before, std::int32_t after) {
    if (before == 0) return other;
    return static_cast<std::int32_t>(
        std::lround(static_cast<double>(other) * after / static_cast<double>(before)));
}

}  // namespace

Value ShapeMembers::name() {
    return fromUno(first().get<rtl::OUString>("Name"));
}

void ShapeMembers::setName(const Value& name) {
    for (const auto& shape : shapes_) shape->set("Name", toUno(name.toText()));
}

Value ShapeMembers::alternativeText() {
    return fromUno(first().get<rtl::OUString>("Description"));
}

void ShapeMembers::setAlternativeText(const Value& text) {
    for (const auto& shape : shapes_) shape->set("Description", toUno(text.toText()));
}

Value ShapeMembers::title() {
    return fromUno(first().get<rtl::OUString>("Title"));
}

void ShapeMembers::setTitle(const Value& text) {
    for (const auto& shape : shapes_) shape->set("Title", toUno(text.toText()));
}

Value ShapeMembers::type() {
    return shapeTypeOf(first());
}

Value ShapeMembers::left() {
    return pointsOf(first().position().X);
}

void ShapeMembers::setLeft(const Value& points) {
    const std::int32_t left = hundredthMmOf(points.toDouble());
    for (const auto& shape : shapes_) shape->shape()->setPosition({left, shape->position().Y});
}

Value ShapeMembers::top() {
    return pointsOf(first().position().Y);
}

void ShapeMembers::setTop(const Value& points) {
    const std::int32_t top = hundredthMmOf(points.toDouble());
    for (const auto& shape : shapes_) shape->shape()->setPosition({shape->position().X, top});
}

Value ShapeMembers::width() {
    return pointsOf(first().size().Width);
}

void ShapeMembers::setWidth(const Value& points) {
    const std::int32_t width = lengthOf(points, "Shape.Width");
    for (const auto& shape : shapes_) {
        const css::awt::Size before = shape->size();
        const bool follows = shape->keepsProportions();
        shape->shape()->setSize(
            {width, follows ? inProportion(before.Height, before.Width, width) : before.Height});
    }
}

Value ShapeMembers::height() {
    return pointsOf(first().size().Height);
}

void ShapeMembers::setHeight(const Value& points) {
    const std::int32_t height = lengthOf(points, "Shape.Height");
    for (const auto& shape : shapes_) {
        const css::awt::Size before = shape->size();
        const bool follows = shape->keepsProportions();
        shape->shape()->setSize(
            {follows ? inProportion(before.Width, before.Height, height) : before.Width, height});
    }
}

Value ShapeMembers::lockAspectRatio() {
    return triState(first().keepsProportions());
}

void ShapeMembers::setLockAspectRatio(const Value& on) {
    for (const auto& shape : shapes_) shape->keepProportions(on.toBool());
}

Value ShapeMembers::autoShapeType() {
    return outlineOf(first());
}

void ShapeMembers::setAutoShapeType(const Value& outline) {
    for (const auto& shape : shapes_) setOutline(*document_, shape, outline.toLong());
}

Value ShapeMembers::hasTextFrame() {
    return triState(hasTextFrameIn(first()));
}

Value ShapeMembers::textFrame() {
    const ShapeOfDocument whole = only("TextFrame");
    if (!hasTextFrameIn(*whole.shape))
        throw Failure(FailureNumber::ApplicationDefined, "Shape.TextFrame",
                      "The shape holds no text");
    return makeObject<TextFrame>(whole);
}

Value ShapeMembers::shadow() {
    return makeObject<ShadowFormat>(only("Shadow"));
}

Value ShapeMembers::reflection() {
    return makeObject<ReflectionFormat>(only("Reflection"));
}

Value ShapeMembers::adjustments() {
    return makeObject<Adjustments>(only("Adjustments"));
}

Value ShapeMembers::select(const CallArguments& /*arguments*/) {
    document_->selectShape(shapes_.front());
    return {};
}

Value ShapeMembers::remove(const CallArguments& /*arguments*/) {
    for (const auto& shape : shapes_) shape->page()->remove(shape);
    return {};
}

ShapeOfDocument ShapeMembers::only(const char* member) const {
    if (shapes_.size() != 1)
        throw Failure(FailureNumber::ApplicationDefined, std::string("ShapeRange.") + member,
                      "The range holds several shapes");
    return {desk_, document_, shapes_.front()};
}

}  // namespace libreoffice::powerpoint
