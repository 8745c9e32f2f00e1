#include <com/sun/star/document/XStorageBasedDocument.hpp>

#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/powerpoint/object_storage.h"
#include "office/libreoffice/powerpoint/paste.h"

namespace libreoffice::powerpoint {

/// The chart is stored where the presentation keeps its objects. As the presentation has no cells,
/// the chart that is read from there takes its values from the table that is stored with it.
ShapeRef addChart(ImpressSlide& slide, const excel::CopiedChart& chart,
                  const css::awt::Size& size) {
    NewObject object(slide.deck().model());
    const auto model = property<uno::Reference<uno::XInterface>>(chart.shape(), "Model");
    as<css::document::XStorageBasedDocument>(model)->storeToStorage(
        object.folder(), propertyValues({{"FilterName", uno::Any(rtl::OUString("chart8"))}}));
    object.close();
    NewObjectShape made(slide);
    made.shape()->setSize(size);
    setProperty(made.shape(), "PersistName", object.name());
    object.complete();
    return made.take();
}

}  // namespace libreoffice::powerpoint
