#pragma once

#include <com/sun/star/frame/XModel.hpp>

#include <string>

#include "office/libreoffice/connection.h"

namespace libreoffice::objects {

/// Copies a sheet of one workbook into another, which has one empty sheet, and puts it first there
/// instead of that one. Charts on it come along, and with them, hidden and without charts of their
/// own, the sheets that they draw on. Formulas that refer to what is not there any more become
/// their values.
void copySheet(const Connection& connection, const uno::Reference<css::frame::XModel>& from,
               const std::string& sheet, const uno::Reference<css::frame::XModel>& into);

}  // namespace libreoffice::objects
