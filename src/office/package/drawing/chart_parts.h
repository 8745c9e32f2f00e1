#pragma once

#include <map>
#include <string>
#include <vector>

#include "office/package/drawing/chart_flags.h"
#include "office/package/drawing/chart_looks.h"
#include "office/package/workbook/cell_number_formats.h"
#include "office/package/workbook/source_chart.h"

namespace office::package {

/// Takes charts of workbooks over into another package.
class ChartParts {
public:
    /// `folder` is that of the package's main part: "/ppt". The package has to outlive it.
    ChartParts(Package& target, std::string folder)
        : package_(target),
          folder_(std::move(folder)) {}

    /// The name of a new part with a chart that was copied, which has no obstacle. Its data stays
    /// in the workbook at the address `link`, or goes along in a copy of the workbook if that is
    /// empty. `PackageError` for what goes with the chart and can't be read; then nothing has been
    /// added.
    std::string add(SourceChart chart, const Copied& copied, const std::string& link);

private:
    /// What the charts of one workbook have in common.
    struct Origin {
        explicit Origin(WorkbookFile& book) : formats(book) {}

        CellNumberFormats formats;
        FlagDefaults defaults = FlagDefaults::Standard;
        /// Its theme as one that overrides another; empty if it has none.
        std::string theme;
        ThinLine thinLine;
        /// The first copy of the workbook; empty while no chart has needed one.
        std::string copy;
        /// Which of its pictures have become which.
        std::map<std::string, std::string> pictures;
    };

    /// What goes with a part, as it was read.
    struct Luggage {
        Companion companion;
        std::string type;
        /// Empty for addresses and for pictures that have been taken before.
        std::string bytes;
        /// What goes with markup in turn.
        std::vector<Luggage> more;
    };

    Origin& originOf(const WorkbookFilePtr& book);
    [[nodiscard]] static std::vector<Luggage> pack(Package& book, const Origin& origin,
                                                   const std::string& source, Holder holder);
    /// Adds what goes with a part, and tells its markup where that is now.
    void unpack(std::vector<Luggage> luggage, Origin& origin, const std::string& part,
                const Xml& xml);
    [[nodiscard]] std::string add(Luggage one, Origin& origin);
    void overrideTheme(const Origin& origin, const std::string& part, const Xml& xml);
    /// A copy of the workbook for one chart alone. `bytes` are needed for the first one.
    [[nodiscard]] std::string addCopy(const WorkbookFile& book, std::string bytes, Origin& origin);

    Package& package_;
    std::string folder_;
    std::map<WorkbookFilePtr, Origin> origins_;
};

}  // namespace office::package
