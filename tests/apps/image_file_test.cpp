#include <Magick++.h>
#include <gtest/gtest.h>

#include <string>

#include "apps/image_file.h"
#include "support/automation.h"

namespace {

using session::ImageFormat;

std::string bytesOf(Magick::Image& image) {
    Magick::Blob blob;
    image.write(&blob);
    return {static_cast<const char*>(blob.data()), blob.length()};
}

/// Left half red, right half clear and black below, 288 dots to the inch.
std::string halfClear() {
    Magick::InitializeMagick(nullptr);
    Magick::Image image(Magick::Geometry(40, 20), Magick::ColorRGB(1, 0, 0));
    image.matte(true);
    for (unsigned x = 20; x < 40; ++x) {
        for (unsigned y = 0; y < 20; ++y) {
            Magick::ColorRGB clear(0, 0, 0);
            clear.alpha(1);
            image.pixelColor(x, y, clear);
        }
    }
    image.resolutionUnits(Magick::PixelsPerInchResolution);
    image.density(Magick::Geometry(288, 288));
    image.magick("PNG");
    return bytesOf(image);
}

TEST(ImageFile, ShowsTheSamePictureOnWhiteAndOfTheSameDensityInEveryFormat) {
    struct Case {
        ImageFormat format;
        const char* magick;
        bool isClear;
        int dots;
    };
    const Case cases[] = {{ImageFormat::Png, "PNG", true, 288},
                          {ImageFormat::Gif, "GIF", false, 0},
                          {ImageFormat::Jpeg, "JPEG", false, 288},
                          {ImageFormat::Bmp, "BMP", false, 288},
                          {ImageFormat::Tiff, "TIFF", true, 288}};
    const std::string png = halfClear();
    EXPECT_EQ(apps::imageFileOf(png, ImageFormat::Png), png) << "untouched";
    for (const Case& each : cases) {
        const std::string file = apps::imageFileOf(png, each.format);
        Magick::Image image(Magick::Blob(file.data(), file.size()));
        EXPECT_EQ(image.magick(), each.magick);
        EXPECT_EQ(image.columns(), 40U) << each.magick;
        const Magick::ColorRGB left = image.pixelColor(5, 10);
        const Magick::ColorRGB right = image.pixelColor(35, 10);
        EXPECT_TRUE(left.red() > 0.9 && left.green() < 0.1) << each.magick;
        EXPECT_EQ(image.matte() && right.alpha() > 0.9, each.isClear) << each.magick;
        if (!each.isClear) {
            EXPECT_GT(right.red() + right.green() + right.blue(), 2.9);
        }
        if (each.dots == 0) continue;
        const bool isMetric = image.resolutionUnits() == Magick::PixelsPerCentimeterResolution;
        EXPECT_NEAR(image.xResolution() * (isMetric ? 2.54 : 1), each.dots, 0.6) << each.magick;
    }
}

TEST(ImageFile, RefusesWhatIsNoPicture) {
    const std::string png = halfClear();
    for (const std::string& bytes : {std::string(), std::string("push graphic-context"),
                                     png.substr(0, 30), "\x89PNG\r\n\x1A\n" + std::string(40, 'x')})
        EXPECT_EQ(support::failureOf(
                      [&] { static_cast<void>(apps::imageFileOf(bytes, ImageFormat::Jpeg)); }),
                  1004);
}

}  // namespace
