#pragma once

#include "session/office_session.h"

namespace destinations {

/// Writes what is selected in Excel, a chart or one block of cells, to "Murvane.png" in the folder
/// for images, over the picture of an earlier run, and says so in a plain box. With anything else
/// selected the box says that there is nothing to save. What can't be written is a failure.
void SaveSelectionAsImage(session::OfficeSession& session);

}  // namespace destinations
