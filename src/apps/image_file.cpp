#include "apps/image_file.h"

#include <Magick++.h>

#include <cmath>

#include "office/failure.h"
#include "office/units.h"

namespace apps {

namespace {

using session::ImageFormat;

[[noreturn]] void fail(const std::string& why) {
    office::refuse("Host.writeImage", "The picture can't be converted: " + why);
}

/// Once in a process. The signals stay with the program.
void prepareLibrary() {
    static const bool isReady = [] {
        MagickLib::ExceptionInfo report;
        MagickLib::GetExceptionInfo(&report);
        const bool done = MagickLib::InitializeMagickEx(nullptr, MAGICK_OPT_NO_SIGNAL_HANDER,
                                                        &report) != MagickFail;
        MagickLib::DestroyExceptionInfo(&report);
        return done;
    }();
    if (!isReady) fail("the library of pictures can't be used");
}

Magick::Image pictureOf(std::string_view png) {
    Magick::Image image;
    image.quiet(true);
    // Whatever the bytes look like, they are read as this and nothing else.
    image.magick("PNG");
    image.read(Magick::Blob(png.data(), png.size()), "PNG:picture");
    return image;
}

Magick::Image onWhite(const Magick::Image& picture) {
    Magick::Image ground(picture.size(), Magick::Color("white"));
    ground.quiet(true);
    ground.composite(picture, 0, 0, Magick::OverCompositeOp);
    ground.matte(false);
    return ground;
}

/// To the inch, in whole dots: JPEG knows no others, and those to the centimetre would be coarse.
void setDensity(Magick::Image& image, const Magick::Image& picture) {
    const bool isMetric = picture.resolutionUnits() == Magick::PixelsPerCentimeterResolution;
    const double dots = picture.xResolution() * (isMetric ? office::mmPerInch / 10 : 1);
    if (!(dots >= 1)) return;
    const auto rounded = static_cast<unsigned>(std::lround(dots));
    image.resolutionUnits(Magick::PixelsPerInchResolution);
    image.density(Magick::Geometry(rounded, rounded));
}

void setFormat(Magick::Image& image, ImageFormat format) {
    constexpr unsigned jpegQuality = 75;
    switch (format) {
        case ImageFormat::Gif:
            image.magick("GIF");
            // Charts have areas of one colour, which dithering would speckle.
            image.quantizeDither(false);
            image.quantizeColors(256);
            image.quantize();
            break;
        case ImageFormat::Jpeg:
            image.magick("JPEG");
            image.quality(jpegQuality);
            break;
        case ImageFormat::Bmp:
            image.magick("BMP3");
            image.type(Magick::TrueColorType);
            break;
        case ImageFormat::Tiff:
            image.magick("TIFF");
            image.compressType(Magick::LZWCompression);
            break;
        case ImageFormat::Png:
            break;
    }
}

std::string converted(std::string_view png, ImageFormat format) {
    const Magick::Image picture = pictureOf(png);
    Magick::Image image = format == ImageFormat::Tiff ? picture : onWhite(picture);
    setDensity(image, picture);
    setFormat(image, format);
    image.depth(8);
    Magick::Blob file;
    image.write(&file);
    return {static_cast<const char*>(file.data()), file.length()};
}

}  // namespace

std::string imageFileOf(std::string_view png, ImageFormat format) {
    constexpr std::string_view signature = "\x89PNG\r\n\x1A\n";
    if (!png.starts_with(signature)) fail("it is none");
    if (format == ImageFormat::Png) return std::string(png);
    try {
        prepareLibrary();
        return converted(png, format);
    } catch (const Magick::Exception& failure) {
        fail(failure.what());
    }
}

}  // namespace apps
