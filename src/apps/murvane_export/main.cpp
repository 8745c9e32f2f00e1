#include <signal.h>

#include <string>
#include <variant>
#include <vector>

#include "apps/end_of_process.h"
#include "apps/interruption.h"
#include "apps/murvane_export/errors.h"
#include "apps/murvane_export/options.h"
#include "apps/murvane_export/run.h"
#include "apps/suite_source.h"
#include "apps/this_machine.h"

namespace {

int runOrder(int count, char** words) {
    // A reader that has gone away is no reason to leave a suite behind.
    ::signal(SIGPIPE, SIG_IGN);
    apps::Interruption interruption;
    const auto isInterrupted = [&] { return interruption.hasHappened(); };
    apps::MachineConsole console(isInterrupted);

    const auto parsed =
        unattended::parseOptions(std::vector<std::string>(words + 1, words + count));
    if (const auto* end = std::get_if<unattended::ParseEnd>(&parsed)) {
        console.writeError(end->error);
        return console.writeOut(end->out) ? end->exitCode : unattended::exit_code::failed;
    }
    apps::MachineHost host(console);
    return unattended::run(
        std::get<unattended::Options>(parsed),
        {apps::suitesOfThisMachine(&interruption), host, console, isInterrupted});
}

}  // namespace

int main(int count, char** words) {
    apps::openStandardStreams();
    apps::endProcess(runOrder(count, words));
}
