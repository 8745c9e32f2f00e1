#include "office/package/presentation/object_parts.h"

#include <fmt/format.h>

#include <utility>

#include "office/package/drawing/picture_file.h"
#include "office/package/presentation/file_deck.h"
#include "office/package/workbook/object_source.h"

namespace office::package {

FileShapePtr pasteObject(FileSlide& slide, const Copied& copied, PasteAs as) {
    const CopySource& source = copied.source();
    FileDeck& deck = slide.deck();
    requireNoObstacle(as, source, deck.rules(), "Shapes.PasteSpecial");
    PictureFile picture = pictureOf(copied);
    const auto size = picture.size;
    const powerpoint::PastePlace place = powerpoint::pastePlaceFor(size, deck, slide);
    Package& package = deck.package();
    const bool isLink = as == PasteAs::Linked;
    const ObjectSource behind =
        isLink ? linkCells(package, slide.part(), source, deck.rules())
               : embedWorkbook(package, slide.part(), deck.embeddingStem(), source, deck.rules());
    const std::string media = addPicturePart(package, deck.mediaStem(), std::move(picture));
    const std::string preview = package.relationshipsOf(slide.part()).add("image", media);
    FileShapePtr shape = slide.addFrame(
        "Object", "noChangeAspect", place,
        "http://schemas.openxmlformats.org/presentationml/2006/ole",
        fmt::format(
            R"(<p:oleObj name="Worksheet" r:id="{}" imgW="{}" imgH="{}" progId="{}">{}<p:pic>)"
            R"(<p:nvPicPr><p:cNvPr id="0" name=""/><p:cNvPicPr/><p:nvPr/></p:nvPicPr><p:blipFill>)"
            R"(<a:blip r:embed="{}"/><a:stretch><a:fillRect/></a:stretch></p:blipFill><p:spPr>)"
            R"(<a:xfrm>{}</a:xfrm><a:prstGeom prst="rect"><a:avLst/></a:prstGeom></p:spPr></p:pic>)"
            R"(</p:oleObj>)",
            behind.relationship, emuOf(size.width), emuOf(size.height), behind.programId,
            isLink ? R"(<p:link updateAutomatic="1"/>)" : "<p:embed/>", preview,
            boxMarkup(place.corner, place.size)));
    shape->setName(shape->name());
    return shape;
}

}  // namespace office::package
