#include "office/package/presentation/object_parts.h"

#include <fmt/format.h>

#include <utility>

#include "office/model/powerpoint/paste.h"
#include "office/package/drawing/picture_file.h"
#include "office/package/presentation/file_deck.h"
#include "office/package/workbook/object_source.h"

namespace office::package {

FileShapePtr pasteObject(FileSlide& slide, const Copied& copied, PasteAs as) {
    const CopySource& source = copied.source();
    FileDeck& deck = slide.deck();
    requireNoObstacle(as, source, deck.rules(), "Shapes.PasteSpecial");
    PictureFile picture = pictureOf(copied);
    const model::PastePlace place = model::pastePlaceFor(picture.size, deck, slide);
    Package& package = deck.package();
    const bool isLink = as == PasteAs::Linked;
    const ObjectSource behind =
        isLink ? linkCells(package, slide.part(), source, deck.rules())
               : embedWorkbook(package, slide.part(), deck.embeddingStem(), source, deck.rules());
    const std::string media = addPicturePart(package, deck.mediaStem(), std::move(picture));
    const std::string preview = package.relationshipsOf(slide.part()).add("image", media);
    const std::string box =
        fmt::format(R"(<a:off x="{}" y="{}"/><a:ext cx="{}" cy="{}"/>)", emuOf(place.corner.left),
                    emuOf(place.corner.top), emuOf(place.size.width), emuOf(place.size.height));
    FileShapePtr shape = slide.addShape(
        "Object",
        fmt::format(
            R"(<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr/><p:cNvGraphicFramePr>)"
            R"(<a:graphicFrameLocks noChangeAspect="1"/></p:cNvGraphicFramePr><p:nvPr/>)"
            R"(</p:nvGraphicFramePr><p:xfrm>{0}</p:xfrm><a:graphic>)"
            R"(<a:graphicData uri="http://schemas.openxmlformats.org/presentationml/2006/ole">)"
            R"(<p:oleObj name="Worksheet" r:id="{1}" imgW="{2}" imgH="{3}" progId="{4}">{5}<p:pic>)"
            R"(<p:nvPicPr><p:cNvPr id="0" name=""/><p:cNvPicPr/><p:nvPr/></p:nvPicPr><p:blipFill>)"
            R"(<a:blip r:embed="{6}"/><a:stretch><a:fillRect/></a:stretch></p:blipFill><p:spPr>)"
            R"(<a:xfrm>{0}</a:xfrm><a:prstGeom prst="rect"><a:avLst/></a:prstGeom></p:spPr></p:pic>)"
            R"(</p:oleObj></a:graphicData></a:graphic></p:graphicFrame>)",
            box, behind.relationship, emuOf(picture.size.width), emuOf(picture.size.height),
            behind.programId, isLink ? R"(<p:link updateAutomatic="1"/>)" : "<p:embed/>", preview));
    shape->setName(shape->name());
    return shape;
}

}  // namespace office::package
