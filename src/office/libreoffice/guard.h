#pragma once

#include <string>
#include <utility>

#include "office/libreoffice/desk.h"
#include "office/model/guard.h"

namespace libreoffice {

/// Called inside a handler for a UNO exception: throws the `office::Failure` that stands for it, or
/// `office::SuiteLost` if the connection broke. The one place where UNO's errors become the port's.
[[noreturn]] void throwTranslated(const Connection& connection, const std::string& source);

/// Runs a statement with UNO's errors as the port's.
template <class Statement>
auto translated(const Connection& connection, const std::string& source, Statement&& statement) {
    try {
        return std::forward<Statement>(statement)();
    } catch (const uno::Exception&) {
        throwTranslated(connection, source);
    }
}

/// Runs the members of model objects over a connection.
class ConnectionGuard : public office::model::Guard {
public:
    explicit ConnectionGuard(std::shared_ptr<Connection> connection)
        : connection_(std::move(connection)) {}

    office::Value run(const office::model::MemberUse& use,
                      const std::function<office::Value()>& statement) override;

private:
    std::shared_ptr<Connection> connection_;
};

}  // namespace libreoffice
