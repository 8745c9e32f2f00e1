#pragma once

#include <string>
#include <vector>

#include "office/libreoffice/uno_values.h"
#include "office/model/excel/cell_block.h"

namespace libreoffice::excel {

/// What the file of a workbook says and LibreOffice forgets when it loads it.
struct WorkbookFacts {
    struct Sheet {
        std::string name;
        /// The part that holds the sheet.
        std::string part;
        bool isChartSheet = false;
        bool isVeryHidden = false;
    };

    /// Whether the file could be read at all; if not, the rest says nothing.
    bool known = false;
    std::vector<Sheet> sheets;
    bool structureIsLocked = false;
    /// Whoever wrote the file left the calculating to who opens it: the results in it are no
    /// results.
    bool calculatesOnLoad = false;
};

/// Read from the file itself, which is let go of again at once.
[[nodiscard]] WorkbookFacts readWorkbookFacts(const rtl::OUString& url);

/// The cells of a sheet's tables and pivot tables that a style of tables colours, by the part that
/// holds the sheet. LibreOffice draws no such style.
[[nodiscard]] office::model::excel::CellBlocks readStyledTables(const rtl::OUString& url,
                                                                const std::string& sheetPart);

/// The cells of a sheet with sparklines, of which LibreOffice tells nothing.
[[nodiscard]] office::model::excel::CellBlocks readSparklines(const rtl::OUString& url,
                                                              const std::string& sheetPart);

}  // namespace libreoffice::excel
