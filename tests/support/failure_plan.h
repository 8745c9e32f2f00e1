#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "office/failure.h"

namespace support {

/// Which of the coming calls are to fail. Members are named as in `meansMember`.
class FailurePlan {
public:
    /// The n-th call of the member from now on fails, once.
    void fail(std::string member, int nth = 1,
              office::FailureNumber number = office::FailureNumber::ApplicationDefined);
    /// The n-th call of the member fails by what another one has left behind.
    void failAfter(std::string culprit, std::string member, int nth);
    /// Every call of the member fails from now on.
    void failAlways(std::string member,
                    office::FailureNumber number = office::FailureNumber::ApplicationDefined);
    /// The application goes away at the n-th call of any member from now on, and stays away.
    void loseSuiteAt(int nth) { callsUntilLost_ = nth; }
    void loseSuite() { lost_ = true; }

    [[nodiscard]] bool suiteIsLost() const { return lost_; }

    /// Asked before each call: throws what is planned for it.
    void check(std::string_view className, std::string_view member);

private:
    struct Planned {
        std::string member;
        int callsLeft;
        bool always;
        office::FailureNumber number;
        std::string culprit = {};
    };

    std::vector<Planned> planned_;
    std::optional<int> callsUntilLost_;
    bool lost_ = false;
};

}  // namespace support
