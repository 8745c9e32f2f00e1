#include "furniture/progress_bar.h"

#include <algorithm>
#include <utility>

namespace furniture {

void ProgressBar::setValue(std::int32_t value) {
    const std::int32_t kept = std::clamp(value, 0, 100);
    if (std::exchange(value_, kept) != kept && onChange) onChange();
}

void ProgressBar::Clear() {
    value_ = 0;
    caption.clear();
}

}  // namespace furniture
