#include "office/libreoffice/powerpoint/selection.h"

#include <utility>

#include "office/libreoffice/powerpoint/shape_range.h"
#include "office/libreoffice/powerpoint/slide_range.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Value;

Selection::Selection(DeskPtr desk, ImpressDocumentPtr document)
    : UnoObject(std::move(desk), document),
      document_(std::move(document)) {}

const office::MemberTable<Selection>& Selection::members() {
    static const auto table = office::MemberTable<Selection>("Selection")
                                  .property("Type", &Selection::type)
                                  .property("SlideRange", &Selection::slideRange)
                                  .property("ShapeRange", &Selection::shapeRange)
                                  .method("Unselect", {}, &Selection::unselect);
    return table;
}

Value Selection::type() {
    constexpr std::int32_t slides = 1;
    constexpr std::int32_t shapes = 2;
    return document_->selectedShapes().empty() ? slides : shapes;
}

Value Selection::slideRange() {
    return makeObject<SlideRange>(deskPtr(), document_, document_->slideInView());
}

Value Selection::shapeRange() {
    auto shapes = document_->selectedShapes();
    if (shapes.empty())
        throw office::Failure(office::FailureNumber::ApplicationDefined, "Selection.ShapeRange",
                              "No shape is selected");
    return makeObject<ShapeRange>(deskPtr(), document_, std::move(shapes));
}

Value Selection::unselect(const CallArguments& /*arguments*/) {
    document_->window().unselect();
    return {};
}

}  // namespace libreoffice::powerpoint
