#include "office/failure.h"

#include <utility>

namespace office {

Failure::Failure(FailureNumber number, std::string source, const std::string& description)
    : Failure(static_cast<std::int32_t>(number), std::move(source), description) {}

Failure::Failure(std::int32_t number, std::string source, const std::string& description)
    : std::runtime_error(description),
      number_(number),
      source_(std::move(source)) {}

std::string Failure::sentence() const {
    const std::string text = description();
    return text + (text.ends_with('.') ? "" : ".");
}

SuiteLost::SuiteLost(const std::string& description)
    : Failure(FailureNumber::Disconnected, "Application", description) {}

void refuse(const std::string& source, const std::string& why) {
    Failure refusal(FailureNumber::ApplicationDefined, source, why);
    refusal.isRefusal_ = true;
    throw refusal;
}

void refuseCall(const std::string& source, const std::string& why) {
    throw Failure(FailureNumber::InvalidProcedureCall, source, why);
}

}  // namespace office
