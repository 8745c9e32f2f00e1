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
    const auto& options = std::get<unattended::Options>(parsed);
    if (options.attach) {
        interruption.onceHappened([&] {
            console.writeError(
                "\nEnding after the item at hand. Once more breaks off at once, and leaves what is "
                "half done in the open documents.\n");
        });
    }
    apps::MachineHost host(console);
    const int exitCode = unattended::run(
        options, {apps::suitesOfThisMachine(&interruption), host, console, isInterrupted});
    interruption.onceHappened({});
    return exitCode;
}

}  // namespace

int main(int count, char** words) {
    apps::openStandardStreams();
    apps::endProcess(runOrder(count, words));
}
