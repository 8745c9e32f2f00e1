#pragma once

#include "catalogue/export_list.h"
#include "session/office_session.h"

namespace catalogue {

/// Puts the rows into the store of the active workbook, in the place of what it holds. The order of
/// the list becomes that of the store. The workbook itself isn't saved. What fails is passed over.
void SaveListToStore(session::OfficeSession& session, const ExportList& list);

}  // namespace catalogue
