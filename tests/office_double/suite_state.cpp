#include "office_double/suite_state.h"

namespace office_double {

using support::CallKind;
using support::literal;

office::Value SuiteState::run(const office::model::MemberUse& use,
                              const std::function<office::Value()>& statement) {
    using Kind = office::model::MemberUse::Kind;
    const CallKind kind = use.kind == Kind::Put    ? CallKind::Put
                          : use.kind == Kind::Call ? CallKind::Call
                                                   : CallKind::Get;
    log.add({kind, std::string(use.className), std::string(use.member), literal(use.arguments),
             use.value == nullptr ? std::string() : literal(*use.value)});
    failures.check(use.className, use.member);
    return PackageGuard::run(use, statement);
}

}  // namespace office_double
