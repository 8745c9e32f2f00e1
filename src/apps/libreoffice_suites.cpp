#include <chrono>
#include <functional>

#include "apps/interruption.h"
#include "apps/suite_source.h"
#include "office/libreoffice/libreoffice_suite.h"

namespace apps {

namespace {

using libreoffice::LibreOfficeSuite;

using WaitFor = void (Interruption::*)(std::function<void()> action);

std::shared_ptr<office::Suite> interruptible(std::shared_ptr<LibreOfficeSuite> suite,
                                             Interruption* interruption, WaitFor waitFor) {
    if (interruption != nullptr) {
        (interruption->*waitFor)([weak = std::weak_ptr<LibreOfficeSuite>(suite)] {
            if (const auto held = weak.lock()) held->interrupt();
        });
    }
    return suite;
}

}  // namespace

SuiteSource suitesOfThisMachine(Interruption* interruption) {
    constexpr std::chrono::seconds patience{60};
    const auto isUnwanted = [interruption] {
        return interruption != nullptr && interruption->hasHappened();
    };
    return {[=] {
                return interruptible(LibreOfficeSuite::startPrivate(patience, isUnwanted),
                                     interruption, &Interruption::onceHappened);
            },
            // What is half done in the user's own documents would stay there.
            [=] {
                return interruptible(LibreOfficeSuite::attachToRunning(), interruption,
                                     &Interruption::onceInsisted);
            }};
}

}  // namespace apps
