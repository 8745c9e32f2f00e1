#pragma once

#include "catalogue/export_choices.h"
#include "office/value.h"

/// What the routes do with a slide and with what has arrived on it.
namespace powerpoint {

/// Gives a shape the row's caption as alternative text, or the object's name where that is empty.
/// Left alone where the application refuses.
void describeShape(const office::Object& shape, const catalogue::ExportItem& row);
void describeLastShape(const office::Object& slide, const catalogue::ExportItem& row);

}  // namespace powerpoint
