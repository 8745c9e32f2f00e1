#include "destinations/text_area.h"

#include <algorithm>

#include "office/arguments.h"

namespace destinations {

TextArea textAreaOf(const office::Value& page) {
    const auto length = [&](const char* name) { return page.get(name).toDouble(); };
    const double toEdge = length("PageWidth") - length("LeftMargin");
    const double text = toEdge - length("RightMargin");
    const double column = page.get("TextColumns").get("Width").toDouble();
    // A column of several cuts off what is wider.
    const bool isNarrower = column < text - 0.5;
    return {std::min(text, column),
            length("PageHeight") - length("TopMargin") - length("BottomMargin"),
            isNarrower ? column : toEdge};
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
