#include "office/drawing/mended_metafile.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>
#include <utility>

#include "office/drawing/metafile_action.h"
#include "office/drawing/metafile_parts.h"
#include "office/drawing/outer_edges.h"

namespace office::drawing {

namespace {

/// Of the two pixels of the screen by which LibreOffice draws cells from right to left too far to
/// the left, in hundredths of a millimetre: both outer borders are in the picture then.
constexpr std::int32_t aside = 40;

/// Widths that differ by less are the same but for rounding.
constexpr std::int32_t closeEnough = 100;

/// Between a text and the edge of its cell, and by which one that fits may come out too wide: less
/// than the least text behind the edge takes.
constexpr double widestMargin = 80;
constexpr double rounding = 15;

class Mender {
public:
    Mender(std::span<char> bytes, std::int32_t width, std::vector<IndentedCell> indented)
        : bytes_(bytes),
          width_(width),
          indented_(std::move(indented)) {
        std::sort(indented_.begin(), indented_.end(),
                  [](const IndentedCell& one, const IndentedCell& other) {
                      return one.bottom < other.bottom;
                  });
    }

    void mend() {
        Values values(std::string_view(bytes_.data(), bytes_.size()));
        const Values size = sizeInMetafile(values);
        const std::size_t behindSize = values.left();
        Values head = size;
        const std::int32_t width = head.number();
        const std::int32_t height = head.number();
        // By so much cells are drawn narrower in all, where they aren't read from right to left.
        std::int32_t newWidth = width < leastSide ? width : width - screenPixel;
        bool isAtBeginning = true;
        for (auto left = head.next<std::uint32_t>(); left > 0; --left) {
            const auto action = static_cast<Action>(values.word());
            const Values content = values.part();
            if (action == Action::TextLineColour || action == Action::OverlineColour)
                mendLineColour(content, values.left());
            if (action == Action::MapMode && isAtBeginning &&
                mendOrigin(content, values.left(), width))
                newWidth = width - widthOfOthers(width);
            if (isAtBeginning && action != Action::Push) {
                isAtBeginning = false;
                edges_.emplace(bytes_, newWidth, height);
            }
            if (arePlacesKnown_) mendPlaces(action, content, values.left());
        }
        write(size, behindSize, newWidth);
        if (edges_) edges_->mend();
    }

private:
    /// Only the flag behind it says that it is no colour of the line's own.
    void mendLineColour(Values colour, std::size_t behind) {
        if (colour.next<std::uint32_t>() == colourOfText && !colour.isEmpty())
            write(colour, behind, std::uint8_t{0});
    }

    /// Cells from right to left lie left of an origin that is moved there first, and those that a
    /// text runs out to, which aren't shown, lie left of them.
    bool mendOrigin(Values mapping, std::size_t behind, std::int32_t width) {
        Values content = mapping.part();
        content.word();
        const Values place = content;
        const std::int32_t origin = content.number();
        if (origin < width - 1) return false;
        write(place, mapping.left() + behind, origin - widthOfOthers(width) + aside);
        return true;
    }

    /// Where places can't be known, texts stay, and edges too unless all have been noted: fills and
    /// borders are ahead of the first text, and what is drawn on the cells is behind.
    void mendPlaces(Action action, const Values& content, std::size_t behind) {
        try {
            areCellsDrawn_ = areCellsDrawn_ || action == Action::Font;
            followPlaces(action, content);
            if (action == Action::TextArray && !indented_.empty()) indent(content, behind);
            if (edges_ && !areCellsDrawn_) edges_->take(action, content, behind, state_.mapping);
        } catch (const Unknown&) {
            arePlacesKnown_ = false;
            if (!areCellsDrawn_) edges_.reset();
        }
    }

    void followPlaces(Action action, Values content) {
        switch (action) {
            case Action::Push:
                pushed_.emplace_back(content.word(), state_);
                return;
            case Action::Pop:
                return pop();
            case Action::MapMode:
                state_.mapping = readMapping(content.part(), state_.mapping);
                return;
            case Action::Font:
                state_.font = readFont(content.part(), 1);
                return;
            default:
                return;
        }
    }

    void pop() {
        if (pushed_.empty()) throw Unknown("damage");
        const auto [what, before] = std::move(pushed_.back());
        pushed_.pop_back();
        if ((what & pushesMapMode) != 0) state_.mapping = before.mapping;
        if ((what & pushesFont) != 0) state_.font = before.font;
    }

    void indent(const Values& content, std::size_t behind) {
        const PlacedText text = readPlacedText(content, state_.font.hasWideCharacters);
        if (text.units.empty() || state_.font.font.angle != 0) return;
        const Mapping& mapping = state_.mapping;
        const auto start = mapping.point(text.x, text.y);
        const double end = start.x + text.ends[text.units.size() - 1] * mapping.scaleX;
        auto cell =
            std::lower_bound(indented_.begin(), indented_.end(), start.y,
                             [](const IndentedCell& each, double y) { return each.bottom < y; });
        for (; cell != indented_.end() && cell->top < start.y; ++cell) {
            const double gap = cell->right - end;
            const bool isWithoutIndent =
                gap >= -rounding && gap < std::min(widestMargin, cell->indent / 2);
            if (!isWithoutIndent || start.x - cell->indent < cell->left) continue;
            const auto shift = std::lround(cell->indent / mapping.scaleX);
            return write(content, behind, text.x - static_cast<std::int32_t>(shift));
        }
    }

    [[nodiscard]] std::int32_t widthOfOthers(std::int32_t width) const {
        return width - width_ > closeEnough ? width - width_ : 0;
    }

    /// In the place of the next of some values; `behind` is what follows them.
    template <class Number>
    void write(const Values& place, std::size_t behind, Number number) {
        std::memcpy(bytes_.last(place.left() + behind).data(), &number, sizeof number);
    }

    /// What the places of texts go by.
    struct State {
        Mapping mapping;
        ReadFont font;
    };

    std::span<char> bytes_;
    std::int32_t width_;
    /// From top to bottom.
    std::vector<IndentedCell> indented_;
    std::optional<OuterEdges> edges_;
    State state_;
    std::vector<std::pair<std::uint16_t, State>> pushed_;
    bool areCellsDrawn_ = false;
    bool arePlacesKnown_ = true;
};

}  // namespace

void mendMetafileOfCells(std::span<char> bytes, std::int32_t width,
                         std::vector<IndentedCell> indented) {
    try {
        Mender(bytes, width, std::move(indented)).mend();
    } catch (const Unknown&) {
        return;
    }
}

}  // namespace office::drawing
