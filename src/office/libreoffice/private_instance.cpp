#include "office/libreoffice/private_instance.h"

#include <fmt/format.h>
#include <langinfo.h>
#include <locale.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "office/failure.h"
#include "office/libreoffice/connection.h"
#include "office/libreoffice/installation.h"
#include "office/libreoffice/shared_processor.h"

namespace libreoffice {

namespace {

using Clock = std::chrono::steady_clock;

/// The suite ends with this code when it wants to be started again, as it does on a new profile.
constexpr int restartWanted = 81;
constexpr auto pollInterval = std::chrono::milliseconds(10);
constexpr auto politePatience = std::chrono::seconds(3);

std::string uniquePipeName() {
    std::random_device random;
    return fmt::format("murvane-{}-{:08x}{:08x}", getpid(), random(), random());
}

/// Where the suite keeps its temporary files. A killed suite leaves them behind, so they stand
/// where they can be told from anybody else's.
std::filesystem::path temporaryFolder(const Profile& profile) {
    return std::filesystem::path(profile.folder()) / "temporary";
}

void removeTemporaryFiles(const Profile& profile) {
    std::error_code ignored;
    std::filesystem::remove_all(temporaryFolder(profile), ignored);
}

/// Whether the user's locale is one of this machine and spells names in UTF-8.
bool localeIsUtf8() {
    const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
    if (locale == nullptr) return false;
    const bool isUtf8 = std::string_view(nl_langinfo_l(CODESET, locale)) == "UTF-8";
    freelocale(locale);
    return isUtf8;
}

std::vector<std::string> environmentFor(const Profile& profile) {
    // With a local display, or none, the suite tries out its drawing for a second on a new profile.
    // What draws on the user's desktop may need one, and end the suite without.
    std::vector<std::string> variables = {"TMPDIR=" + temporaryFolder(profile).string(),
                                          "DISPLAY=none", "SAL_USE_VCLPLUGIN=svp"};
    // In another one, as services and cron have it, the suite opens no file with an umlaut.
    if (!localeIsUtf8()) variables.emplace_back("LC_ALL=C.UTF-8");
    return variables;
}

Process launch(const Profile& profile, const std::string& pipeName) {
    std::error_code ignored;
    std::filesystem::create_directories(temporaryFolder(profile), ignored);
    // Not by the launcher script: that would put a process between us and the suite, and the suite
    // would outlive us.
    return Process::start({programFolder() + "/soffice.bin",
                           "-env:UserInstallation=" + fromUno(fileUrl(profile.folder())),
                           "--accept=pipe,name=" + pipeName + ";urp", "--headless", "--norestore",
                           "--nologo", "--nodefault", "--nolockcheck"},
                          true, environmentFor(profile));
}

[[noreturn]] void failToStart(const std::string& why) {
    office::refuse("LibreOffice", "LibreOffice could not be started: " + why);
}

}  // namespace

std::unique_ptr<PrivateInstance> PrivateInstance::start(std::chrono::milliseconds patience,
                                                        const std::function<bool()>& isUnwanted) {
    if (access((programFolder() + "/soffice.bin").c_str(), X_OK) != 0) {
        failToStart(fmt::format("it is not installed in \"{}\"", programFolder()));
    }
    Profile profile = Profile::acquire();
    removeTemporaryFiles(profile);
    std::string pipeName = uniquePipeName();
    Process process = launch(profile, pipeName);
    std::unique_ptr<PrivateInstance> instance(
        new PrivateInstance(std::move(profile), std::move(pipeName), std::move(process)));
    instance->waitUntilReady(patience, isUnwanted);
    instance->callingThreads_ = threadsOfThisProcess();
    return instance;
}

PrivateInstance::PrivateInstance(Profile profile, std::string pipeName, Process process)
    : profile_(std::move(profile)),
      pipeName_(std::move(pipeName)),
      process_(std::move(process)) {}

PrivateInstance::~PrivateInstance() {
    endPolitely();
    process_.kill();
    process_.waitFor(politePatience);
    connection_.reset();
    // A killed suite leaves its sockets behind.
    unlink(fmt::format("/tmp/OSL_PIPE_{}_{}", getuid(), pipeName_).c_str());
    if (const std::string single = singleInstanceSocket(profile_.folder());
        !socketIsListening(single)) {
        unlink(single.c_str());
    }
    unlink((profile_.folder() + "/.lock").c_str());
    removeTemporaryFiles(profile_);
}

void PrivateInstance::waitUntilReady(std::chrono::milliseconds patience,
                                     const std::function<bool()>& isUnwanted) {
    const auto deadline = Clock::now() + patience;
    while (Clock::now() < deadline) {
        if (isUnwanted && isUnwanted()) failToStart("it is no longer wanted");
        connection_ = Connection::open(pipeName_);
        if (connection_) return;
        if (const auto code = process_.exitCode()) {
            if (*code != restartWanted) failToStart(fmt::format("it ended with code {}", *code));
            process_ = launch(profile_, pipeName_);
        }
        std::this_thread::sleep_for(pollInterval);
    }
    failToStart(fmt::format("it gave no answer within {} s",
                            std::chrono::duration_cast<std::chrono::seconds>(patience).count()));
}

void PrivateInstance::endPolitely() {
    if (!connection_ || connection_->isLost() || process_.exitCode()) return;
    try {
        connection_->desktop()->terminate();
    } catch (const uno::Exception&) {
        // It went down while it was asked to; what is left of it is killed.
    }
    process_.waitFor(politePatience);
}

void PrivateInstance::shareProcessor() {
    if (!process_.exitCode()) shareThisProcessor(callingThreads_, process_.id());
}

void PrivateInstance::kill() {
    process_.kill();
}

}  // namespace libreoffice
