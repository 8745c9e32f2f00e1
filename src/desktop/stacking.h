#pragma once

#include <vector>

#include "forms/form.h"

namespace desktop {

class ControlView;

/// The views from the back to the front. Those without a window of their own (texts, pictures,
/// shapes) stand behind all that have one, whatever their layers; within each kind the layer
/// counts, and then the order of making.
[[nodiscard]] std::vector<ControlView*> fromBackToFront(std::vector<ControlView*> views);

/// The controls as Tab visits them: siblings by tab index, or by the order of making where they
/// have none, what stands in a frame at the frame's turn, and the title bar last.
[[nodiscard]] std::vector<const forms::Control*> tabOrderOf(const forms::Form& form);

}  // namespace desktop
