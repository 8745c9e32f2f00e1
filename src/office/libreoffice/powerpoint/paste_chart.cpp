#include "office/libreoffice/objects/copied_object.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/powerpoint/paste.h"

namespace libreoffice::powerpoint {

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

}  // namespace libreoffice::powerpoint
