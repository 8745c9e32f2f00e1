#pragma once

#include <com/sun/star/awt/Point.hpp>

#include "office/libreoffice/excel/sheet_record.h"

namespace libreoffice::excel {

/// The cell of a sheet that a point lies in, the point in hundredths of a millimetre.
[[nodiscard]] CellBlock cellAt(const SheetRecord& sheet, const css::awt::Point& point);

}  // namespace libreoffice::excel
