#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "office/drawing/drawing_room.h"
#include "support/automation.h"
#include "support/png_file.h"
#include "support/temporary_folder.h"

namespace {

using office::drawing::DrawingRoom;
using office::drawing::VectorPicture;

constexpr std::int32_t cannotBeMade = 1004;

/// A red left half, a half transparent blue strip at the bottom, and nothing elsewhere.
VectorPicture picture(std::int32_t width, std::int32_t height, bool isTranslucent) {
    return {R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 200 100">)"
            R"(<path fill="#f00" d="M0,0h100v80h-100z"/>)"
            R"(<path fill="#00f" fill-opacity=".5" d="M0,80h200v20h-200z"/></svg>)",
            width,
            height,
            72,
            36,
            isTranslucent};
}

TEST(Drawing, FillsThePictureWithTheVectorsWhateverItsSizeAndBackground) {
    // The last one is drawn in strips, whose edges lie inside the areas.
    const std::vector<std::pair<std::int32_t, std::int32_t>> sizes = {
        {200, 100}, {400, 100}, {300, 600}, {4000, 4000}};
    for (const auto& [width, height] : sizes) {
        SCOPED_TRACE(std::to_string(width) + "x" + std::to_string(height));
        const auto at = [&](const support::PngPixels& pixels, double x, double y) {
            return pixels.at(static_cast<std::uint32_t>(x * width),
                             static_cast<std::uint32_t>(y * height));
        };
        for (const bool isTranslucent : {false, true}) {
            const support::PngPixels drawn =
                support::pixelsOf(pngOf(picture(width, height, isTranslucent)));
            for (const double y : {0.01, 0.37, 0.375, 0.38, 0.74, 0.78})
                EXPECT_EQ(at(drawn, 0.2, y), "255 0 0 255 ");
            EXPECT_EQ(at(drawn, 0.8, 0.4), isTranslucent ? "0 0 0 0 " : "255 255 255 255 ");
            EXPECT_EQ(at(drawn, 0.8, 0.9), isTranslucent ? "0 0 255 128 " : "127 127 255 255 ");
        }
    }
}

TEST(Drawing, GivesEachPictureItsOwnBytesAndEqualOnesTheSameLook) {
    DrawingRoom room(3);
    std::vector<office::Picture> pictures;
    for (std::int32_t i = 0; i < 40; ++i)
        pictures.push_back(room.draw(picture(20 + i % 20, 10, false)));
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        EXPECT_EQ(support::pixelsOf(pictures[i].png.get()).width, 20 + i % 20);
        EXPECT_EQ(pictures[i].look == pictures[20].look, i % 20 == 0);
    }
}

TEST(Drawing, WritesFilesThatAreWholeWhenAskedForAndGoneWhenTaken) {
    const support::TemporaryFolder folder;
    const std::string kept = folder.file("kept.png");
    const std::string taken = folder.file("taken.png");
    DrawingRoom room(1);
    room.drawFile(picture(400, 200, false), kept);
    room.drawFile(picture(200, 100, false), taken);
    room.complete(kept);
    EXPECT_NEAR(support::pngSizeOf(kept).widthPoints(), 72, 0.01);
    EXPECT_NEAR(support::pngSizeOf(kept).dotsPerInch(), 400, 0.1);
    for (const bool isWrittenAlready : {true, false}) {
        if (isWrittenAlready) {
            while (!std::filesystem::exists(taken)) std::this_thread::yield();
        } else {
            room.drawFile(picture(200, 100, false), taken);
        }
        const auto picture = room.take(taken);
        ASSERT_TRUE(picture);
        EXPECT_EQ(support::pixelsOf(picture->png.get()).width, 200U);
        EXPECT_FALSE(std::filesystem::exists(taken));
    }
    EXPECT_FALSE(room.take(taken));
    EXPECT_FALSE(room.take(kept));
    room.complete(taken);
}

TEST(Drawing, SaysWhatItCanNotDrawOrWrite) {
    const support::TemporaryFolder folder;
    const std::string secret = folder.file("secret.svg");
    const std::string red = picture(20, 20, false).vectors;
    support::writeBytes(secret, {red.begin(), red.end()});
    VectorPicture broken = picture(10, 10, false);
    broken.vectors = "<svg";
    VectorPicture empty = picture(0, 10, false);
    for (const VectorPicture& bad : {broken, empty})
        EXPECT_EQ(support::failureOf([&] { static_cast<void>(pngOf(bad)); }), cannotBeMade);

    VectorPicture curious = picture(20, 20, true);
    curious.vectors =
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 2 2"><image width="2" height="2" href="file://)" +
        secret + R"("/></svg>)";
    EXPECT_EQ(support::pixelsOf(pngOf(curious)).at(10, 10), "0 0 0 0 ");

    DrawingRoom room(1);
    const std::string nowhere = folder.file("none/a.png");
    room.drawFile(picture(10, 10, false), nowhere);
    EXPECT_EQ(support::failureOf([&] { room.complete(nowhere); }), cannotBeMade);
}

}  // namespace
