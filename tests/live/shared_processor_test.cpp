#include <gtest/gtest.h>
#include <sched.h>
#include <unistd.h>

#include <thread>

#include "office/libreoffice/process.h"
#include "office/libreoffice/shared_processor.h"

namespace live {

TEST(SharedProcessor, BindsTheOtherProcessAndTheThreadsNamed) {
    const auto allowedTo = [](pid_t thread) {
        cpu_set_t allowed;
        CPU_ZERO(&allowed);
        sched_getaffinity(thread, sizeof allowed, &allowed);
        return allowed;
    };
    const auto other = libreoffice::Process::start({"/bin/sleep", "60"}, true);
    const cpu_set_t all = allowedTo(0);
    std::thread([&] {
        libreoffice::shareThisProcessor({gettid()}, other.id());
        const cpu_set_t ours = allowedTo(0);
        EXPECT_EQ(CPU_COUNT(&ours), 1);
        const cpu_set_t others = allowedTo(other.id());
        EXPECT_TRUE(CPU_EQUAL(&others, &ours));
    }).join();
    const cpu_set_t unnamed = allowedTo(0);
    EXPECT_TRUE(CPU_EQUAL(&unnamed, &all));
}

}  // namespace live
