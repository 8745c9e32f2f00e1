#pragma once

#include <com/sun/star/task/XInteractionHandler.hpp>
#include <cppuhelper/implbase1.hxx>

#include <atomic>

#include "office/libreoffice/uno_values.h"

namespace libreoffice {

/// Answers what the suite asks while it opens a file: a password with the one given, once;
/// everything else with abort, so that no dialog waits for somebody who is not there.
class PasswordAnswer : public cppu::WeakImplHelper1<css::task::XInteractionHandler> {
public:
    explicit PasswordAnswer(rtl::OUString password) : password_(std::move(password)) {}

    void SAL_CALL handle(const uno::Reference<css::task::XInteractionRequest>& request) override;

    /// Whether a password was asked for.
    [[nodiscard]] bool wasAsked() const { return asked_; }

private:
    rtl::OUString password_;
    std::atomic<bool> asked_ = false;
    std::atomic<bool> given_ = false;
};

}  // namespace libreoffice
