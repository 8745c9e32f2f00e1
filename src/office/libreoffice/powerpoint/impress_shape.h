#pragma once

#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/drawing/XShape.hpp>
#include <com/sun/star/text/XText.hpp>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "office/libreoffice/uno_values.h"
#include "office/model/powerpoint/deck_shape.h"

namespace libreoffice::powerpoint {

namespace model = office::model::powerpoint;

class ImpressSlide;
class TitleLook;

/// A shape of a slide, held for as long as its presentation's record lives.
///
/// LibreOffice makes its shape objects anew whenever nobody holds them, and values read from such a
/// fresh one are wrong now and then (an empty name, a size of 100). So a shape is fetched once, and
/// this object keeps the only reference; everything that works on the shape shares this object.
class ImpressShape : public model::DeckShape, private model::ShapeText {
public:
    ImpressShape(uno::Reference<css::drawing::XShape> shape, ImpressSlide& slide);

    [[nodiscard]] const uno::Reference<css::drawing::XShape>& reference() const { return shape_; }
    [[nodiscard]] ImpressSlide& slide() const { return slide_; }
    [[nodiscard]] bool isTitle();
    void markGone() { isGone_ = true; }
    /// The name by which the presentation keeps the workbook that the shape shows; empty for any
    /// other shape. An object of which LibreOffice does not know what it holds counts as one.
    [[nodiscard]] rtl::OUString workbook();

    /// Sets several properties in one call.
    void set(const NamedValues& values) { values.applyTo(severalProperties()); }
    /// The name along with others, in one call.
    void setNamed(const std::string& name, NamedValues values);
    /// Sets what a new title lacks of its master page's look: what is set of an empty title gets
    /// lost with its prompt, so the look of the text waits for the first words.
    void wear(std::shared_ptr<const TitleLook> look);

    [[nodiscard]] bool isGone() const override;
    std::string name() override;
    void setName(const std::string& name) override;
    std::string alternativeText() override;
    void setAlternativeText(const std::string& text) override;
    model::Point corner() override;
    void moveTo(const model::Point& corner) override;
    office::Size size() override;
    void resize(const office::Size& size) override;
    bool keepsProportions() override;
    /// Kept here: nothing in LibreOffice answers to it.
    void setKeepsProportions(bool keeps) override { keepsProportions_ = keeps; }
    model::Outline outline() override;
    void setOutline(model::Outline wanted) override;
    std::optional<double> adjustment(std::int32_t place) override;
    bool setAdjustment(std::int32_t place, double value) override;
    model::Shadow shadow() override;
    void setShadow(const model::Shadow& shadow) override;
    model::Reflection reflection() override;
    void setReflection(const model::Reflection& reflection) override;
    model::ShapeText* textFrame() override;

private:
    std::string words() override;
    void setWords(const std::string& words) override;
    bool wraps() override;
    void setWraps(bool wraps) override;
    office::Font font() override;
    void setFont(const model::FontChange& change) override;

    [[nodiscard]] const uno::Reference<css::beans::XPropertySet>& properties();
    [[nodiscard]] const uno::Reference<css::beans::XMultiPropertySet>& severalProperties();
    template <class Type>
    [[nodiscard]] Type get(const char* name, Type otherwise = Type()) {
        properties()->getPropertyValue(rtl::OUString::createFromAscii(name)) >>= otherwise;
        return otherwise;
    }
    [[nodiscard]] NamedValues several(const std::vector<rtl::OUString>& names) {
        return {severalProperties(), names};
    }
    template <class Type>
    void set(const char* name, const Type& value) {
        properties()->setPropertyValue(rtl::OUString::createFromAscii(name), uno::Any(value));
    }

    /// The service that the shape is: "com.sun.star.drawing.GraphicObjectShape", ...
    [[nodiscard]] const std::string& service();
    [[nodiscard]] bool isPicture();
    [[nodiscard]] bool isCustomShape();
    [[nodiscard]] bool isPlaceholder();
    [[nodiscard]] bool holdsText();
    [[nodiscard]] const uno::Reference<css::text::XText>& text();
    void keepingCorner(const std::function<void()>& change);
    void replacePicture(model::Outline wanted);
    void shadowWasSwitched(bool on);

    uno::Reference<css::drawing::XShape> shape_;
    ImpressSlide& slide_;
    /// The shape's further interfaces, kept with it since asking for one is a remote call.
    uno::Reference<css::beans::XPropertySet> properties_;
    uno::Reference<css::beans::XMultiPropertySet> severalProperties_;
    uno::Reference<css::text::XText> text_;
    std::string service_;
    std::optional<bool> keepsProportions_;
    /// As it was read last.
    std::optional<bool> hasShadow_;
    std::shared_ptr<const TitleLook> look_;
    bool isGone_ = false;
};

using ImpressShapePtr = std::shared_ptr<ImpressShape>;

/// The service that a shape is, in one call.
[[nodiscard]] std::string serviceOf(const uno::Reference<css::drawing::XShape>& shape);

}  // namespace libreoffice::powerpoint
