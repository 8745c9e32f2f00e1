#pragma once

#include <com/sun/star/beans/XMultiPropertySet.hpp>

#include "office/libreoffice/uno_values.h"

namespace libreoffice::word {

/// How long lines are at a place of a text, in points: `ofPage`, or less in a cell, in a frame, or
/// in the columns of a section or of the page's style. Of cells that have been split and joined, it
/// is that of the table.
[[nodiscard]] double lineWidthAt(const uno::Reference<css::beans::XMultiPropertySet>& place,
                                 const uno::Reference<css::beans::XMultiPropertySet>& pageStyle,
                                 double ofPage);

}  // namespace libreoffice::word
