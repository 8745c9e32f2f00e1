#pragma once

#include <string>

#include "forms/form.h"

namespace desktop {

/// Writes a picture of a form as it stands on the screen, a PNG in the screen's own pixels. False
/// if the form has no window of this desktop or the file cannot be written.
bool grabForm(const forms::Form& form, const std::string& path);

}  // namespace desktop
