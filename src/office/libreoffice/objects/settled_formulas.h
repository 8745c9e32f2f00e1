#pragma once

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>

#include "office/libreoffice/connection.h"

namespace libreoffice::objects {

/// Formulas of a copied sheet that refer to sheets that did not come along refer to the file they
/// came from: they become the values that they have on the sheet `from`. The copy bears the name
/// `name` in the workbook `book`.
void settleFormulas(const uno::Reference<css::sheet::XSpreadsheet>& from,
                    const uno::Reference<css::frame::XModel>& book, const rtl::OUString& name);

/// Whether a workbook has such formulas.
[[nodiscard]] bool refersElsewhere(const uno::Reference<css::frame::XModel>& book);

}  // namespace libreoffice::objects
