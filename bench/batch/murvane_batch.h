#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "bare_batch.h"
#include "office/libreoffice/libreoffice_suite.h"

namespace bench {

struct BatchCost {
    int items = 0;
    /// From the first slide to the saved presentation.
    double seconds = 0;
    /// The part of it in which the presentation is saved.
    double savingSeconds = 0;
    /// Calls answered by the suite in that time.
    std::uint64_t remoteCalls = 0;
    /// Each item's own, the last one's left out.
    std::vector<double> secondsOfItems;

    [[nodiscard]] double secondsAnItem() const { return seconds / items; }
    [[nodiscard]] double callsAnItem() const { return static_cast<double>(remoteCalls) / items; }
};

/// Where the slides are made.
enum class Deck { InTheSuite, AsFile };

/// The product's own batch: opens the workbook and a new presentation, fills the list, exports the
/// rows of a kind with titles and source line, saves. The inventory is not part of the time.
BatchCost runMurvaneBatch(libreoffice::LibreOfficeSuite& suite, Deck where,
                          const std::string& workbook, const std::string& output,
                          const MeasuredItems& what);

}  // namespace bench
