#pragma once

#include <string>
#include <string_view>

#include "office/libreoffice/desk.h"
#include "office/model/guard.h"
#include "office/scripted.h"

namespace libreoffice {

/// Called inside a handler for a UNO exception: throws the `office::Failure` that stands for it, or
/// `office::SuiteLost` if the connection broke. The one place where UNO's errors become the port's.
[[noreturn]] void throwTranslated(const Connection& connection, const std::string& source);

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

/// Runs each member of an adapter object: first asks whether its document is still open, then
/// translates what UNO throws.
struct UnoGuard {
    template <class Self, class Statement>
    static office::Value run(Self& self, std::string_view member, Statement&& statement) {
        self.requireAlive(member);
        try {
            return std::forward<Statement>(statement)();
        } catch (const uno::Exception&) {
            throwTranslated(self.desk().connection(),
                            Self::members().className() + "." + std::string(member));
        }
    }
};

/// Base of all adapter classes: a member table, the desk, and the document that the object lives
/// in, if any.
template <class Self>
class UnoObject : public office::Scripted<Self, UnoGuard> {
public:
    explicit UnoObject(DeskPtr desk, std::shared_ptr<Document> document = nullptr)
        : desk_(std::move(desk)),
          owner_(std::move(document)) {}

    [[nodiscard]] Desk& desk() const { return *desk_; }
    [[nodiscard]] const DeskPtr& deskPtr() const { return desk_; }

    void requireAlive(std::string_view member) const {
        if (owner_) owner_->requireOpen(member);
    }

private:
    DeskPtr desk_;
    std::shared_ptr<Document> owner_;
};

/// A new adapter object as the core sees it.
template <class Class, class... Args>
[[nodiscard]] office::Object makeObject(Args&&... args) {
    return office::Object(std::make_shared<Class>(std::forward<Args>(args)...));
}

}  // namespace libreoffice
