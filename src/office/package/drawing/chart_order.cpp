#include "office/package/drawing/chart_order.h"

#include <algorithm>
#include <array>

#include "office/package/xml.h"

namespace office::package {

namespace {

/// The schema's sequence of what an element of a chart holds.
struct Sequence {
    /// The elements, parted by blanks.
    std::string_view parents;
    std::string_view order;
};
constexpr auto sequences = std::to_array<Sequence>({
    {"chartSpace",
     "date1904 lang roundedCorners AlternateContent style clrMapOvr pivotSource protection chart "
     "spPr txPr externalData printSettings userShapes extLst"},
    {"chart",
     "title autoTitleDeleted pivotFmts view3D floor sideWall backWall plotArea legend plotVisOnly "
     "dispBlanksAs showDLblsOverMax extLst"},
    {"catAx dateAx valAx serAx",
     "axId scaling delete axPos majorGridlines minorGridlines title numFmt majorTickMark "
     "minorTickMark tickLblPos spPr txPr crossAx crosses crossesAt auto lblAlgn lblOffset "
     "tickLblSkip tickMarkSkip noMultiLvlLbl crossBetween baseTimeUnit majorUnit majorTimeUnit "
     "minorUnit minorTimeUnit dispUnits extLst"},
    {"ser",
     "idx order tx spPr invertIfNegative pictureOptions marker explosion dPt dLbls trendline "
     "errBars cat val xVal yVal bubbleSize smooth shape bubble3D extLst"},
    {"dPt", "idx invertIfNegative marker bubble3D explosion spPr pictureOptions extLst"},
    {"dLbls dLbl",
     "idx dLbl delete layout tx numFmt spPr txPr dLblPos showLegendKey showVal showCatName "
     "showSerName showPercent showBubbleSize separator showLeaderLines leaderLines extLst"},
    {"title legend", "legendPos legendEntry tx layout overlay spPr txPr extLst"},
    {"trendline",
     "name spPr trendlineType order period forward backward intercept dispRSqr dispEq trendlineLbl "
     "extLst"},
    {"errBars", "errDir errBarType errValType noEndCap plus minus val spPr extLst"},
    {"view3D", "rotX hPercent rotY depthPercent rAngAx perspective extLst"},
    {"pictureOptions",
     "applyToFront applyToSides applyToEnd pictureFormat pictureStackUnit extLst"},
    {"numCache", "formatCode ptCount pt extLst"},
});
/// Of the groups of all kinds of series.
constexpr std::string_view groupOrder =
    "barDir grouping ofPieType radarStyle scatterStyle wireframe varyColors ser dLbls dropLines "
    "hiLowLines upDownBars marker smooth bubble3D bubbleScale showNegBubbles sizeRepresents "
    "gapWidth gapDepth splitType splitPos custSplit secondPieSize overlap serLines shape "
    "firstSliceAng holeSize bandFmts axId extLst";

}  // namespace

pugi::xml_node chartChild(pugi::xml_node parent, std::string_view name) {
    const auto* const found =
        std::find_if(sequences.begin(), sequences.end(),
                     [&](const Sequence& one) { return isListed(one.parents, localName(parent)); });
    return childInOrder(parent, ns::chart, name,
                        found == sequences.end() ? groupOrder : found->order);
}

}  // namespace office::package
