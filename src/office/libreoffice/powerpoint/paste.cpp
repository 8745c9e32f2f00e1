#include "office/libreoffice/powerpoint/paste.h"

#include <com/sun/star/graphic/XGraphic.hpp>

#include <algorithm>

#include "office/failure.h"
#include "office/libreoffice/at_end.h"
#include "office/libreoffice/excel/copied.h"
#include "office/libreoffice/objects/copied_object.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/units.h"
#include "office/model/powerpoint/paste.h"

namespace libreoffice::powerpoint {

namespace {

using office::CopySource;
using office::PasteAs;

css::awt::Size onPaper(const office::Size& size) {
    return {hundredthMmOf(size.width), hundredthMmOf(size.height)};
}

constexpr const char* pasteSpecial = "Shapes.PasteSpecial";

// What a paste makes, each on top of the slide's other shapes, in the size given; nothing is put
// there if it fails. Neither the clipboard nor a window is touched.

/// A chart with data of its own.
ShapeRef addChart(ImpressSlide& slide, const excel::CopiedChart& chart,
                  const css::awt::Size& size) {
    objects::NewObject object(slide.deck().model());
    objects::storeChart(object, chart);
    NewShape made(slide);
    made.shape()->setSize(size);
    setProperty(made.shape(), "PersistName", object.name());
    object.complete();
    return made.take();
}

/// An object that opens as a workbook of the sheet that the copied thing stands on, at the place
/// where it stands; until then it shows the copied thing's picture. Other sheets come along as far
/// as charts there draw on them, and are hidden.
ShapeRef addWorkbook(ImpressSlide& slide, const excel::CopiedHere& copied,
                     const css::awt::Size& size) {
    const auto picture = copied.graphic();
    objects::NewObject object(slide.deck().model());
    objects::storeEmptyWorkbook(object, copied);
    NewShape made(slide);
    made.shape()->setSize(size);
    setProperty(made.shape(), "PersistName", object.name());
    objects::fillWorkbook(slide.deck().connection(), copied,
                          property<uno::Reference<css::frame::XModel>>(made.shape(), "Model"));
    setProperty(made.shape(), "Graphic", picture);
    object.complete();
    return made.take();
}

/// An object bound to the workbook's file, with the copied thing's picture.
ShapeRef addLink(ImpressSlide& slide, const excel::CopiedHere& copied, const css::awt::Size& size) {
    if (copied.source().file.empty())
        office::refuse(pasteSpecial, "The workbook has to be saved before it can be linked");
    return addLink(slide, copied.source().file, copied.graphic(), size);
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
    deck_.requireWritable(pasteSpecial);
    const auto place = model::pastePlaceFor({copied.widthPt(), copied.heightPt()}, deck_, *this);
    const bool isPicture = copied.source().kind == CopySource::Kind::Picture;
    if (as == PasteAs::Png || as == PasteAs::Metafile || (isPicture && as == PasteAs::Default))
        return addPicture(copied.picture(office::Sharpness::Crisp), place.size, place.corner);
    const css::awt::Size size = onPaper(place.size);
    if (as == PasteAs::Embedded)
        return pasted(addWorkbook(*this, objects::copiedHere(copied, pasteSpecial), size), "Object",
                      place.corner);
    if (as == PasteAs::Linked)
        return pasted(addLink(*this, objects::copiedHere(copied, pasteSpecial), size), "Object",
                      place.corner);
    if (const auto* chart = dynamic_cast<const excel::CopiedChart*>(&copied))
        return pasted(addChart(*this, *chart, size), "Chart", place.corner);
    if (copied.source().kind != CopySource::Kind::Cells)
        office::refuse(pasteSpecial, "It can't be pasted in this form");
    office::TableLook table = copied.table();
    table.leaveTextsToBars();
    double scale = place.scale;
    // LibreOffice doesn't scale the text with the table later.
    if (const auto& room = deck_.desk().clipboard().room)
        scale = std::min(room->widthPt / table.widthPt(), room->heightPt / table.heightPt());
    return pasted(addTable(*this, table, scale), "Table", place.corner);
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
