#include <signal.h>

#include <chrono>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "apps/interruption.h"
#include "apps/murvane_export/options.h"
#include "apps/murvane_export/run.h"
#include "apps/posix_console.h"
#include "apps/posix_host.h"
#include "office/libreoffice/libreoffice_suite.h"

namespace {

using libreoffice::LibreOfficeSuite;

/// A suite that an interruption breaks off.
std::shared_ptr<office::Suite> interruptible(std::shared_ptr<LibreOfficeSuite> suite,
                                             apps::Interruption& interruption) {
    interruption.onceHappened([weak = std::weak_ptr<LibreOfficeSuite>(suite)] {
        if (const auto held = weak.lock()) held->interrupt();
    });
    return suite;
}

}  // namespace

int main(int count, char** words) {
    // A reader that has gone away is no reason to leave a suite behind.
    ::signal(SIGPIPE, SIG_IGN);
    apps::Interruption interruption;
    apps::PosixConsole console([&] { return interruption.hasHappened(); });

    const auto parsed =
        unattended::parseOptions(std::vector<std::string>(words + 1, words + count));
    if (const auto* end = std::get_if<unattended::ParseEnd>(&parsed)) {
        console.writeOut(end->out);
        console.writeError(end->error);
        return end->exitCode;
    }

    apps::PosixHost host(console);
    const auto isInterrupted = [&] { return interruption.hasHappened(); };
    const unattended::SuiteSource suites{
        [&] {
            return interruptible(
                LibreOfficeSuite::startPrivate(std::chrono::seconds(60), isInterrupted),
                interruption);
        },
        [&] { return interruptible(LibreOfficeSuite::attachToRunning(), interruption); }};
    return unattended::run(std::get<unattended::Options>(parsed),
                           {suites, host, console, isInterrupted});
}
