#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "office/value.h"

namespace office::model {

/// One use of a member of a model object.
struct MemberUse {
    enum class Kind { Get, Put, Call };

    Kind kind;
    std::string_view className;
    /// As the caller spelt it.
    std::string_view member;
    const Arguments& arguments;
    /// What a `Put` writes; null for the others.
    const Value* value;
};

/// What every member of a model object runs through: the one place where a back end turns its own
/// errors into `Failure`, and `SuiteLost` once the suite has gone.
class Guard {
public:
    Guard() = default;
    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;
    virtual ~Guard() = default;

    /// Runs the statement and gives its result.
    virtual Value run(const MemberUse& use, const std::function<Value()>& statement) = 0;
};

using GuardPtr = std::shared_ptr<Guard>;

}  // namespace office::model
