#include "destinations/text_area.h"

#include <algorithm>

#include "office/arguments.h"

namespace destinations {

TextArea textAreaOf(const office::Value& page) {
    const double toEdge = page.get("PageWidth").toDouble() - page.get("LeftMargin").toDouble();
    return {std::min(toEdge - page.get("RightMargin").toDouble(),
                     page.get("TextColumns").get("Width").toDouble()),
            page.get("PageHeight").toDouble() - page.get("TopMargin").toDouble() -
                page.get("BottomMargin").toDouble(),
            toEdge};
}

office::Size sizeOf(const office::Object& shape) {
    return {shape.get("Width").toDouble(), shape.get("Height").toDouble()};
}

void fit(const office::Object& shape, const office::Size& natural, double width,
         const TextArea& area) {
    const double scale = std::min(width / natural.width, area.room() / natural.height);
    shape.put("Width", natural.width * scale);
    shape.put("Height", natural.height * scale);
}

}  // namespace destinations
