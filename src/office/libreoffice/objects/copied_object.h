#pragma once

#include <com/sun/star/frame/XModel.hpp>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/excel/copied.h"
#include "office/libreoffice/objects/new_object.h"

/// Embedded objects of what was copied in Calc, made in the storage of the document that they are
/// to stand in.
namespace libreoffice::objects {

/// What was copied here, with all that this suite knows of it. `office::Failure` 1004 of a member
/// for a picture, and for what another program has copied.
[[nodiscard]] const excel::CopiedHere& copiedHere(const office::Copied& copied, const char* member);

/// Fills an object with a chart. As a document of another kind has no cells, the chart that is read
/// from there takes its values from the table that is stored with it.
void storeChart(NewObject& object, const excel::CopiedChart& chart);

/// Fills an object with an empty workbook, which opens at the place where the copied thing stands.
void storeEmptyWorkbook(NewObject& object, const excel::CopiedHere& copied);

/// Copies the sheet that the copied thing stands on into that workbook once it is loaded. Other
/// sheets come along as far as charts there draw on them, and are hidden.
void fillWorkbook(const Connection& connection, const excel::CopiedHere& copied,
                  const uno::Reference<css::frame::XModel>& workbook);

}  // namespace libreoffice::objects
