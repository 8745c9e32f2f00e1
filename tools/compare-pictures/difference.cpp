#include "difference.h"

#include <Magick++.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <vector>

namespace compare {

namespace {

unsigned widthOf(const Magick::Image& picture) {
    return static_cast<unsigned>(picture.columns());
}

unsigned heightOf(const Magick::Image& picture) {
    return static_cast<unsigned>(picture.rows());
}

Magick::Image onWhite(const std::string& png) {
    const Magick::Image picture(Magick::Blob(png.data(), png.size()));
    Magick::Image white(picture.size(), Magick::Color("white"));
    white.composite(picture, 0, 0, Magick::OverCompositeOp);
    white.type(Magick::TrueColorType);
    return white;
}

std::vector<unsigned char> averaged(const std::string& png) {
    constexpr unsigned side = 6;
    Magick::Image picture = onWhite(png);
    Magick::Geometry size(std::max(1U, widthOf(picture) / side),
                          std::max(1U, heightOf(picture) / side));
    size.aspect(true);
    picture.scale(size);
    std::vector<unsigned char> pixels(picture.columns() * picture.rows() * 3);
    picture.write(0, 0, widthOf(picture), heightOf(picture), "RGB", Magick::CharPixel,
                  pixels.data());
    return pixels;
}

}  // namespace

double differenceOf(const std::string& one, const std::string& other) {
    const auto first = averaged(one);
    const auto second = averaged(other);
    if (first.size() != second.size()) throw std::runtime_error("the pictures differ in size");
    double sum = 0;
    for (std::size_t i = 0; i < first.size(); ++i) sum += std::abs(first[i] - second[i]);
    return sum / static_cast<double>(first.size());
}

void writePair(const std::string& one, const std::string& other, const std::string& path) {
    const Magick::Image left = onWhite(one);
    const Magick::Image right = onWhite(other);
    constexpr unsigned gap = 8;
    Magick::Image pair(Magick::Geometry(widthOf(left) + gap + widthOf(right),
                                        std::max(heightOf(left), heightOf(right))),
                       Magick::Color("magenta"));
    pair.composite(left, 0, 0, Magick::OverCompositeOp);
    pair.composite(right, static_cast<int>(widthOf(left) + gap), 0, Magick::OverCompositeOp);
    pair.write(path);
}

}  // namespace compare
