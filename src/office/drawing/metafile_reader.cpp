#include <fmt/format.h>
#include <glib.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "office/drawing/metafile_action.h"
#include "office/drawing/metafile_parts.h"

namespace office::drawing {

namespace {

/// What later operations depend on.
struct State {
    std::optional<Metafile::Colour> line;
    std::optional<Metafile::Colour> fill;
    Metafile::Colour text;
    /// None where it is the text's.
    std::optional<Metafile::Colour> textLine;
    std::size_t font = 0;
    bool hasWideCharacters = false;
    bool isOnBaseLine = false;
    Mapping mapping;
    std::size_t clip = 0;
};

constexpr gunichar firstBeyondUnits = 0x10000;

/// One unit, or what a pair of them stands for.
gunichar characterAt(std::u16string_view units, std::size_t i) {
    constexpr unsigned kind = 0xFC00;
    constexpr unsigned bits = 10;
    const auto is = [&](std::size_t at, unsigned half) {
        return at < units.size() && (units[at] & kind) == half;
    };
    if (!is(i, 0xD800) || !is(i + 1, 0xDC00)) return units[i];
    return firstBeyondUnits + ((units[i] & ~kind) << bits) + (units[i + 1] & ~kind);
}

class Reader {
public:
    explicit Reader(Metafile& picture) : picture_(picture) {}

    void read(std::string_view bytes) {
        Values values(bytes);
        const MetafileHead head = readMetafileHead(values);
        picture_.width = head.width;
        picture_.height = head.height;
        readActions(values, head.actions);
    }

private:
    void readActions(Values& values, std::uint32_t count) {
        for (; count > 0; --count) {
            const auto action = static_cast<Action>(values.word());
            const Values content = values.part();
            readAction(action, content, values.version());
        }
    }

    void readAction(Action action, Values values, std::uint16_t version);

    Metafile::Point mapped(double x, double y) const { return state_.mapping.point(x, y); }
    Metafile::Point point(Values& values) const {
        const double x = values.number();
        const double y = values.number();
        return mapped(x, y);
    }
    Metafile::Line line(Values& values) const {
        const std::size_t count = values.word();
        Metafile::Line line;
        for (std::size_t i = 0; i < count; ++i) line.points.push_back(point(values));
        return line;
    }
    Metafile::Line bentLine(Values part) const {
        constexpr std::uint8_t isControl = 2;
        Metafile::Line read = line(part);
        if (!part.flag()) return read;
        for (std::size_t i = 0; i < read.points.size(); ++i)
            read.isControl.push_back(part.next<std::uint8_t>() == isControl);
        return read;
    }
    /// All lines as straight ones, and then again those that are bent.
    Metafile::Outline outline(Values& values) const {
        Metafile::Outline read;
        const std::size_t count = values.word();
        for (std::size_t i = 0; i < count; ++i) read.push_back(line(values));
        return read;
    }
    Metafile::Outline bentOutline(Values& values, std::uint16_t version) const {
        Metafile::Outline read = outline(values);
        if (version < 2) return read;
        const std::size_t bent = values.word();
        for (std::size_t i = 0; i < bent; ++i) {
            const std::size_t index = values.word();
            Metafile::Line line = bentLine(values.part());
            if (index < read.size()) read[index] = std::move(line);
        }
        return read;
    }

    static Metafile::Outline closed(Metafile::Outline outline) {
        for (Metafile::Line& line : outline) line.isClosed = true;
        return outline;
    }
    Metafile::Outline rectangle(double left, double top, double right, double bottom) const {
        Metafile::Line line;
        line.points = {mapped(left, top), mapped(right, top), mapped(right, bottom),
                       mapped(left, bottom)};
        line.isClosed = true;
        return {line};
    }
    Metafile::Outline rectangle(Values& values) const {
        const double left = values.number();
        const double top = values.number();
        const double right = values.number();
        const double bottom = values.number();
        return rectangle(left, top, right, bottom);
    }
    std::optional<Metafile::Outline> region(Values values) const;

    std::optional<Metafile::Pen> hairline() const {
        if (!state_.line) return std::nullopt;
        Metafile::Pen pen;
        pen.colour = *state_.line;
        return pen;
    }

    void setFont(ReadFont read) {
        picture_.fonts.push_back(std::move(read.font));
        state_.font = picture_.fonts.size() - 1;
        state_.hasWideCharacters = read.hasWideCharacters;
    }
    void readText(Values values);
    void readVeil(Values values);
    void readComment(Values values);

    void push(std::uint16_t what) { pushed_.emplace_back(what, state_); }
    void pop();
    void setClip(std::vector<Metafile::Outline> clip) {
        picture_.clips.push_back(std::move(clip));
        state_.clip = picture_.clips.size() - 1;
    }
    void intersect(std::optional<Metafile::Outline> outline) {
        if (!outline) return;
        // Each has a copy of all around it.
        constexpr std::size_t mostWithin = 50;
        auto clip = picture_.clips[state_.clip];
        if (clip.size() >= mostWithin) throw Unknown("clips");
        clip.push_back(std::move(*outline));
        setClip(std::move(clip));
    }
    template <class What>
    void add(What what) {
        picture_.operations.push_back({std::move(what), state_.clip});
    }
    void addShape(Metafile::Outline outline) {
        Metafile::Shape shape{closed(std::move(outline)), {}, hairline()};
        if (state_.fill) shape.fill = *state_.fill;
        if (state_.fill || state_.line) add(std::move(shape));
    }
    void addLine(Metafile::Line line, Values pen) {
        if (state_.line)
            add(Metafile::Shape{
                {std::move(line)}, {}, readPen(pen, *state_.line, state_.mapping.scaleX)});
    }

    Metafile& picture_;
    State state_;
    std::vector<std::pair<std::uint16_t, State>> pushed_;
    bool isInGradient_ = false;
    int veils_ = 0;
};

void Reader::readAction(Action action, Values values, std::uint16_t version) {
    // What stands there for those who know no gradients within an outline.
    if (isInGradient_ && action != Action::GradientOfOutline && action != Action::Comment) return;
    switch (action) {
        case Action::None:
        case Action::TextFillColour:
        case Action::ReferencePoint:
        case Action::LayoutMode:
        case Action::TextLanguage:
        case Action::OverlineColour:
            return;
        case Action::Comment:
            return readComment(values);
        case Action::Line: {
            Metafile::Line line;
            line.points = {point(values), {}};
            line.points[1] = point(values);
            return addLine(std::move(line), values.part());
        }
        case Action::Rectangle:
            return addShape(rectangle(values));
        case Action::PolyLine: {
            Metafile::Line straight = line(values);
            const Values pen = values.part();
            return addLine(
                version >= 3 && values.flag() ? bentLine(values.part()) : std::move(straight), pen);
        }
        case Action::Polygon: {
            Metafile::Line straight = line(values);
            return addShape(
                {version >= 2 && values.flag() ? bentLine(values.part()) : std::move(straight)});
        }
        case Action::PolyPolygon:
            return addShape(bentOutline(values, version));
        case Action::TextArray:
            return readText(values);
        case Action::ClipRegion: {
            auto outline = region(values.part());
            state_.clip = 0;
            if (values.flag()) intersect(std::move(outline));
            return;
        }
        case Action::IntersectRectangle:
            return intersect(rectangle(values));
        case Action::IntersectRegion:
            return intersect(region(values.part()));
        case Action::LineColour:
            state_.line = readOptionalColour(values);
            return;
        case Action::FillColour:
            state_.fill = readOptionalColour(values);
            return;
        case Action::TextColour:
            state_.text = readColour(values);
            return;
        case Action::TextLineColour:
            state_.textLine = readTextLineColour(values);
            return;
        case Action::TextAlign:
            state_.isOnBaseLine = values.word() == 1;
            return;
        case Action::MapMode:
            state_.mapping = readMapping(values.part(), state_.mapping);
            return;
        case Action::Font:
            return setFont(readFont(values.part(), state_.mapping.scaleY));
        case Action::Push:
            return push(values.word());
        case Action::Pop:
            return pop();
        case Action::Transparent: {
            Metafile::Outline area = outline(values);
            add(Metafile::Veil{1 - values.word() / 100.0});
            addShape(std::move(area));
            return add(Metafile::EndOfVeil{});
        }
        case Action::FloatTransparent:
            return readVeil(values);
        case Action::Gradient: {
            Metafile::Outline area = rectangle(values);
            return add(Metafile::Shape{std::move(area), readGradient(values.part()), std::nullopt});
        }
        case Action::GradientOfOutline: {
            Metafile::Outline area = closed(outline(values));
            return add(Metafile::Shape{std::move(area), readGradient(values.part()), std::nullopt});
        }
    }
    throw Unknown(fmt::format("action {}", static_cast<unsigned>(action)));
}

void Reader::pop() {
    if (pushed_.empty()) throw Unknown("damage");
    const auto [what, before] = pushed_.back();
    pushed_.pop_back();
    if (what == pushesAll) {
        state_ = before;
        return;
    }
    if ((what & pushesLine) != 0) state_.line = before.line;
    if ((what & pushesFill) != 0) state_.fill = before.fill;
    if ((what & pushesFont) != 0) {
        state_.font = before.font;
        state_.hasWideCharacters = before.hasWideCharacters;
    }
    if ((what & pushesTextColour) != 0) state_.text = before.text;
    if ((what & pushesMapMode) != 0) state_.mapping = before.mapping;
    if ((what & pushesClip) != 0) state_.clip = before.clip;
    if ((what & pushesTextLine) != 0) state_.textLine = before.textLine;
}

std::optional<Metafile::Outline> Reader::region(Values values) const {
    enum class Kind : std::uint16_t { Null, Empty, Bands, Complex };
    enum class Entry : std::uint16_t { Band, Separation, End };
    values.word();
    const auto kind = static_cast<Kind>(values.word());
    if (kind == Kind::Null) return std::nullopt;
    if (kind == Kind::Empty) return Metafile::Outline{};
    Metafile::Outline bands;
    double top = 0;
    double bottom = 0;
    for (auto entry = static_cast<Entry>(values.word()); entry != Entry::End;
         entry = static_cast<Entry>(values.word())) {
        const double first = values.number();
        const double last = values.number();
        if (entry == Entry::Band) {
            top = first;
            bottom = last;
        } else {
            bands.push_back(rectangle(first, top, last, bottom).front());
        }
    }
    if (values.isEmpty() || !values.flag()) return bands;
    // A region may also be given by outlines; these are then the exact ones.
    return closed(outline(values));
}

void Reader::readText(Values values) {
    if (picture_.fonts.empty() || !state_.isOnBaseLine) throw Unknown("text");
    const PlacedText read = readPlacedText(values, state_.hasWideCharacters);
    if (read.units.empty()) return;
    Metafile::Text text;
    text.start = mapped(read.x, read.y);
    text.font = state_.font;
    text.colour = state_.text;
    text.lineColour = state_.textLine.value_or(state_.text);
    const auto end = [&](std::size_t i) { return read.ends[i] * state_.mapping.scaleX; };
    text.width = end(read.units.size() - 1);
    for (std::size_t i = 0; i < read.units.size(); ++i) {
        const double place = i == 0 ? 0 : end(i - 1);
        const gunichar character = characterAt(read.units, i);
        if (character >= firstBeyondUnits) ++i;
        std::array<char, 6> bytes{};
        const auto size = static_cast<std::size_t>(g_unichar_to_utf8(character, bytes.data()));
        text.characters.append(bytes.data(), size);
        text.places.insert(text.places.end(), size, place);
    }
    add(std::move(text));
}

void Reader::readVeil(Values values) {
    constexpr int deepest = 50;
    if (veils_ >= deepest) throw Unknown("veils");
    // A picture of its own, whose coordinates are those of this one, wherever it is said to lie.
    const MetafileHead head = readMetafileHead(values);
    const std::size_t opening = picture_.operations.size();
    add(Metafile::Veil{});
    const State outside = state_;
    state_ = {};
    state_.mapping = outside.mapping;
    state_.clip = outside.clip;
    ++veils_;
    readActions(values, head.actions);
    --veils_;
    state_ = outside;
    add(Metafile::EndOfVeil{});
    constexpr std::size_t place = 4 * sizeof(std::int32_t);
    values.take(place);
    const Metafile::Gradient veil = readGradient(values.part());
    if (veil.from.red != veil.to.red) throw Unknown("transparency by degrees");
    picture_.operations[opening].what = Metafile::Veil{1 - veil.from.red};
}

void Reader::readComment(Values values) {
    const std::string_view name = values.take(values.word());
    if (name == "XGRAD_SEQ_BEGIN") isInGradient_ = true;
    if (name == "XGRAD_SEQ_END") isInGradient_ = false;
}

}  // namespace

bool isMetafile(std::string_view bytes) {
    return bytes.starts_with(magicOfMetafile);
}

MetafileSize sizeOfMetafile(std::string_view bytes) {
    try {
        Values values(bytes);
        const MetafileHead head = readMetafileHead(values);
        return {head.width, head.height};
    } catch (const Unknown&) {
        return {};
    }
}

Metafile readMetafile(std::string_view bytes) {
    Metafile picture;
    try {
        Reader(picture).read(bytes);
    } catch (const Unknown& unknown) {
        picture.unknown = unknown.what();
    }
    return picture;
}

}  // namespace office::drawing
