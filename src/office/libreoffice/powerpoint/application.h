#pragma once

#include "office/libreoffice/desk.h"
#include "office/value.h"

namespace libreoffice::powerpoint {

/// LibreOffice's presentations under the name of PowerPoint.
[[nodiscard]] office::Object applicationObject(DeskPtr desk);

}  // namespace libreoffice::powerpoint
