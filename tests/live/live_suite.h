#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "office/failure.h"
#include "office/libreoffice/desk.h"
#include "office/libreoffice/private_instance.h"
#include "office/value.h"
#include "support/temporary_folder.h"

namespace live {

using office::arg;
using office::Object;
using office::Table;
using office::Value;

/// A LibreOffice without windows that all tests of the program share, and a folder of each test's
/// own.
class LiveSuite : public testing::Test {
protected:
    [[nodiscard]] static const std::shared_ptr<libreoffice::Connection>& connection();

    /// A path in the test's own folder.
    [[nodiscard]] std::string file(std::string_view name) const { return folder_.file(name); }
    /// A copy of a file in the test's own folder, so that nothing can lock or change the one that
    /// all tests share.
    [[nodiscard]] std::string copyOf(const std::string& folder, std::string_view name) const;

    /// The number of the failure that a statement ends in; 0 if it goes through. Keeps its words in
    /// `lastWords`.
    template <class Statement>
    std::int32_t failureOf(Statement&& statement) {
        try {
            statement();
            return 0;
        } catch (const office::Failure& failure) {
            lastWords = failure.description();
            return failure.number();
        }
    }

    /// How many calls to the suite a statement takes.
    template <class Statement>
    std::uint64_t callsOf(Statement&& statement) {
        const std::uint64_t before = remoteCalls();
        statement();
        return remoteCalls() - before;
    }

    [[nodiscard]] static std::uint64_t remoteCalls();

    Object app;
    std::string lastWords;

private:
    support::TemporaryFolder folder_;
};

}  // namespace live
