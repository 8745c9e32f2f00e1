#include <com/sun/star/graphic/XGraphic.hpp>

#include "office/failure.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/powerpoint/paste.h"

namespace libreoffice::powerpoint {

ShapeRef addLink(ImpressSlide& slide, const excel::CopiedHere& copied, const css::awt::Size& size) {
    if (copied.source().file.empty())
        throw office::Failure(office::FailureNumber::ApplicationDefined, "Shapes.PasteSpecial",
                              "The workbook has to be saved before it can be linked");
    const uno::Any picture(copied.graphic());
    NewShape made(slide);
    // An object without a picture is drawn from the file. The window that draws it loads the file
    // with threads, which wait for the very lock that a call from here holds meanwhile, and the
    // suite hangs: the object never gets to be without a picture, neither before nor after.
    setProperty(made.shape(), "Graphic", picture);
    setProperty(made.shape(), "LinkURL", fileUrl(copied.source().file));
    setProperty(made.shape(), "Graphic", picture);
    // Not before: in some presentations a link fails that is made at a size, and takes the
    // connection with it.
    made.shape()->setSize(size);
    return made.take();
}

}  // namespace libreoffice::powerpoint
