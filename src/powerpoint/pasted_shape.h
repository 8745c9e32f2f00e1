#pragma once

#include <cstdint>

#include "catalogue/export_list.h"
#include "session/office_session.h"

/// What the routes do with a slide and with what has arrived on it.
namespace powerpoint {

/// A slide of the session's presentation, from 1.
[[nodiscard]] office::Object slideOf(const session::OfficeSession& session,
                                     std::int32_t slideIndex);

/// Gives a shape the row's caption as alternative text, or the object's name where that is empty.
/// Left alone where the application refuses.
void describeShape(const office::Object& shape, const catalogue::ExportItem& row);
void describeLastShape(const office::Object& slide, const catalogue::ExportItem& row);

}  // namespace powerpoint
