#pragma once

#include "support/wrapping_suite.h"

namespace support {

/// Any suite, with a record of the calls made into its applications.
///
///     CountingSuite counting(suite);
///     ...
///     EXPECT_EQ(counting.log().count("Range.Value", CallKind::Put), 1U);
class CountingSuite : public WrappingSuite {
public:
    explicit CountingSuite(office::Suite& inner)
        : WrappingSuite(inner, [this](const RecordedCall& call) { log_.add(call); }) {}

    [[nodiscard]] CallLog& log() { return log_; }

private:
    CallLog log_;
};

}  // namespace support
