#pragma once

#include <memory>
#include <string>

namespace libreoffice {
class Connection;
}

namespace bench {

/// The least that any program must do to bring the charts of a workbook to slides: open both
/// documents, let the suite draw each chart as a PNG of three-fold density, add a slide, put the
/// picture on it, save. No list, no review, no placement, no titles. Returns the seconds of the
/// part between opening and saving.
double runBareBatch(const libreoffice::Connection& connection, const std::string& workbook,
                    const std::string& output, int items);

}  // namespace bench
