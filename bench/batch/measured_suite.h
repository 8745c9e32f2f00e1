#pragma once

#include <memory>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/libreoffice_suite.h"

namespace bench {

/// One private suite, reached by the product and by the bare program alike.
struct MeasuredSuite {
    MeasuredSuite();

    std::shared_ptr<libreoffice::Connection> connection;
    std::unique_ptr<libreoffice::LibreOfficeSuite> suite;

    /// The most memory that the suite has had so far, in megabytes.
    [[nodiscard]] double peakMegabytes() const;
};

/// The most memory that a process has had so far ("self" or a process id), in megabytes.
[[nodiscard]] double peakMegabytesOf(const std::string& process);

}  // namespace bench
