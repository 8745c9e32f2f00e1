#include "destinations/text_area.h"

#include "office/arguments.h"

namespace destinations {

double textWidthOf(const office::Value& page) {
    return page.get("PageWidth").toDouble() - page.get("LeftMargin").toDouble() -
           page.get("RightMargin").toDouble();
}

Sides textAreaOf(const office::Value& page) {
    const double height = page.get("PageHeight").toDouble() - page.get("TopMargin").toDouble() -
                          page.get("BottomMargin").toDouble();
    return {textWidthOf(page), height};
}

}  // namespace destinations
