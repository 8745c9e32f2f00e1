#include "apps/failure_report.h"

#include <fmt/format.h>

namespace apps {

std::string unhandledFailureReport(const office::Failure& failure) {
    return fmt::format("Murvane: unhandled failure {} from {}: {}", failure.number(),
                       failure.source(), failure.description());
}

}  // namespace apps
