#pragma once

#include <functional>
#include <string>
#include <vector>

#include "catalogue/export_choices.h"
#include "office/failure.h"
#include "session/office_session.h"

namespace catalogue {

/// Told of an item that failed; the export then goes on with the next one.
using OnFailedItem = std::function<void(const ExportItem& row, const office::Failure& failure)>;

/// Gives a row its turn. A failure is told where somebody wants to know of it. Otherwise it goes to
/// the caller, as does one of a file that can't be written: a full disk is one for every item.
/// False after one that was told.
bool letHaveTurn(const OnFailedItem& onFailedItem, const ExportItem& row,
                 const std::function<void()>& turn);

/// The items that a batch went on without, told in one notice at its end.
class FailedItems {
public:
    void add(const ExportItem& row, const office::Failure& failure);
    /// One of which nobody can say which it is.
    void add(const office::Failure& failure);
    /// Nothing where all went well.
    void tell(session::OfficeSession& session) const;

private:
    std::vector<std::string> lines_;
};

/// Runs an export and tells of its failed items, also where it ends by a failure, which then goes
/// to the caller.
void exportAndTellOfFailed(session::OfficeSession& session,
                           const std::function<void(FailedItems& failed)>& runExport);

}  // namespace catalogue
