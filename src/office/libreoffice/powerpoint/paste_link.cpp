#include <com/sun/star/drawing/XShapeGrouper.hpp>
#include <com/sun/star/embed/EmbedStates.hpp>
#include <com/sun/star/embed/XCommonEmbedPersist.hpp>
#include <com/sun/star/embed/XEmbeddedObject.hpp>

#include <fstream>

#include "office/libreoffice/powerpoint/hidden_step.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/powerpoint/paste.h"
#include "office/libreoffice/private_folder.h"

namespace libreoffice::powerpoint {

namespace {

/// A workbook of one empty sheet, as LibreOffice's flat files have it.
constexpr const char* emptyWorkbook =
    R"(<?xml version="1.0" encoding="UTF-8"?>)"
    R"(<office:document office:version="1.3")"
    R"( office:mimetype="application/vnd.oasis.opendocument.spreadsheet")"
    R"( xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0")"
    R"( xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0">)"
    R"(<office:body><office:spreadsheet><table:table table:name="Sheet1"><table:table-row>)"
    R"(<table:table-cell/></table:table-row></table:table></office:spreadsheet></office:body>)"
    R"(</office:document>)";

/// LibreOffice loads the whole of what a link is made to, for each link, and again for each change
/// of its size, to learn how large it is: ten seconds a link where a workbook has 200 charts. What
/// it has learnt it keeps when the link is led elsewhere.
void linkUnloaded(const ShapeRef& shape, const rtl::OUString& url) {
    const PrivateFolder folder;
    const std::string first = folder.file("empty.fods");
    std::ofstream(first) << emptyWorkbook;
    setProperty(shape, "LinkURL", fileUrl(first));
    const auto object =
        property<uno::Reference<css::embed::XEmbeddedObject>>(shape, "EmbeddedObject");
    if (object->getCurrentState() != css::embed::EmbedStates::LOADED)
        object->changeState(css::embed::EmbedStates::LOADED);
    as<css::embed::XCommonEmbedPersist>(object)->reload(propertyValues({{"URL", uno::Any(url)}}),
                                                        {});
}

/// The presentation's list of links names what an object led to when it came to its page; a group
/// of one, taken apart again, lets it come once more.
void listLinkAnew(ImpressSlide& slide, const ShapeRef& shape) {
    const HiddenStep hidden(slide.deck());
    const auto one = as<css::drawing::XShapes>(
        slide.deck().connection().create("com.sun.star.drawing.ShapeCollection"));
    one->add(shape);
    const auto groups = as<css::drawing::XShapeGrouper>(slide.page());
    groups->ungroup(groups->group(one));
}

}  // namespace

ShapeRef addLink(ImpressSlide& slide, const std::string& file,
                 const uno::Reference<css::graphic::XGraphic>& picture,
                 const css::awt::Size& size) {
    NewShape made(slide);
    // An object without a picture is drawn from the file. The window that draws it loads the file
    // with threads, which wait for the very lock that a call from here holds meanwhile, and the
    // suite hangs: the object never gets to be without a picture, neither before nor after.
    setProperty(made.shape(), "Graphic", picture);
    linkUnloaded(made.shape(), fileUrl(file));
    setProperty(made.shape(), "Graphic", picture);
    listLinkAnew(slide, made.shape());
    // Not before: in some presentations a link fails that is made at a size, and takes the
    // connection with it.
    made.shape()->setSize(size);
    return made.take();
}

}  // namespace libreoffice::powerpoint
