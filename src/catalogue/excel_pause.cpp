#include "catalogue/excel_pause.h"

#include "office/failure_patterns.h"

namespace catalogue {

namespace {

constexpr std::int32_t manualCalculation = -4135;
constexpr std::int32_t automaticCalculation = -4105;

}  // namespace

// By way of the other constructor, so that a failure half-way through is undone as well.
ExcelPause::ExcelPause(session::OfficeSession& session) : ExcelPause(session.ExcelApp) {
    excel_.put("ScreenUpdating", false);
    excel_.put("EnableEvents", false);
    excel_.put("Calculation", manualCalculation);
}

ExcelPause::~ExcelPause() {
    try {
        office::ContinueOnFailure scope;
        scope.attempt([&] { excel_.put("ScreenUpdating", true); });
        scope.attempt([&] { excel_.put("EnableEvents", true); });
        scope.attempt([&] { excel_.put("Calculation", automaticCalculation); });
    } catch (const office::SuiteLost&) {
        // Excel has gone; the call that follows says so.
        excel_.release();
    }
}

}  // namespace catalogue
