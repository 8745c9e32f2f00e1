#include "measured_suite.h"

#include <chrono>
#include <fstream>
#include <string>

#include "office/libreoffice/private_instance.h"

namespace bench {

MeasuredSuite::MeasuredSuite() {
    auto instance = libreoffice::PrivateInstance::start(std::chrono::seconds(60));
    connection = instance->connection();
    suite = libreoffice::LibreOfficeSuite::on(std::move(instance));
}

double MeasuredSuite::peakMegabytes() const {
    return peakMegabytesOf(std::to_string(suite->processId()));
}

double peakMegabytesOf(const std::string& process) {
    std::ifstream status("/proc/" + process + "/status");
    for (std::string word; status >> word;) {
        double kilobytes = 0;
        if (word == "VmHWM:" && status >> kilobytes) return kilobytes / 1024;
    }
    return 0;
}

}  // namespace bench
