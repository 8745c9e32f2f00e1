#pragma once

#include <string>

#include "office/failure.h"

namespace apps {

/// What is said of a failure that nobody handled and that ends the program.
[[nodiscard]] std::string unhandledFailureReport(const office::Failure& failure);

}  // namespace apps
