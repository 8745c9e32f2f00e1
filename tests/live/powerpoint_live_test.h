#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "live/live_suite.h"

namespace live {

/// Presentations in the shared LibreOffice, without windows.
class PowerPointLive : public LiveSuite {
protected:
    static constexpr std::int32_t titleOnly = 11;
    static constexpr std::int32_t blank = 12;

    void SetUp() override;
    void TearDown() override;

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

    /// A part of a saved package.
    [[nodiscard]] static std::string part(const std::string& path, const std::string& name);
};

}  // namespace live
