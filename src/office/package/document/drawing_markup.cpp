#include "office/package/document/drawing_markup.h"

#include <fmt/format.h>

#include "office/package/drawing/drawing.h"
#include "office/package/xml.h"

namespace office::package {

namespace word = office::model::word;

namespace {

/// Beside and beneath what stands over the text.
constexpr long long gap = 114300;

}  // namespace

std::string drawingRun(word::Anchoring anchoring, unsigned id, std::string_view name,
                       const word::ObjectSize& size, const std::string& graphic) {
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

std::string pictureGraphic(unsigned id, std::string_view name, const word::ObjectSize& size,
                           const std::string& relationship) {
    return fmt::format(
        R"(<a:graphic><a:graphicData uri="{}"><pic:pic><pic:nvPicPr><pic:cNvPr id="{}" name="{}"/>)"
        R"(<pic:cNvPicPr><a:picLocks noChangeAspect="1"/></pic:cNvPicPr></pic:nvPicPr><pic:blipFill>)"
        R"(<a:blip r:embed="{}"/><a:stretch><a:fillRect/></a:stretch></pic:blipFill><pic:spPr>)"
        R"(<a:xfrm><a:off x="0" y="0"/><a:ext cx="{}" cy="{}"/></a:xfrm><a:prstGeom prst="rect">)"
        R"(<a:avLst/></a:prstGeom></pic:spPr></pic:pic></a:graphicData></a:graphic>)",
        ns::picture, id, name, relationship, emuOf(size.width), emuOf(size.height));
}

}  // namespace office::package
