#include "office/libreoffice/guard.h"

#include <com/sun/star/beans/UnknownPropertyException.hpp>
#include <com/sun/star/container/ElementExistException.hpp>
#include <com/sun/star/container/NoSuchElementException.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/lang/IllegalArgumentException.hpp>
#include <com/sun/star/lang/IndexOutOfBoundsException.hpp>
#include <com/sun/star/util/CloseVetoException.hpp>
#include <com/sun/star/util/VetoException.hpp>
#include <fmt/format.h>

namespace libreoffice {

using office::Failure;
using office::FailureNumber;

void throwTranslated(const Connection& connection, const std::string& source) {
    const auto fail = [&](FailureNumber number, std::string_view words,
                          const uno::Exception& error) -> Failure {
        const std::string details = fromUno(error.Message);
        return {number, source,
                details.empty() ? std::string(words) : fmt::format("{}: {}", words, details)};
    };
    try {
        if (connection.isLost())
            throw office::SuiteLost("LibreOffice has ended, or the connection to it broke");
        throw;
    } catch (const css::lang::DisposedException& error) {
        throw fail(FailureNumber::Disconnected, "The object has gone", error);
    } catch (const css::lang::IndexOutOfBoundsException& error) {
        throw fail(FailureNumber::SubscriptOutOfRange, "Subscript out of range", error);
    } catch (const css::container::NoSuchElementException& error) {
        throw fail(FailureNumber::SubscriptOutOfRange, "There is no such element", error);
    } catch (const css::container::ElementExistException& error) {
        throw fail(FailureNumber::ApplicationDefined, "The name is taken", error);
    } catch (const css::beans::UnknownPropertyException& error) {
        throw fail(FailureNumber::NoSuchMember, "The object has no such property", error);
    } catch (const css::lang::IllegalArgumentException& error) {
        throw fail(FailureNumber::InvalidProcedureCall, "Invalid argument", error);
    } catch (const css::util::CloseVetoException& error) {
        throw fail(FailureNumber::PermissionDenied, "The document refuses to close", error);
    } catch (const css::util::VetoException& error) {
        throw fail(FailureNumber::PermissionDenied, "LibreOffice refuses", error);
    } catch (const uno::Exception& error) {
        throw fail(FailureNumber::ApplicationDefined, "LibreOffice reports a failure", error);
    }
}

office::Value ConnectionGuard::run(const office::model::MemberUse& use,
                                   const std::function<office::Value()>& statement) {
    try {
        return statement();
    } catch (const uno::Exception&) {
        throwTranslated(*connection_, fmt::format("{}.{}", use.className, use.member));
    }
}

}  // namespace libreoffice
