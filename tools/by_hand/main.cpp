// Runs Murvane with one code and lets somebody else use it: an order a line on standard input, an
// answer a line on standard output, each as JSON (see hand.h). The last line says how the program
// ended.
//
//     murvane-by-hand CODE

#include <nlohmann/json.hpp>

#include <iostream>
#include <mutex>
#include <string>
#include <thread>

#include "apps/murvane/windowed_run.h"
#include "apps/suite_source.h"
#include "apps/this_machine.h"
#include "desktop/desktop_application.h"
#include "desktop/qt_desktop.h"
#include "hand.h"

namespace {

std::mutex output;

void say(const nlohmann::json& line) {
    const std::lock_guard lock(output);
    std::cout << line.dump() << std::endl;
}

void takeOrders(by_hand::Hand& hand) {
    for (std::string line; std::getline(std::cin, line);) {
        try {
            say({{"seen", hand.carryOut(nlohmann::json::parse(line))}});
        } catch (const std::exception& error) {
            say({{"refused", error.what()}});
        }
    }
}

}  // namespace

int main(int count, char** words) {
    if (count != 2) {
        std::cerr << "murvane-by-hand CODE\n";
        return 2;
    }
    int status = 1;
    const desktop::DesktopApplication application(count, words);
    {
        desktop::QtDesktop desktop;
        by_hand::Hand hand(desktop);
        std::thread([&hand] { takeOrders(hand); }).detach();
        apps::MachineConsole console([] { return false; });
        try {
            status = apps::runCommandOn([&]() -> forms::Desktop& { return desktop; }, words[1],
                                        console, apps::suitesOfThisMachine());
        } catch (const std::exception& error) {
            say({{"unhandled", error.what()}});
        }
        say({{"ended", status}, {"boxes", hand.boxes()}});
    }
    // The person is still at the screen, waiting for an order.
    std::cout.flush();
    std::quick_exit(status);
}
