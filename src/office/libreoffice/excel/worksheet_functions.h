#pragma once

#include "office/libreoffice/excel/application_object.h"

namespace libreoffice::excel {

/// The functions of worksheets that the application offers as members: `Rept`, `Substitute`,
/// `Trim`, `Max`. They are worked out here, without a call.
void addWorksheetFunctions(office::MemberTable<Application>& table);

}  // namespace libreoffice::excel
