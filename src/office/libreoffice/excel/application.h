#pragma once

#include "office/libreoffice/desk.h"
#include "office/value.h"

namespace libreoffice::excel {

/// The running Excel, as automation sees it: LibreOffice's workbooks.
[[nodiscard]] office::Object applicationObject(DeskPtr desk);

}  // namespace libreoffice::excel
