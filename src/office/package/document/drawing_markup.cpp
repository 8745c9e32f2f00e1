#include "office/package/document/drawing_markup.h"

#include <fmt/format.h>

#include "office/package/document/paragraph.h"
#include "office/package/drawing/drawing.h"
#include "office/package/xml.h"

namespace office::package {

namespace {

/// Beside and beneath what stands over the text.
constexpr long long gap = 114300;

/// The kind of shape that pictures are, as every document writes it out.
constexpr const char* pictureShapeType =
    R"(<v:shapetype id="_x0000_t75" coordsize="21600,21600" o:spt="75" o:preferrelative="t" )"
    R"(path="m@4@5l@4@11@9@11@9@5xe" filled="f" stroked="f"><v:stroke joinstyle="miter"/>)"
    R"(<v:formulas><v:f eqn="if lineDrawn pixelLineWidth 0"/><v:f eqn="sum @0 1 0"/>)"
    R"(<v:f eqn="sum 0 0 @1"/><v:f eqn="prod @2 1 2"/><v:f eqn="prod @3 21600 pixelWidth"/>)"
    R"(<v:f eqn="prod @3 21600 pixelHeight"/><v:f eqn="sum @0 0 1"/><v:f eqn="prod @6 1 2"/>)"
    R"(<v:f eqn="prod @7 21600 pixelWidth"/><v:f eqn="sum @8 21600 0"/>)"
    R"(<v:f eqn="prod @7 21600 pixelHeight"/><v:f eqn="sum @10 21600 0"/></v:formulas>)"
    R"(<v:path o:extrusionok="f" gradientshapeok="t" o:connecttype="rect"/>)"
    R"(<o:lock v:ext="edit" aspectratio="t"/></v:shapetype>)";

}  // namespace

std::string drawingRun(word::Anchoring anchoring, unsigned id, std::string_view name,
                       const Size& size, const std::string& graphic) {
    const std::string content =
        fmt::format(R"(<wp:docPr id="{}" name="{}"/><wp:cNvGraphicFramePr><a:graphicFrameLocks )"
                    R"(noChangeAspect="1"/></wp:cNvGraphicFramePr>{})",
                    id, name, graphic);
    const std::string sides =
        fmt::format(R"(<wp:extent cx="{}" cy="{}"/><wp:effectExtent l="0" t="0" r="0" b="0"/>)",
                    emuOf(size.width), emuOf(size.height));
    if (anchoring == word::Anchoring::Inline)
        return fmt::format(R"(<w:r><w:drawing><wp:inline distT="0" distB="0" distL="0" distR="0">)"
                           R"({}{}</wp:inline></w:drawing></w:r>)",
                           sides, content);
    // Text goes on beneath it.
    return fmt::format(
        R"(<w:r><w:drawing><wp:anchor distT="0" distB="0" distL="{0}" distR="{0}" simplePos="0" )"
        R"(relativeHeight="{1}" behindDoc="0" locked="0" layoutInCell="1" allowOverlap="0">)"
        R"(<wp:simplePos x="0" y="0"/><wp:positionH relativeFrom="margin"><wp:posOffset>0)"
        R"(</wp:posOffset></wp:positionH><wp:positionV relativeFrom="paragraph"><wp:posOffset>0)"
        R"(</wp:posOffset></wp:positionV>{2}<wp:wrapTopAndBottom/>{3}</wp:anchor></w:drawing></w:r>)",
        gap, id, sides, content);
}

std::string pictureGraphic(unsigned id, std::string_view name, const Size& size,
                           const std::string& blip) {
    return fmt::format(
        R"(<a:graphic><a:graphicData uri="{}"><pic:pic><pic:nvPicPr><pic:cNvPr id="{}" name="{}"/>)"
        R"(<pic:cNvPicPr><a:picLocks noChangeAspect="1"/></pic:cNvPicPr></pic:nvPicPr><pic:blipFill>)"
        R"({}<a:stretch><a:fillRect/></a:stretch></pic:blipFill><pic:spPr>)"
        R"(<a:xfrm><a:off x="0" y="0"/><a:ext cx="{}" cy="{}"/></a:xfrm><a:prstGeom prst="rect">)"
        R"(<a:avLst/></a:prstGeom></pic:spPr></pic:pic></a:graphicData></a:graphic>)",
        ns::picture, id, name, blip, emuOf(size.width), emuOf(size.height));
}

std::string chartGraphic(const std::string& relationship) {
    return fmt::format(
        R"(<a:graphic><a:graphicData uri="{}"><c:chart r:id="{}"/></a:graphicData></a:graphic>)",
        ns::chart, relationship);
}

std::string objectRun(word::Anchoring anchoring, const ObjectMarkup& object) {
    // Larger than the numbers that time itself gives to objects.
    constexpr unsigned firstObject = 1'800'000'000;
    const bool isOver = anchoring == word::Anchoring::Floating;
    const std::string shape =
        fmt::format("_x0000_{}{}", isOver ? 's' : 'i', firstVmlShape + object.id);
    const std::string place = fmt::format(
        "position:absolute;margin-left:0;margin-top:0;z-index:{};mso-position-horizontal:absolute;"
        "mso-position-horizontal-relative:margin;mso-position-vertical:absolute;"
        "mso-position-vertical-relative:text;",
        object.id);
    const std::string workbook =
        object.isLink
            ? fmt::format(R"(<o:OLEObject Type="Link" ProgID="{}" ShapeID="{}" )"
                          R"(DrawAspect="Content" r:id="{}" UpdateMode="Always">)"
                          R"(<o:LinkType>Picture</o:LinkType><o:LockedField>false</o:LockedField>)"
                          R"(<o:FieldCodes>\f 0</o:FieldCodes></o:OLEObject>)",
                          object.programId, shape, object.workbook)
            : fmt::format(R"(<o:OLEObject Type="Embed" ProgID="{}" ShapeID="{}" )"
                          R"(DrawAspect="Content" ObjectID="_{}" r:id="{}"/>)",
                          object.programId, shape, firstObject + object.id, object.workbook);
    return fmt::format(
        R"(<w:r><w:object w:dxaOrig="{}" w:dyaOrig="{}">{}<v:shape id="{}" type="#_x0000_t75" )"
        R"(style="{}width:{:.2f}pt;height:{:.2f}pt" o:ole=""><v:imagedata r:id="{}" o:title=""/>)"
        R"({}</v:shape>{}</w:object></w:r>)",
        twipsOf(object.size.width), twipsOf(object.size.height),
        object.hasShapeType ? pictureShapeType : "", shape, isOver ? place : "", object.size.width,
        object.size.height, object.preview,
        isOver ? R"(<w10:wrap xmlns:w10="urn:schemas-microsoft-com:office:word" )"
                 R"(type="topAndBottom"/>)"
               : "",
        workbook);
}

}  // namespace office::package
