#include "office/libreoffice/password_answer.h"

#include <com/sun/star/task/DocumentMSPasswordRequest2.hpp>
#include <com/sun/star/task/DocumentPasswordRequest.hpp>
#include <com/sun/star/task/PasswordRequest.hpp>
#include <com/sun/star/task/XInteractionAbort.hpp>
#include <com/sun/star/task/XInteractionApprove.hpp>
#include <com/sun/star/task/XInteractionPassword.hpp>
#include <com/sun/star/task/XInteractionRequest.hpp>

namespace libreoffice {

void PasswordAnswer::handle(const uno::Reference<css::task::XInteractionRequest>& request) {
    css::task::PasswordRequest wanted;
    const bool isPassword = request->getRequest() >>= wanted;
    if (isPassword) asked_ = true;
    const bool give = isPassword && !password_.isEmpty() && !given_.exchange(true);
    uno::Reference<css::task::XInteractionAbort> abort;
    const auto continuations = request->getContinuations();
    for (const auto& continuation : continuations) {
        if (const auto slot = tryAs<css::task::XInteractionPassword>(continuation);
            give && slot.is()) {
            slot->setPassword(password_);
            slot->select();
            return;
        }
        if (!abort.is()) abort = tryAs<css::task::XInteractionAbort>(continuation);
    }
    if (abort.is()) abort->select();
}

}  // namespace libreoffice
