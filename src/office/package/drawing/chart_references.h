#pragma once

#include <pugixml.hpp>

#include <vector>

#include "office/package/workbook/chart_cells.h"
#include "office/package/xml.h"

namespace office::package {

/// An element with a formula and what the chart remembers of its cells.
struct ChartReference {
    enum class Memory { Numbers, Texts, Levels };

    pugi::xml_node node;
    pugi::xml_node cache;
    Memory memory = Memory::Numbers;
    CellsOfSheet cells;
    /// Of categories, which may be numbers or texts.
    bool isHeading = false;
    /// Names, titles and single labels are drawn even if their cells are hidden.
    bool isName = false;
};

/// The references of a chart that are to fixed cells.
[[nodiscard]] std::vector<ChartReference> referencesIn(const Xml& chart);

/// Each level of categories as cells of its own, the innermost first; of anything else its cells.
[[nodiscard]] std::vector<CellsOfSheet> levelsOf(const ChartReference& one);

}  // namespace office::package
