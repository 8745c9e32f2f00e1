#pragma once

#include <memory>
#include <string>
#include <vector>

#include "office/copied.h"
#include "office/package/workbook/workbook_file.h"
#include "office/package/xml.h"

namespace office::package {

/// A chart that was copied, in the file of its workbook.
struct SourceChart {
    /// Why a presentation can't hold it as a chart, as a clause about it: "its data is a pivot
    /// table". Empty if it can; then all of the following is there.
    std::string obstacle;
    WorkbookFilePtr book;
    std::string part;
    std::unique_ptr<Xml> xml;
};

/// Looks for a chart, which is a copy's or about to be. What is wrong with the workbook's file is
/// an obstacle.
[[nodiscard]] SourceChart findChart(const CopySource& source, WorkbookFiles& workbooks);

/// The theme of a workbook, whose colours its charts name; empty if it has none. `PackageError` for
/// one that can't be read.
[[nodiscard]] const std::string& themeOf(WorkbookFile& book);

/// What goes with a chart, or with the markup of one, where it leaves its workbook.
struct Companion {
    enum class Kind {
        Picture,
        /// Markup that leads nowhere.
        Style,
        /// Markup with companions of its own, which are pictures and addresses: the shapes on a
        /// chart, the colours of its theme.
        Markup,
        /// Something outside of the package.
        Address
    };
    Kind kind = Kind::Picture;
    /// As the source has it.
    Relationship relationship;
    /// Empty for an address.
    std::string part;
};
enum class Holder { Chart, Markup };
/// Those of a part which may leave the workbook. `PackageError` for a target that leads nowhere.
[[nodiscard]] std::vector<Companion> companionsOf(Package& book, const std::string& part,
                                                  Holder holder);

/// The attributes of a part that name relationships.
[[nodiscard]] std::vector<pugi::xml_attribute> relationshipIdsIn(const Xml& xml);

}  // namespace office::package
