#include "live/live_suite.h"

#include <chrono>
#include <filesystem>

#include "office/libreoffice/connection.h"

namespace live {

namespace {

/// Ends the suite with the last test, while the bridge to it still stands.
class SharedInstance : public testing::Environment {
public:
    void SetUp() override {
        instance = libreoffice::PrivateInstance::start(std::chrono::seconds(60));
    }
    void TearDown() override { instance.reset(); }

    std::unique_ptr<libreoffice::PrivateInstance> instance;
};

// The framework owns it.
auto* const shared = static_cast<SharedInstance*>(
    testing::AddGlobalTestEnvironment(std::make_unique<SharedInstance>().release()));

}  // namespace

const std::shared_ptr<libreoffice::Connection>& LiveSuite::connection() {
    return shared->instance->connection();
}

std::string LiveSuite::copyOf(const std::string& folder, std::string_view name) const {
    std::filesystem::copy_file(std::filesystem::path(folder) / name, file(name));
    return file(name);
}

std::uint64_t LiveSuite::remoteCalls() {
    return connection()->remoteCalls();
}

}  // namespace live
