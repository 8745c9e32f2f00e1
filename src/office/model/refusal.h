#pragma once

#include <string>

#include "office/value.h"

namespace office::model {

/// Something that the application refuses: `Failure` 1004.
[[noreturn]] void refuse(const std::string& source, const std::string& why);

/// The number that a setting gets. `Failure` 5 if it lies outside.
[[nodiscard]] double numberWithin(double low, double high, const Value& value,
                                  const std::string& source);

}  // namespace office::model
