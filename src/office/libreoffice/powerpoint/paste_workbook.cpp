#include "office/libreoffice/objects/copied_object.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/powerpoint/paste.h"

namespace libreoffice::powerpoint {

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

}  // namespace libreoffice::powerpoint
