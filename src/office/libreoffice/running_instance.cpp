#include "office/libreoffice/running_instance.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <thread>

#include "office/failure.h"
#include "office/libreoffice/connection.h"
#include "office/libreoffice/installation.h"
#include "office/libreoffice/process.h"

namespace libreoffice {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto patience = std::chrono::seconds(10);
constexpr auto pipePollInterval = std::chrono::milliseconds(10);

/// Where the name of the pipe is remembered that the running suite was asked for, so that every run
/// finds the same one instead of having another opened. The name is random: nobody else can have
/// put a pipe of his own in its place.
std::filesystem::path memoryOfPipe() {
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    std::filesystem::path folder =
        runtime != nullptr && *runtime == '/'
            ? std::filesystem::path(runtime) / "murvane"
            : std::filesystem::path(userProfileFolder()).parent_path() / "murvane";
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    chmod(folder.c_str(), S_IRWXU);
    return folder / "suite-pipe";
}

std::string rememberedPipe() {
    std::ifstream memory(memoryOfPipe());
    std::string name;
    std::getline(memory, name);
    return name;
}

std::string newPipeName() {
    std::random_device random;
    std::string name =
        fmt::format("murvane-{:08x}{:08x}{:08x}{:08x}", random(), random(), random(), random());
    std::ofstream(memoryOfPipe(), std::ios::trunc) << name << '\n';
    return name;
}

}  // namespace

std::shared_ptr<Connection> connectToRunning() {
    // Looked at first, since the launcher would start a suite where none runs.
    if (!socketIsListening(singleInstanceSocket(userProfileFolder()))) return nullptr;

    if (const std::string known = rememberedPipe(); !known.empty()) {
        if (auto connection = Connection::open(known)) return connection;
    }
    const std::string pipeName = newPipeName();
    Process launcher =
        Process::start({programFolder() + "/soffice", "--accept=pipe,name=" + pipeName + ";urp",
                        "--nologo", "--norestore", "--nodefault"},
                       false);
    const auto deadline = Clock::now() + patience;
    while (Clock::now() < deadline) {
        if (auto connection = Connection::open(pipeName)) {
            launcher.waitFor(patience);
            return connection;
        }
        std::this_thread::sleep_for(pipePollInterval);
    }
    office::refuse("LibreOffice",
                   "LibreOffice is running but does not answer. A dialog may be open in it.");
}

}  // namespace libreoffice
