#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "office/drawing/metafile.h"
#include "office/drawing/vector_picture.h"
#include "support/automation.h"
#include "support/png_file.h"

namespace {

using office::drawing::readMetafile;

std::string word(int value) {
    return {static_cast<char>(value & 255), static_cast<char>(value >> 8 & 255)};
}

std::string number(int value) {
    return word(value) + word(value >> 16);
}

std::string numbers(const std::vector<int>& values) {
    std::string written;
    for (const int value : values) written += number(value);
    return written;
}

std::string part(int version, const std::string& content) {
    return word(version) + number(static_cast<int>(content.size())) + content;
}

std::string action(int kind, const std::string& content, int version = 1) {
    return word(kind) + part(version, content);
}

constexpr int none = -1;

std::string colour(int kind, int rgb) {
    return action(kind, rgb == none ? number(0) + '\0' : number(rgb) + '\1');
}

const std::string unscaled = part(1, word(0) + numbers({0, 0, 1, 1, 1, 1}) + '\1');

/// A picture of 200 by 100.
std::string metafile(const std::vector<std::string>& actions) {
    std::string written = "VCLMTF" + part(1, number(0) + unscaled + numbers({200, 100}) +
                                                 number(static_cast<int>(actions.size())));
    for (const std::string& one : actions) written += one;
    return written;
}

std::string rectangle(int left, int top, int right, int bottom) {
    return action(103, numbers({left, top, right, bottom}));
}

std::string corners(const std::vector<int>& values) {
    return word(static_cast<int>(values.size() / 2)) + numbers(values);
}

std::string uniform(int share) {
    const std::string grey = word(0x8000) + word(share) + word(share) + word(share);
    return part(1, word(0) + grey + grey + word(0) + word(0) + word(0) + word(0) + word(100) +
                       word(100) + word(2));
}

std::string gradient(int from, int to, int angle) {
    const auto shade = [](int rgb) {
        const auto channel = [&](int shift) { return word((rgb >> shift & 255) * 257); };
        return word(0x8000) + channel(16) + channel(8) + channel(0);
    };
    return part(1, word(0) + shade(from) + shade(to) + word(angle) + word(0) + word(50) + word(50) +
                       word(100) + word(100) + word(255));
}

std::string pen(int width, int style = 1, int dashes = 0) {
    return part(5, word(style) + number(width) + word(dashes) + number(0) + word(0) +
                       numbers({0, 0}) + word(3) + word(0));
}

std::string font(int height, int angle, int underline, int outlined = 0) {
    const std::string name = "DejaVu Sans";
    return action(138, part(5, word(static_cast<int>(name.size())) + name + word(0) +
                                   numbers({0, height}) + word(0) + word(0) + word(0) + word(5) +
                                   word(underline) + word(0) + word(0) + word(9) + word(0) +
                                   word(angle) + '\0' + static_cast<char>(outlined) + '\0' + '\0' +
                                   '\0' + word(0) + '\0' + word(0) + word(0)));
}

std::string text(int x, int y, const std::u16string& units, const std::vector<int>& ends) {
    std::string written = numbers({x, y}) + word(1) + "?" + word(0) +
                          word(static_cast<int>(units.size())) +
                          number(static_cast<int>(ends.size())) + numbers(ends) +
                          word(static_cast<int>(units.size()));
    for (const char16_t unit : units) written += word(unit);
    return action(113, written, 4);
}

support::PngPixels drawn(const std::vector<std::string>& actions, bool isTranslucent = false) {
    return support::pixelsOf(
        office::drawing::pngOf({metafile(actions), 400, 200, 72, 36, isTranslucent}));
}

const std::string white = "255 255 255 255 ";
const std::string red = "255 0 0 255 ";
const std::string green = "0 255 0 255 ";
const std::string redFill = colour(133, 0xFF0000);
const std::string greenFill = colour(133, 0x00FF00);
const std::string noLine = colour(132, none);

TEST(Metafile, IsDrawnAsItsActionsSay) {
    struct Case {
        const char* what;
        std::vector<std::string> actions;
        /// The colours at (100, 50), (300, 50), (100, 150) and (300, 150) of 400 by 200 pixels.
        std::vector<std::string> wanted;
    };
    const std::string all = rectangle(0, 0, 200, 100);
    const std::string left = numbers({0, 0, 100, 100});
    const std::string upperBand = word(2) + word(2) + word(0) + numbers({0, 50}) + word(1) +
                                  numbers({0, 200}) + word(2) + '\0';
    const std::string embedded = metafile({redFill, noLine, all});
    const std::string half = "255 128 128 255 ";
    for (const Case& one : {
             Case{"fill", {noLine, redFill, rectangle(0, 0, 100, 100)}, {red, white, red, white}},
             Case{"what is pushed comes back",
                  {noLine, redFill, action(139, word(3)), greenFill, action(140, ""), all},
                  {red, red, red, red}},
             Case{"clip of a moment",
                  {noLine, redFill, action(139, word(0x20)), action(129, left), all,
                   action(140, ""), greenFill, rectangle(100, 50, 200, 100)},
                  {red, white, red, green}},
             Case{"clips within each other",
                  {noLine, redFill, action(129, left), action(130, part(2, upperBand)), all},
                  {red, white, white, white}},
             Case{"a clip instead",
                  {noLine, redFill, action(129, left), action(128, part(2, upperBand) + '\1'), all},
                  {red, red, white, white}},
             Case{"scaled within",
                  {noLine, redFill,
                   action(137, part(1, word(13) + numbers({100, 0, 1, 2, 1, 2}) + '\0')),
                   rectangle(100, 0, 300, 200)},
                  {white, red, white, red}},
             Case{"a thick line",
                  {colour(132, 0xFF0000),
                   action(109, corners({0, 25, 200, 25}) + pen(30) + '\0', 3)},
                  {red, red, white, white}},
             Case{"dashes without length",
                  {colour(132, 0xFF0000),
                   action(109, corners({0, 25, 200, 25}) + pen(30, 2, 1) + '\0', 3), noLine,
                   greenFill, rectangle(0, 50, 100, 100)},
                  {red, red, green, white}},
             Case{"a hole",
                  {noLine, redFill,
                   action(111,
                          word(2) + corners({0, 0, 200, 0, 200, 100, 0, 100}) +
                              corners({10, 10, 90, 10, 90, 90, 10, 90}) + word(0),
                          2)},
                  {white, red, white, red}},
             Case{"a curve",
                  {noLine, redFill,
                   action(111,
                          word(1) + corners({0, 0, 200, 0}) + word(1) + word(0) +
                              part(1, corners({0, 100, 0, 0, 200, 0, 200, 100}) + '\1' +
                                          std::string("\0\2\2\0", 4)),
                          2)},
                  {white, white, red, red}},
             Case{"a gradient across an outline, and what stands there for others",
                  {action(512, word(15) + "XGRAD_SEQ_BEGIN" + numbers({0, 0})),
                   action(148, word(1) + corners({-200, 0, 400, 0, 400, 50, -200, 50}) +
                                   gradient(0xFF0000, 0xFF0000, 900)),
                   greenFill, all, action(512, word(13) + "XGRAD_SEQ_END" + numbers({0, 0}))},
                  {red, red, white, white}},
             Case{"a gradient to the right",
                  {action(125, numbers({0, 0, 200, 100}) + gradient(0, 0xFFFFFF, 900))},
                  {"64 64 64 255 ", "192 192 192 255 ", "64 64 64 255 ", "192 192 192 255 "}},
             Case{"half seen as a whole",
                  {noLine, action(147, embedded + numbers({0, 0, 200, 100}) + uniform(0x8000))},
                  {half, half, half, half}},
             Case{"half seen",
                  {noLine, redFill,
                   action(142, word(1) + corners({0, 0, 100, 0, 100, 100, 0, 100}) + word(40))},
                  {"255 102 102 255 ", white, "255 102 102 255 ", white}},
         }) {
        const support::PngPixels pixels = drawn(one.actions);
        const std::vector<std::string> seen = {pixels.at(100, 50), pixels.at(300, 50),
                                               pixels.at(100, 150), pixels.at(300, 150)};
        EXPECT_EQ(seen, one.wanted) << one.what;
    }
    EXPECT_EQ(drawn({noLine, redFill, rectangle(0, 0, 100, 100)}, true).at(300, 50), "0 0 0 0 ");
}

/// Where there is ink, in pixels.
struct Ink {
    std::uint32_t left = 400;
    std::uint32_t top = 200;
    std::uint32_t right = 0;
    std::uint32_t bottom = 0;
};

Ink inkOf(const support::PngPixels& pixels) {
    Ink ink;
    for (std::uint32_t y = 0; y < pixels.height; ++y) {
        for (std::uint32_t x = 0; x < pixels.width; ++x) {
            if (pixels.at(x, y) == white) continue;
            ink = {std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x),
                   std::max(ink.bottom, y)};
        }
    }
    return ink;
}

TEST(Metafile, PutsEachCharacterInItsPlace) {
    const std::string onBaseLine = action(136, word(1));
    const auto inkOfText = [&](const std::string& inFont, const std::u16string& units,
                               const std::vector<int>& ends) {
        return inkOf(drawn({onBaseLine, inFont, text(50, 60, units, ends)}));
    };
    const Ink close = inkOfText(font(20, 0, 0), u"HH", {15, 30});
    const Ink apart = inkOfText(font(20, 0, 0), u"HH", {90, 105});
    EXPECT_EQ(apart.right - close.right, 150U);
    EXPECT_EQ(apart.left, close.left);
    EXPECT_EQ(close.bottom, 119U);
    // Above the base line, and as high as a capital is in this font: 0.73 of its size.
    EXPECT_NEAR(close.top, 120 - 0.73 * 40, 1.5);
    // The second unit of a pair has no place of its own.
    const Ink behindPair = inkOfText(font(20, 0, 0), u"\U0001D400H", {0, 80, 95});
    EXPECT_EQ(behindPair.right - close.right, 130U);

    const Ink upwards = inkOfText(font(20, 900, 0), u"HH", {15, 45});
    EXPECT_LT(upwards.top, 70U);
    EXPECT_LE(upwards.right, 101U);
    EXPECT_GT(inkOfText(font(20, 0, 1), u"HH", {15, 30}).bottom, 121U);
}

TEST(Metafile, SaysWhatItDoesNotKnow) {
    const std::string known =
        metafile({action(136, word(1)), font(20, 0, 0), text(50, 60, u"äö", {15, 30}), noLine,
                  redFill, rectangle(0, 0, 9, 9)});
    EXPECT_EQ(readMetafile(known).unknown, "");
    for (std::size_t length = 0; length < known.size(); ++length)
        EXPECT_NE(readMetafile(known.substr(0, length)).unknown, "") << length;
    struct Case {
        std::string action;
        const char* unknown;
    };
    for (const auto& [action, unknown] : {
             Case{::action(116, numbers({0, 0})), "action 116"},
             Case{font(20, 0, 0, 1), "font"},
             Case{font(20, 0, 4), "font"},
             Case{text(0, 0, u"a", {1}), "text"},
         }) {
        EXPECT_EQ(readMetafile(metafile({action})).unknown, unknown);
        EXPECT_EQ(support::failureOf([&, &one = action] { drawn({one}); }), 1004);
    }
    // Within each other without end they would fill the memory and the stack.
    const std::vector<std::string> clips(60, action(129, numbers({0, 0, 9, 9})));
    EXPECT_EQ(readMetafile(metafile(clips)).unknown, "clips");
    std::string veils = metafile({});
    for (int i = 0; i < 60; ++i) veils = metafile({action(147, veils)});
    EXPECT_EQ(readMetafile(veils).unknown, "veils");
}

}  // namespace
