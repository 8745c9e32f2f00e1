#pragma once

#include <memory>
#include <string>

#include "catalogue/export_choices.h"

namespace libreoffice {
class Connection;
}

namespace bench {

/// What a batch is made of.
struct MeasuredItems {
    catalogue::ExportFormat format = catalogue::ExportFormat::Pictures;
    /// The workbook's ranges of 60 cells in place of its charts.
    bool areRanges = false;
};

/// The least that any program must do to bring the charts or the ranges of a workbook to slides:
/// open both documents, add a slide, put the item on it, save. Of pictures the suite draws each
/// chart as a PNG of three-fold density; other items go over the clipboard as the suite itself
/// pastes them, and linked ones all show the same picture. No list, no review, no
/// placement, no titles, and the looks that the suite leaves out are missing. Returns the seconds
/// of the part between opening and saving.
double runBareBatch(const libreoffice::Connection& connection, const std::string& workbook,
                    const std::string& output, int items, const MeasuredItems& what);

}  // namespace bench
