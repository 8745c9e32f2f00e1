#include "office/libreoffice/powerpoint/font.h"

#include <com/sun/star/awt/FontWeight.hpp>

#include "office/libreoffice/powerpoint/color_format.h"

namespace libreoffice::powerpoint {

using office::Value;

const office::MemberTable<Font>& Font::members() {
    static const auto table = office::MemberTable<Font>("Font")
                                  .property("Name", &Font::name, &Font::setName)
                                  .property("Size", &Font::size, &Font::setSize)
                                  .property("Bold", &Font::bold, &Font::setBold)
                                  .property("Color", &Font::color, &Font::setColor);
    return table;
}

Value Font::name() {
    return fromUno(valueOf<rtl::OUString>("CharFontName"));
}

void Font::setName(const Value& name) {
    setValue("CharFontName", toUno(name.toText()));
}

Value Font::size() {
    return static_cast<double>(valueOf<float>("CharHeight"));
}

void Font::setSize(const Value& points) {
    setValue("CharHeight", static_cast<float>(points.toDouble()));
}

Value Font::bold() {
    return triState(valueOf<float>("CharWeight") > css::awt::FontWeight::NORMAL);
}

void Font::setBold(const Value& on) {
    setValue("CharWeight", on.toBool() ? css::awt::FontWeight::BOLD : css::awt::FontWeight::NORMAL);
}

Value Font::color() {
    // The colour is an object whose RGB is read and set; a number put to it is its RGB.
    return makeObject<ColorFormat>(
        deskPtr(), whole().document,
        [whole = whole(), span = span_] {
            return swapRedAndBlue(Font(whole, span).valueOf<sal_Int32>("CharColor"));
        },
        [whole = whole(), span = span_](std::int32_t colour) {
            Font(whole, span).setColor(colour);
        });
}

void Font::setColor(const Value& colour) {
    setValue("CharColor", swapRedAndBlue(colour.toLong()));
}

uno::Reference<css::beans::XPropertySet> Font::carrier() {
    if (!span_) return shape().properties();
    return as<css::beans::XPropertySet>(cursorOver(shape(), *span_));
}

template <class Type>
Type Font::valueOf(const char* property) {
    Type value{};
    carrier()->getPropertyValue(rtl::OUString::createFromAscii(property)) >>= value;
    return value;
}

template <class Type>
void Font::setValue(const char* property, const Type& value) {
    keepingCorner(shape(), [&] {
        carrier()->setPropertyValue(rtl::OUString::createFromAscii(property), uno::Any(value));
    });
}

}  // namespace libreoffice::powerpoint
