// How the text of a shape of a file and its frame come to fit each other.

#include <algorithm>

#include "office/package/presentation/file_deck.h"
#include "office/package/presentation/file_shape.h"
#include "office/package/presentation/file_slide.h"
#include "office/text.h"

namespace office::package {

namespace {

constexpr std::string_view bodyOrder =
    "prstTxWarp noAutofit normAutofit spAutoFit scene3d sp3d flatTx extLst";

constexpr double plainSideMarginPt = 7.2;
constexpr double plainUpperMarginPt = 3.6;

/// Of the nearest that says it; null if none does.
pugi::xml_attribute nearest(const std::vector<pugi::xml_node>& properties, const char* name) {
    for (const pugi::xml_node one : properties) {
        if (const auto said = one.attribute(name)) return said;
    }
    return {};
}

/// What the margins of a text take of its frame, both of each direction.
Size marginsIn(const std::vector<pugi::xml_node>& properties) {
    const auto margin = [&](const char* name, double plainPt) {
        return nearest(properties, name).as_double(plainPt * emuPerPoint) / emuPerPoint;
    };
    return {margin("lIns", plainSideMarginPt) + margin("rIns", plainSideMarginPt),
            margin("tIns", plainUpperMarginPt) + margin("bIns", plainUpperMarginPt)};
}

/// Whether a text lies as it is read and becomes smaller where there is too much of it.
bool shrinks(const std::vector<pugi::xml_node>& properties) {
    if (nearest(properties, "vert").as_string("horz") != std::string_view("horz")) return false;
    for (const pugi::xml_node one : properties) {
        if (childNamed(one, ns::drawing, "normAutofit")) return true;
        if (childNamed(one, ns::drawing, "noAutofit") || childNamed(one, ns::drawing, "spAutoFit"))
            return false;
    }
    return false;
}

/// The distance of lines in shares of the usual one. One in points counts as usual.
double lineSpacingIn(const std::vector<pugi::xml_node>& paragraphs) {
    for (const pugi::xml_node one : paragraphs) {
        const auto spacing = childNamed(one, ns::drawing, "lnSpc");
        if (!spacing) continue;
        const auto said = childNamed(spacing, ns::drawing, "spcPct").attribute("val");
        const bool isPercent = std::string_view(said.value()).ends_with('%');
        return said ? said.as_double() / (isPercent ? 100 : wholeShare) : 1;
    }
    return 1;
}

}  // namespace

Size FileShape::measured(double scale, std::optional<double> widthPt) {
    Font drawn = font();
    drawn.sizePt *= scale;
    return slide_.deck().measure()(replaceAll(replaceAll(words(), "\v", "\n"), "\r", "\n"), drawn,
                                   widthPt);
}

void FileShape::fitText() {
    if (placeholder())
        shrinkText();
    else
        growWithText();
}

void FileShape::growWithText() {
    const auto body = childNamed(textBody(), ns::drawing, "bodyPr");
    if (!childNamed(body, ns::drawing, "spAutoFit")) return;
    const Size margins = marginsIn({body});
    Frame place = frame();
    const auto width =
        wraps() ? std::optional(std::max(place.size.width - margins.width, 1.0)) : std::nullopt;
    const Size text = measured(1, width);
    if (!width) place.size.width = text.width + margins.width;
    place.size.height = text.height + margins.height;
    setFrame(place);
}

/// PowerPoint reckons how small a text has to be when somebody edits it. Until then it goes by what
/// the slide says.
void FileShape::shrinkText() {
    const auto bodies = inherited("bodyPr");
    const pugi::xml_node own = bodies.front();
    if (!own || !shrinks(bodies)) return;
    const Size margins = marginsIn(bodies);
    const Size whole = frame().size;
    const Size room = {whole.width - margins.width, whole.height - margins.height};
    if (room.width <= 0 || room.height <= 0) return;
    auto paragraphs = levelProperties();
    const auto first = childNamed(textBody(), ns::drawing, "p");
    paragraphs.insert(paragraphs.begin(), childNamed(first, ns::drawing, "pPr"));
    const double spacing = lineSpacingIn(paragraphs);
    const auto width = wraps() ? std::optional(room.width) : std::nullopt;

    constexpr int step = 10;
    constexpr int least = 30;
    int percent = 100;
    while (percent > least && !words().empty() &&
           measured(percent / 100.0, width).height * spacing > room.height)
        percent -= step;
    auto fit = childNamed(own, ns::drawing, "normAutofit");
    if (percent == 100 && !fit) return;
    if (!fit) fit = childInOrder(own, ns::drawing, "normAutofit", bodyOrder);
    fit.remove_attributes();
    if (percent < 100) attributeFor(fit, "fontScale").set_value(percent * 1000);
}

}  // namespace office::package
