#include "office/model/refusal.h"

#include <fmt/format.h>

#include "office/failure.h"

namespace office::model {

void refuse(const std::string& source, const std::string& why) {
    throw Failure(FailureNumber::ApplicationDefined, source, why);
}

double numberWithin(double low, double high, const Value& value, const std::string& source) {
    const double number = value.toDouble();
    if (!(number >= low && number <= high))
        throw Failure(FailureNumber::InvalidProcedureCall, source,
                      fmt::format("{}: the value {} is out of range", source, number));
    return number;
}

}  // namespace office::model
