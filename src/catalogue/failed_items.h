#pragma once

#include <string>
#include <vector>

#include "catalogue/export_list.h"
#include "office/failure.h"
#include "session/office_session.h"

namespace catalogue {

/// The items that a batch went on without, told in one notice at its end.
class FailedItems {
public:
    void add(const ExportItem& row, const office::Failure& failure);
    /// Nothing where all went well.
    void tell(session::OfficeSession& session) const;

private:
    std::vector<std::string> lines_;
};

}  // namespace catalogue
