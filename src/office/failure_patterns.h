#pragma once

#include <optional>
#include <utility>

#include "office/failure.h"

/// How a procedure meets failing calls. There are four ways, and a reader sees at the procedure
/// which one it uses:
///
///   1. `ContinueOnFailure`: every statement is one `attempt`; a failing one is skipped and the
///   next one runs.
///   2. `failed()` and `clear()` of such a scope, between two attempts: test, clear, fall back.
///   3. `orElse`: one handler for a whole procedure, which lets a default result stand.
///   4. plain code: the failure goes to the caller and, if nobody handles it, ends the process with
///   a report.
///
/// A lost application (`SuiteLost`) passes through the first three: no later statement could work
/// either.
namespace office {

class ContinueOnFailure {
public:
    /// Runs one statement. True if it went through.
    template <class Statement>
    bool attempt(Statement&& statement) {
        try {
            std::forward<Statement>(statement)();
            return true;
        } catch (const SuiteLost&) {
            throw;
        } catch (const Failure& failure) {
            last_ = failure;
            return false;
        }
    }

    /// Evaluates one expression; `otherwise` stands in for it when it fails.
    template <class Expression, class Result>
    Result read(Expression&& expression, Result otherwise) {
        attempt([&] { otherwise = std::forward<Expression>(expression)(); });
        return otherwise;
    }

    /// Whether any statement failed since the scope began or since the last `clear`. A later
    /// success does not reset it.
    [[nodiscard]] bool failed() const { return last_.has_value(); }
    [[nodiscard]] const std::optional<Failure>& lastFailure() const { return last_; }
    void clear() { last_.reset(); }

    /// Notes a failure of the procedure's own, as a raised one inside the scope would be.
    void raise(Failure failure) { last_ = std::move(failure); }

private:
    std::optional<Failure> last_;
};

/// Runs a whole procedure; if any of its calls fails, `otherwise` is its result.
template <class Procedure, class Result>
Result orElse(Procedure&& procedure, Result otherwise) {
    try {
        return static_cast<Result>(std::forward<Procedure>(procedure)());
    } catch (const SuiteLost&) {
        throw;
    } catch (const Failure&) {
        return otherwise;
    }
}

}  // namespace office
