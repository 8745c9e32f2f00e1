#include "office/libreoffice/powerpoint/shapes.h"

#include <fmt/format.h>

#include <cmath>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/powerpoint/shape.h"
#include "office/libreoffice/units.h"
#include "office/text.h"

namespace libreoffice::powerpoint {

namespace {

using office::CallArguments;
using office::Failure;
using office::FailureNumber;
using office::Value;

/// A picture's own size on paper; for one that carries none, that of its pixels at 96 to the inch.
css::awt::Size naturalSize(const uno::Reference<css::graphic::XGraphic>& picture) {
    constexpr double hundredthMmPerPixel = 2540.0 / 96.0;
    auto size = property<css::awt::Size>(picture, "Size100thMM");
    if (size.Width > 0 && size.Height > 0) return size;
    const auto pixels = property<css::awt::Size>(picture, "SizePixel");
    const auto onPaper = [](sal_Int32 count) {
        return static_cast<sal_Int32>(std::lround(count * hundredthMmPerPixel));
    };
    return {onPaper(pixels.Width), onPaper(pixels.Height)};
}

/// The size that a picture is added with: -1 is its own, and one side alone brings the other one
/// along in proportion.
css::awt::Size pictureSize(const css::awt::Size& natural, double widthPt, double heightPt) {
    const bool ownWidth = widthPt < 0;
    const bool ownHeight = heightPt < 0;
    if (ownWidth && ownHeight) return natural;
    const double ratio = static_cast<double>(natural.Width) / std::max(natural.Height, 1);
    if (ownWidth) widthPt = heightPt * ratio;
    if (ownHeight) heightPt = widthPt / ratio;
    return {hundredthMmOf(widthPt), hundredthMmOf(heightPt)};
}

}  // namespace

Shapes::Shapes(DeskPtr desk, ImpressDocumentPtr document, HeldPagePtr slide)
    : UnoObject(std::move(desk), document),
      document_(std::move(document)),
      slide_(std::move(slide)) {}

const office::MemberTable<Shapes>& Shapes::members() {
    static const auto table =
        office::MemberTable<Shapes>("Shapes")
            .property("Count", &Shapes::count)
            .property("Item", {"Index"}, &Shapes::item)
            .property("HasTitle", &Shapes::hasTitle)
            .property("Title", &Shapes::title)
            .method(
                "AddPicture",
                {"FileName", "LinkToFile", "SaveWithDocument", "Left", "Top", "Width", "Height"},
                &Shapes::addPicture)
            .method("AddLabel", {"Orientation", "Left", "Top", "Width", "Height"},
                    &Shapes::addLabel)
            .method("AddTextbox", {"Orientation", "Left", "Top", "Width", "Height"},
                    &Shapes::addTextbox);
    return table;
}

Value Shapes::count() {
    return slide_->shapeCount();
}

Value Shapes::item(const CallArguments& arguments) {
    const Value& index = arguments.at(0);
    return object(index.isText() ? named(index.toText()) : slide_->shapeAt(index.toLong()));
}

HeldShapePtr Shapes::named(const std::string& name) const {
    const std::int32_t shapeCount = slide_->shapeCount();
    for (std::int32_t place = 1; place <= shapeCount; ++place) {
        auto shape = slide_->shapeAt(place);
        if (office::sameIgnoringCase(fromUno(shape->get<rtl::OUString>("Name")), name))
            return shape;
    }
    throw Failure(FailureNumber::SubscriptOutOfRange, "Shapes.Item",
                  fmt::format("There is no shape \"{}\" on the slide", name));
}

Value Shapes::hasTitle() {
    return office::Value(slide_->title() ? -1 : 0);
}

Value Shapes::title() {
    const HeldShapePtr shape = slide_->title();
    if (!shape)
        throw Failure(FailureNumber::ApplicationDefined, "Shapes.Title", "The slide has no title");
    return object(shape);
}

Value Shapes::addPicture(const CallArguments& arguments) {
    const auto picture = document_->loadPicture(desk().connection(), arguments.at(0).toText());
    const css::awt::Size size = pictureSize(naturalSize(picture), arguments.at(5, -1).toDouble(),
                                            arguments.at(6, -1).toDouble());
    const css::awt::Point corner{hundredthMmOf(arguments.at(3, 0).toDouble()),
                                 hundredthMmOf(arguments.at(4, 0).toDouble())};
    const std::string name = slide_->freshName("Picture");
    const HeldShapePtr shape =
        slide_->add(document_->createShape("com.sun.star.drawing.GraphicObjectShape"));
    shape->set({{"Graphic", uno::Any(picture)}, {"Name", uno::Any(toUno(name))}});
    shape->shape()->setSize(size);
    shape->shape()->setPosition(corner);
    shape->keepProportions(true);
    return object(shape);
}

Value Shapes::addLabel(const CallArguments& arguments) {
    return addText(arguments, false);
}

Value Shapes::addTextbox(const CallArguments& arguments) {
    return addText(arguments, true);
}

Value Shapes::addText(const CallArguments& arguments, bool wraps) {
    constexpr std::int32_t horizontal = 1;
    if (arguments.at(0).toLong() != horizontal)
        throw Failure(FailureNumber::InvalidProcedureCall, arguments.source(),
                      "Only horizontal text can be added");
    const css::awt::Point corner{hundredthMmOf(arguments.at(1).toDouble()),
                                 hundredthMmOf(arguments.at(2).toDouble())};
    const css::awt::Size size{hundredthMmOf(arguments.at(3).toDouble()),
                              hundredthMmOf(arguments.at(4).toDouble())};
    const std::string name = slide_->freshName("TextBox");
    const HeldShapePtr shape =
        slide_->add(document_->createShape("com.sun.star.drawing.TextShape"));
    shape->set({{"Name", uno::Any(toUno(name))},
                {"TextAutoGrowHeight", uno::Any(true)},
                {"TextAutoGrowWidth", uno::Any(!wraps)},
                {"TextWordWrap", uno::Any(wraps)}});
    shape->shape()->setSize(size);
    shape->shape()->setPosition(corner);
    shape->keepProportions(false);
    return object(shape);
}

Value Shapes::object(const HeldShapePtr& shape) const {
    return makeObject<Shape>(ShapeOfDocument{deskPtr(), document_, shape});
}

}  // namespace libreoffice::powerpoint
