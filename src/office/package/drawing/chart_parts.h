#pragma once

#include <map>
#include <string>

#include "office/package/drawing/chart_flags.h"
#include "office/package/workbook/source_chart.h"

namespace office::package {

/// Takes charts of workbooks over into another package.
class ChartParts {
public:
    /// `folder` is that of the package's main part: "/ppt". The package has to outlive it.
    ChartParts(Package& target, std::string folder)
        : package_(target),
          folder_(std::move(folder)) {}

    /// The name of a new part with a chart, which has no obstacle. Its data stays in the workbook
    /// at the address `link`, or goes along in a copy of the workbook if that is empty.
    /// `PackageError` for what goes with the chart and can't be read.
    std::string add(SourceChart chart, const std::string& link);

private:
    /// What the charts of one workbook have in common.
    struct Origin {
        FlagDefaults defaults = FlagDefaults::Standard;
        /// Its theme as one that overrides another; empty if it has none.
        std::string theme;
        int thinLine = 0;
        /// The copy of the workbook; empty while no chart has needed one.
        std::string copy;
        /// Which of its pictures have become which.
        std::map<std::string, std::string> pictures;
    };

    Origin& originOf(const WorkbookFilePtr& book);
    /// Brings along what goes with a part, and tells its markup where that is now.
    void takeCompanions(WorkbookFile& book, Origin& origin, const std::string& source,
                        const std::string& part, const Xml& xml, Holder holder);
    [[nodiscard]] std::string take(WorkbookFile& book, Origin& origin, const Companion& companion);
    void overrideTheme(const Origin& origin, const std::string& part, const Xml& xml);
    [[nodiscard]] std::string copyOf(const WorkbookFile& book, Origin& origin);

    Package& package_;
    std::string folder_;
    std::map<WorkbookFilePtr, Origin> origins_;
};

}  // namespace office::package
