#include "session/embedded_charts.h"

#include "office/failure_patterns.h"
#include "session/ranges.h"

namespace session {

bool selectionTouchesEmbeddedChart(OfficeSession& session) {
    office::ContinueOnFailure scope;
    const office::Object& excel = session.ExcelApp;
    office::Object charts;
    std::int32_t count = 0;
    scope.attempt([&] {
        charts = excel.get("ActiveSheet").get("ChartObjects").toObject();
        count = charts.get("Count").toLong();
    });
    for (std::int32_t i = 1; i <= count; ++i) {
        bool meets = false;
        scope.attempt([&] {
            const office::Value chart = charts.get("Item", i);
            const office::Value under =
                excel.get("Range", chart.get("TopLeftCell"), chart.get("BottomRightCell"));
            meets = RangesIntersect(session, excel.get("Selection").toObject(), under.toObject());
        });
        if (meets) return true;
    }
    return false;
}

}  // namespace session
