#include "desktop/icons.h"

#include <algorithm>
#include <array>

#include "desktop/destination_icons.h"
#include "desktop/row_icons.h"
#include "desktop/style_icons.h"

namespace desktop {

namespace {

struct NamedIcon {
    std::string_view name;
    /// The side of the square that its coordinates are made for.
    double side;
    void (*draw)(QPainter&);
};

constexpr std::array icons{
    NamedIcon{"chart-sheet", 16, drawBarChart},
    NamedIcon{"sheet-stem", 16, drawSheetWithStem},
    NamedIcon{"chart", 16, drawFramedChart},
    NamedIcon{"range", 16, drawGrid},
    NamedIcon{"asc", 16, drawSortable},
    NamedIcon{"powerpoint", 48, drawPowerPoint},
    NamedIcon{"word", 48, drawWord},
    NamedIcon{"html", 48, drawHtml},
    NamedIcon{"pdf", 48, drawPdf},
    NamedIcon{"images", 48, drawImages},
    NamedIcon{"murvane", 48, drawMurvane},
    NamedIcon{"picture", 48, drawPlainPicture},
    NamedIcon{"picture-shadow-around", 48, drawShadowAllAround},
    NamedIcon{"picture-shadow", 48, drawShadowBelow},
    NamedIcon{"picture-rounded", 48, drawRoundedPicture},
    NamedIcon{"picture-reflection", 48, drawReflection},
    NamedIcon{"picture-reflection-rounded", 48, drawRoundedReflection},
};

}  // namespace

bool drawIcon(QPainter& painter, const QRectF& box, std::string_view name) {
    constexpr std::string_view prefix = "icon:";
    if (name.starts_with(prefix)) name.remove_prefix(prefix.size());
    const auto* icon = std::find_if(icons.begin(), icons.end(),
                                    [name](const NamedIcon& each) { return each.name == name; });
    if (icon == icons.end()) return false;
    const double side = std::min(box.width(), box.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(box.center() - QPointF(side / 2, side / 2));
    painter.scale(side / icon->side, side / icon->side);
    icon->draw(painter);
    painter.restore();
    return true;
}

}  // namespace desktop
