#include "office/libreoffice/powerpoint/paste.h"

#include "office/failure.h"
#include "office/libreoffice/at_end.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/units.h"
#include "office/model/powerpoint/paste.h"

namespace libreoffice::powerpoint {

namespace {

using office::CopySource;
using office::PasteAs;

css::awt::Size onPaper(const model::Size& size) {
    return {hundredthMmOf(size.width), hundredthMmOf(size.height)};
}

[[noreturn]] void failOnForm() {
    throw office::Failure(office::FailureNumber::ApplicationDefined, "Shapes.PasteSpecial",
                          "It can't be pasted in this form");
}

/// What was copied, with all that this suite knows of it.
const excel::CopiedHere& copiedHere(const office::Copied& copied) {
    const auto* here = dynamic_cast<const excel::CopiedHere*>(&copied);
    if (here == nullptr || copied.source().kind == CopySource::Kind::Picture) failOnForm();
    return *here;
}

}  // namespace

NewShape::NewShape(ImpressSlide& slide, const char* service)
    : page_(slide.page()),
      shape_(slide.deck().createShape(service)) {
    page_->add(shape_);
}

NewShape::~NewShape() {
    if (shape_.is()) asFarAsPossible([&] { page_->remove(shape_); });
}

model::DeckShapePtr ImpressSlide::paste(const office::Copied& copied, PasteAs as) {
    const auto place = model::pastePlaceFor({copied.widthPt(), copied.heightPt()}, deck_, *this);
    const bool isPicture = copied.source().kind == CopySource::Kind::Picture;
    if (as == PasteAs::Png || as == PasteAs::Metafile || (isPicture && as == PasteAs::Default))
        return addPicture(copied.picture(office::Sharpness::Crisp), place.size, place.corner);
    const css::awt::Size size = onPaper(place.size);
    if (as == PasteAs::Embedded)
        return pasted(addWorkbook(*this, copiedHere(copied), size), "Object", place.corner);
    if (as == PasteAs::Linked)
        return pasted(addLink(*this, copiedHere(copied), size), "Object", place.corner);
    if (const auto* chart = dynamic_cast<const excel::CopiedChart*>(&copied))
        return pasted(addChart(*this, *chart, size), "Chart", place.corner);
    if (copied.source().kind != CopySource::Kind::Cells) failOnForm();
    return pasted(addTable(*this, copied.table(), place.scale), "Table", place.corner);
}

ImpressShapePtr ImpressSlide::pasted(const ShapeRef& reference, std::string_view kind,
                                     const model::Point& corner) {
    const std::string name = freshName(kind);
    auto shape = held(reference);
    shape->setName(name);
    shape->moveTo(corner);
    return shape;
}

}  // namespace libreoffice::powerpoint
