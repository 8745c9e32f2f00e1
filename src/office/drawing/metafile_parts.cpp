#include "office/drawing/metafile_parts.h"

#include <algorithm>
#include <array>

namespace office::drawing {

namespace {

constexpr std::uint16_t wideCharset = 0xFFFF;
constexpr std::size_t compressionSize = 4;

}  // namespace

Values sizeInMetafile(Values& values) {
    if (values.take(magicOfMetafile.size()) != magicOfMetafile) throw Unknown("damage");
    Values head = values.part();
    head.take(compressionSize);
    const Mapping whole = readMapping(head.part(), {});
    if (whole.scaleX != 1 || whole.scaleY != 1) throw Unknown("unit");
    return head;
}

MetafileHead readMetafileHead(Values& values) {
    Values head = sizeInMetafile(values);
    MetafileHead read;
    read.width = head.number();
    read.height = head.number();
    read.actions = head.next<std::uint32_t>();
    return read;
}

Mapping readMapping(Values values, const Mapping& outer) {
    constexpr std::uint16_t hundredthMm = 0;
    constexpr std::uint16_t relative = 13;
    const std::uint16_t unit = values.word();
    Mapping read;
    read.originX = values.number();
    read.originY = values.number();
    const auto fraction = [&] {
        const double numerator = values.number();
        const double denominator = values.number();
        if (denominator == 0) throw Unknown("damage");
        return numerator / denominator;
    };
    read.scaleX = fraction();
    read.scaleY = fraction();
    if (unit == hundredthMm) return read;
    if (unit != relative) throw Unknown("unit");
    return {read.originX + outer.originX / read.scaleX, read.originY + outer.originY / read.scaleY,
            read.scaleX * outer.scaleX, read.scaleY * outer.scaleY};
}

Metafile::Colour readColour(Values& values) {
    const auto value = values.next<std::uint32_t>();
    const auto share = [&](unsigned shift) { return (value >> shift & 255U) / 255.0; };
    return {share(16), share(8), share(0)};
}

std::optional<Metafile::Colour> readOptionalColour(Values& values) {
    const Metafile::Colour read = readColour(values);
    if (!values.flag()) return std::nullopt;
    return read;
}

std::optional<Metafile::Colour> readTextLineColour(Values& values) {
    Values number = values;
    if (number.next<std::uint32_t>() == colourOfText) return std::nullopt;
    return readOptionalColour(values);
}

Metafile::Gradient readGradient(Values values) {
    constexpr std::uint16_t linear = 0;
    if (values.word() != linear) throw Unknown("gradient");
    const auto colour = [&] {
        // Its name, which says nothing.
        values.word();
        constexpr double most = 0xFFFF;
        const double red = values.word() / most;
        const double green = values.word() / most;
        const double blue = values.word() / most;
        return Metafile::Colour{red, green, blue};
    };
    Metafile::Gradient gradient;
    gradient.from = colour();
    gradient.to = colour();
    gradient.angle = values.word() / 10.0;
    gradient.border = values.word() / 100.0;
    values.word();
    values.word();
    constexpr std::uint16_t whole = 100;
    if (values.word() != whole || values.word() != whole) throw Unknown("gradient");
    return gradient;
}

Metafile::Pen readPen(Values values, const Metafile::Colour& colour, double scale) {
    enum class Style : std::uint16_t { None, Solid, Dash };
    Metafile::Pen pen;
    pen.colour = colour;
    const auto style = static_cast<Style>(values.word());
    pen.width = values.number() * scale;
    const int dashes = values.word();
    const double dash = values.number() * scale;
    const int dots = values.word();
    const double dot = values.number() * scale;
    const double gap = values.number() * scale;
    using Join = Metafile::Pen::Join;
    constexpr auto joins =
        std::array{Join::None, Join::Bevel, Join::Bevel, Join::Miter, Join::Round};
    pen.join = joins.at(std::min<std::size_t>(values.word(), joins.size() - 1));
    using Cap = Metafile::Pen::Cap;
    constexpr auto caps = std::array{Cap::Butt, Cap::Round, Cap::Square};
    pen.cap = caps.at(std::min<std::size_t>(values.word(), caps.size() - 1));
    if (style != Style::Dash) return pen;
    for (int i = 0; i < dashes; ++i) pen.dashes.insert(pen.dashes.end(), {dash, gap});
    for (int i = 0; i < dots; ++i) pen.dashes.insert(pen.dashes.end(), {dot, gap});
    // Cairo draws nothing more after dashes without length.
    const double length = dashes * (dash + gap) + dots * (dot + gap);
    if (length <= 0 || std::min({dash, dot, gap}) < 0) pen.dashes.clear();
    return pen;
}

ReadFont readFont(Values values, double scale) {
    ReadFont read;
    Metafile::Font& font = read.font;
    const std::string_view family = values.take(values.word());
    font.name.family = family;
    values.take(values.word());
    const std::int32_t width = values.number();
    font.height = values.number() * scale;
    read.hasWideCharacters = values.word() == wideCharset;
    const auto kind = static_cast<FontKind>(values.word());
    if (kind == FontKind::Roman || kind == FontKind::Swiss) font.name.kind = kind;
    values.word();
    constexpr std::array<int, 11> weights = {400, 100, 200, 300, 350, 400, 500, 600, 700, 800, 900};
    font.name.weight = weights.at(std::min<std::size_t>(values.word(), weights.size() - 1));
    const std::uint16_t underline = values.word();
    const std::uint16_t strikeout = values.word();
    font.name.isItalic = values.word() != 0;
    values.word();
    values.word();
    constexpr double tenth = 0.1;
    font.angle = values.next<std::int16_t>() * tenth;
    const bool isByWord = values.flag();
    const bool isOutlined = values.flag();
    const bool hasShadow = values.flag();
    values.flag();
    const bool isRaised = values.flag();
    values.word();
    const bool isVertical = values.flag();
    const bool isEmphasized = values.word() != 0;
    const bool isOverlined = !values.isEmpty() && values.word() != 0;
    font.underlines = underline;
    font.isStruckOut = strikeout == 1;
    const bool isAscii = std::all_of(family.begin(), family.end(), [](char letter) {
        return static_cast<unsigned char>(letter) < 0x80;
    });
    if (width != 0 || underline > 2 || strikeout > 1 || isByWord || isOutlined || hasShadow ||
        isRaised || isVertical || isEmphasized || isOverlined || !isAscii)
        throw Unknown("font");
    return read;
}

PlacedText readPlacedText(Values values, bool hasWideCharacters) {
    PlacedText text;
    text.x = values.number();
    text.y = values.number();
    // Once in the characters of a code page, and behind the places again in those of all.
    values.take(hasWideCharacters ? sizeof(char16_t) * values.next<std::uint32_t>()
                                  : std::size_t{values.word()});
    const std::size_t first = values.word();
    const std::size_t count = values.word();
    for (auto left = values.next<std::uint32_t>(); left > 0; --left)
        text.ends.push_back(values.number());
    for (int left = values.word(); left > 0; --left) text.units += values.next<char16_t>();
    if (first > text.units.size()) throw Unknown("damage");
    text.units = text.units.substr(first, count);
    if (text.ends.size() < text.units.size()) throw Unknown("text without places");
    return text;
}

}  // namespace office::drawing
