#pragma once

#include <com/sun/star/awt/Point.hpp>
#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/drawing/XShape.hpp>
#include <com/sun/star/text/XText.hpp>

#include <memory>
#include <optional>
#include <string>

#include "office/libreoffice/uno_values.h"

namespace libreoffice::powerpoint {

class HeldPage;
class TitleLook;

/// A shape of a slide, held for as long as its document's record lives.
///
/// LibreOffice makes its shape objects anew whenever nobody holds them, and values read from such a
/// fresh one are wrong now and then (an empty name, a size of 100). So a shape is fetched once and
/// this object stays its only reference; everything that works on the shape shares it.
class HeldShape {
public:
    HeldShape(uno::Reference<css::drawing::XShape> shape, std::weak_ptr<HeldPage> page);

    [[nodiscard]] const uno::Reference<css::drawing::XShape>& shape() const { return shape_; }
    [[nodiscard]] const uno::Reference<css::beans::XPropertySet>& properties();
    /// Null if the shape holds no text.
    [[nodiscard]] const uno::Reference<css::text::XText>& text();
    /// The slide that the shape is on.
    [[nodiscard]] std::shared_ptr<HeldPage> page() const;

    template <class Type>
    [[nodiscard]] Type get(const char* name, Type otherwise = Type()) {
        properties()->getPropertyValue(rtl::OUString::createFromAscii(name)) >>= otherwise;
        return otherwise;
    }
    template <class Type>
    void set(const char* name, const Type& value) {
        properties()->setPropertyValue(rtl::OUString::createFromAscii(name), uno::Any(value));
    }
    /// Several properties in one call.
    void set(std::initializer_list<std::pair<const char*, uno::Any>> values);

    /// The service that the shape is: "com.sun.star.drawing.GraphicObjectShape", ...
    [[nodiscard]] const std::string& service();
    [[nodiscard]] bool isPicture();
    [[nodiscard]] bool isCustomShape();
    [[nodiscard]] bool isPlaceholder();
    [[nodiscard]] bool isTitle();

    [[nodiscard]] css::awt::Point position() const { return shape_->getPosition(); }
    [[nodiscard]] css::awt::Size size() const { return shape_->getSize(); }

    /// Whether width and height follow each other: nothing in LibreOffice answers to it. Pictures
    /// begin with yes.
    [[nodiscard]] bool keepsProportions();
    void keepProportions(bool keep) { keepsProportions_ = keep; }

    /// What the text of a new slide's title takes on when it gets its first words; null for others.
    void wearOnceFilled(std::shared_ptr<const TitleLook> look) { look_ = std::move(look); }
    [[nodiscard]] std::shared_ptr<const TitleLook> takeLook() { return std::move(look_); }

    /// Another shape takes the place of this one. What automation remembers stays.
    void become(uno::Reference<css::drawing::XShape> other);

private:
    uno::Reference<css::drawing::XShape> shape_;
    uno::Reference<css::beans::XPropertySet> properties_;
    uno::Reference<css::text::XText> text_;
    std::weak_ptr<HeldPage> page_;
    std::string service_;
    std::optional<bool> keepsProportions_;
    std::shared_ptr<const TitleLook> look_;
};

using HeldShapePtr = std::shared_ptr<HeldShape>;

/// Several properties of any object in one call, as far as it takes them so.
void setProperties(const uno::Reference<css::beans::XPropertySet>& properties,
                   std::initializer_list<std::pair<const char*, uno::Any>> values);

}  // namespace libreoffice::powerpoint
