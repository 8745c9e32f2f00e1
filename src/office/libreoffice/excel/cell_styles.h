#pragma once

#include <com/sun/star/beans/XMultiPropertyStates.hpp>
#include <com/sun/star/frame/XModel.hpp>

#include <vector>

#include "office/libreoffice/uno_values.h"

namespace libreoffice::excel {

using CellStyle = uno::Reference<css::beans::XMultiPropertyStates>;

/// Null if the workbook has no such style.
[[nodiscard]] CellStyle cellStyle(const uno::Reference<css::frame::XModel>& book,
                                  const rtl::OUString& name);
/// The one that a style names as its parent; null without one.
[[nodiscard]] CellStyle parentOf(const uno::Reference<css::frame::XModel>& book,
                                 const CellStyle& style);
/// What a style says itself, sorted. Themes' colours and the lines within tables, which are said
/// once more by other names, are left out.
[[nodiscard]] std::vector<rtl::OUString> ownProperties(const CellStyle& style);
/// Besides what its parents say, theirs, and so on.
[[nodiscard]] std::vector<rtl::OUString> propertiesAlongParents(
    const uno::Reference<css::frame::XModel>& book, const CellStyle& style);
/// Whether what a style leaves open, beside its own properties, is as its parents say. The styles
/// of conditional formats in Excel's files name a parent, but leave that to the cell.
[[nodiscard]] bool takesAfterParent(const uno::Reference<css::frame::XModel>& book,
                                    const CellStyle& style, const std::vector<rtl::OUString>& own);

}  // namespace libreoffice::excel
