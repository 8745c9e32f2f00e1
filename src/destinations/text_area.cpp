#include "destinations/text_area.h"

#include "office/arguments.h"

namespace destinations {

namespace {

double toEdgeOf(const office::Value& page) {
    return page.get("PageWidth").toDouble() - page.get("LeftMargin").toDouble();
}

}  // namespace

TextArea textAreaOf(const office::Value& page) {
    const double toEdge = toEdgeOf(page);
    return {toEdge - page.get("RightMargin").toDouble(),
            page.get("PageHeight").toDouble() - page.get("TopMargin").toDouble() -
                page.get("BottomMargin").toDouble(),
            toEdge};
}

double textWidthOf(const office::Value& page) {
    return toEdgeOf(page) - page.get("RightMargin").toDouble();
}

}  // namespace destinations
