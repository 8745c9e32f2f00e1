#pragma once

#include "office/value.h"
#include "session/picture_look.h"

namespace powerpoint {

/// Gives a look to a shape. A setting that the shape refuses is skipped.
void ApplyPictureStyle(session::PictureLook look, const office::Object& shape);

}  // namespace powerpoint
