#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "office/failure.h"
#include "office/libreoffice/desk.h"
#include "office/libreoffice/private_instance.h"
#include "office/value.h"

namespace live {

using office::arg;
using office::Object;
using office::Value;

/// The number of the failure that a statement ends in; 0 if it goes through.
template <class Statement>
std::int32_t failureOf(Statement&& statement) {
    try {
        statement();
        return 0;
    } catch (const office::Failure& failure) {
        return failure.number();
    }
}

/// Presentations in a LibreOffice of the test's own, without windows unless a test asks for them.
class PowerPointLive : public testing::Test {
protected:
    static constexpr std::int32_t titleOnly = 11;
    static constexpr std::int32_t blank = 12;

    static void SetUpTestSuite();
    static void TearDownTestSuite();
    void SetUp() override;
    void TearDown() override;

    /// From here on presentations are opened with a window.
    void withWindows();

    /// One of the presentations that `make-decks` writes.
    Object open(std::string_view deck);
    /// The sample's kind of presentation, with three slides more: titleOnly, titleOnly, blank.
    Object openWithSlides();
    Object openFile(const std::string& path);
    /// A picture of this size in points in a file.
    [[nodiscard]] std::string picture(double widthPt, double heightPt) const;
    Object addPicture(const Object& slide, double widthPt, double heightPt) const;
    [[nodiscard]] static Object slide(const Object& deck, std::int32_t place);
    [[nodiscard]] static std::int32_t slideCount(const Object& deck);

    [[nodiscard]] std::string file(std::string_view name) const {
        return (folder_ / name).string();
    }
    /// A part of a saved package.
    [[nodiscard]] static std::string part(const std::string& path, const std::string& name);
    [[nodiscard]] static std::uint64_t remoteCalls();

    Object app;

private:
    static std::unique_ptr<libreoffice::PrivateInstance> instance_;
    std::filesystem::path folder_;
};

}  // namespace live
