#include "office/package/drawing/chart_memory.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "office/package/drawing/chart_order.h"
#include "office/package/drawing/chart_references.h"
#include "office/text.h"

namespace office::package {

namespace {

using Content = CellContent::Kind;

bool isSameNumber(std::string_view text, double number) {
    constexpr double noise = 1e-12;
    const auto known = numberOf(text);
    return known &&
           std::abs(*known - number) <= noise * std::max(std::abs(*known), std::abs(number));
}

/// Lines ends aside, which differ between programs.
bool isSameText(std::string_view one, std::string_view other) {
    const auto plain = [](std::string_view text) { return replaceAll(trim(text), "\r", ""); };
    return plain(one) == plain(other);
}

/// Numbers are shown by the language of the machine, others part their digits by other marks.
/// Letters stay: two months may have the same digits.
std::string withoutMarks(std::string_view text) {
    std::string plain;
    bool isParted = false;
    for (const auto& [bytes, letter] : charactersOf(text)) {
        constexpr std::u32string_view marks = U" .,'/\u00a0\u2019\u202f";
        const bool isDigit = letter >= U'0' && letter <= U'9';
        if (marks.find(letter) != std::u32string_view::npos) {
            isParted = true;
            continue;
        }
        const bool followsDigit = !plain.empty() && plain.back() >= '0' && plain.back() <= '9';
        if (isParted && isDigit && followsDigit) plain += '.';
        isParted = false;
        plain += bytes;
    }
    return plain;
}

bool isSameShown(std::string_view known, const std::string& shown) {
    return isSameText(known, shown) || withoutMarks(known) == withoutMarks(shown);
}

class Memories {
public:
    Memories(const Copied& copied, const FormatOfCell& formatOf,
             std::vector<ChartReference> references, std::string element, bool drawsHidden)
        : references_(std::move(references)),
          cells_(copied, wanted(references_)),
          formatOf_(formatOf),
          element_(std::move(element)),
          drawsHidden_(drawsHidden) {
        std::erase_if(references_,
                      [&](const ChartReference& one) { return !cells_.know(one.cells); });
    }

    /// What is hidden leaves no gap, unless the chart draws it.
    void refresh() {
        for (const ChartReference& one : references_) {
            const auto lines = linesOf(one);
            if (!isRemembered(one, lines)) write(one, lines);
            if (localName(one.cache) == "numCache")
                writeFormats(one.cache, one.cells.sheet, lines.front());
        }
    }

private:
    static std::vector<CellsOfSheet> wanted(const std::vector<ChartReference>& references) {
        std::vector<CellsOfSheet> cells;
        cells.reserve(references.size());
        for (const ChartReference& one : references) cells.push_back(one.cells);
        return cells;
    }

    /// A level that is hidden as a whole doesn't count, as long as another does.
    [[nodiscard]] std::vector<ChartLine> linesOf(const ChartReference& one) const {
        const bool all = drawsHidden_ || one.isName;
        std::vector<CellsOfSheet> levels = levelsOf(one);
        const auto isHidden = [&](const CellsOfSheet& level) {
            return cells_.lineOf(level, Drawn::Shown).count == 0;
        };
        if (!all && !std::all_of(levels.begin(), levels.end(), isHidden))
            std::erase_if(levels, isHidden);
        std::vector<ChartLine> lines;
        for (const CellsOfSheet& level : levels) {
            const Drawn drawn = lines.empty() ? Drawn::Shown : Drawn::ShownHeadings;
            lines.push_back(cells_.lineOf(level, all ? Drawn::All : drawn));
        }
        return lines;
    }

    [[nodiscard]] bool isRemembered(const ChartReference& one,
                                    const std::vector<ChartLine>& lines) const {
        if (one.memory != ChartReference::Memory::Levels)
            return agrees(one, one.cache, lines.front());
        std::size_t level = 0;
        for (const pugi::xml_node child : one.cache.children()) {
            if (localName(child) != "lvl") continue;
            if (level >= lines.size() || !agrees(one, child, lines[level])) return false;
            ++level;
        }
        return level == lines.size();
    }

    [[nodiscard]] bool agrees(const ChartReference& one, pugi::xml_node holder,
                              const ChartLine& line) const {
        std::map<unsigned, const char*> known;
        for (const pugi::xml_node point : holder.children()) {
            if (localName(point) == "pt")
                known[point.attribute("idx").as_uint()] = childCalled(point, "v").text().get();
        }
        for (const ChartPoint& point : line.points) {
            const auto found = known.find(point.index);
            if (!agrees(one, found == known.end() ? nullptr : found->second, point)) return false;
            if (found != known.end()) known.erase(found);
        }
        return std::all_of(known.begin(), known.end(), [&](const auto& rest) {
            return rest.first < line.count && *rest.second == '\0';
        });
    }

    [[nodiscard]] bool agrees(const ChartReference& one, const char* known,
                              const ChartPoint& point) const {
        const CellContent& content = *point.content;
        if (content.kind == Content::Error) return known == nullptr || *known == '#';
        const bool isText = content.kind == Content::Text;
        // A text in a line of numbers is drawn as 0.
        if (one.memory == ChartReference::Memory::Numbers && isText)
            return !isTextHeading(one, point) && (known == nullptr || isSameNumber(known, 0));
        const std::string_view text = known == nullptr ? "" : known;
        if (isText) return isSameText(text, content.text);
        return isSameNumber(text, content.number) ||
               (one.memory != ChartReference::Memory::Numbers &&
                isSameShown(text, cells_.textOf(one.cells.sheet, point)));
    }

    /// An empty text leaves the others of its line the numbers that they are.
    [[nodiscard]] static bool isTextHeading(const ChartReference& one, const ChartPoint& point) {
        return one.isHeading && point.content->kind == Content::Text &&
               !point.content->text.empty();
    }

    [[nodiscard]] std::string textOf(const ChartReference& one, const ChartPoint& point) const {
        const CellContent& content = *point.content;
        const bool isNumber = one.memory == ChartReference::Memory::Numbers;
        if (content.kind == Content::Error) return "#N/A";
        if (content.kind == Content::Text) return isNumber ? "0" : legible(content.text);
        return isNumber ? fmt::format("{}", content.number)
                        : legible(cells_.textOf(one.cells.sheet, point));
    }

    [[nodiscard]] std::string named(const char* name) const { return element_ + name; }

    void write(ChartReference one, const std::vector<ChartLine>& lines) const {
        const auto& points = lines.front().points;
        const bool hasText = std::any_of(points.begin(), points.end(), [&](const auto& point) {
            return isTextHeading(one, point);
        });
        if (one.memory == ChartReference::Memory::Numbers && hasText) makeTexts(one);
        const bool hasLevels = one.memory == ChartReference::Memory::Levels;
        const auto formats = formatsOf(one.cache, lines.front().count);
        keepChildren(one.cache, [](pugi::xml_node child) {
            return localName(child) == "formatCode" || localName(child) == "extLst";
        });
        const auto rest = childCalled(one.cache, "extLst");
        const auto add = [&](const char* name) {
            return rest ? one.cache.insert_child_before(named(name).c_str(), rest)
                        : one.cache.append_child(named(name).c_str());
        };
        add("ptCount").append_attribute("val").set_value(lines.front().count);
        for (const ChartLine& line : lines) {
            auto level = hasLevels ? add("lvl") : pugi::xml_node();
            for (const ChartPoint& point : line.points) {
                if (one.isHeading && one.memory == ChartReference::Memory::Numbers &&
                    point.content->kind == Content::Text)
                    continue;
                auto made = hasLevels ? level.append_child(named("pt").c_str()) : add("pt");
                made.append_attribute("idx").set_value(point.index);
                if (const auto format = formats.find(point.index); format != formats.end())
                    made.append_attribute("formatCode").set_value(format->second.c_str());
                made.append_child(named("v").c_str()).text().set(textOf(one, point).c_str());
            }
        }
    }

    /// What points are formatted by as long as they stay in their places.
    static std::map<unsigned, std::string> formatsOf(pugi::xml_node cache, unsigned count) {
        std::map<unsigned, std::string> formats;
        if (childCalled(cache, "ptCount").attribute("val").as_uint() != count) return formats;
        for (const pugi::xml_node point : cache.children()) {
            if (const auto format = point.attribute("formatCode"))
                formats[point.attribute("idx").as_uint()] = format.value();
        }
        return formats;
    }

    /// Some programs always remember "General", since a workbook's chart asks its cells.
    void writeFormats(pugi::xml_node cache, const std::string& sheet, const ChartLine& line) const {
        const std::string general = "General";
        const std::string known = childCalled(cache, "formatCode").text().get();
        const bool isKnown = (!known.empty() && known != general) ||
                             cache.find_child([](const pugi::xml_node& point) {
                                 return !point.attribute("formatCode").empty();
                             });
        if (isKnown) return;
        std::map<unsigned, std::string> codes;
        for (const ChartPoint& point : line.points) {
            if (point.content->kind == Content::Number)
                codes[point.index] = formatOf_(sheet, point.row, point.column);
        }
        if (codes.empty()) return;
        const std::string common = codes.begin()->second;
        if (common != general) chartChild(cache, "formatCode").text().set(common.c_str());
        for (pugi::xml_node point : cache.children()) {
            const auto found = codes.find(point.attribute("idx").as_uint());
            if (localName(point) == "pt" && found != codes.end() && found->second != common)
                point.append_attribute("formatCode").set_value(found->second.c_str());
        }
    }

    void makeTexts(ChartReference& one) const {
        one.memory = ChartReference::Memory::Texts;
        one.node.set_name(named("strRef").c_str());
        one.cache.set_name(named("strCache").c_str());
        one.cache.remove_child(childCalled(one.cache, "formatCode"));
        for (pugi::xml_node point : one.cache.children()) point.remove_attribute("formatCode");
    }

    std::vector<ChartReference> references_;
    ChartCells cells_;
    const FormatOfCell& formatOf_;
    /// The prefix of the chart's elements, with its colon.
    std::string element_;
    bool drawsHidden_;
};

}  // namespace

void rememberCells(const Xml& chart, const Copied& copied, const FormatOfCell& formatOf) {
    std::vector<ChartReference> references = referencesIn(chart);
    if (references.empty()) return;
    const std::string_view root = chart.root().name();
    const auto shownOnly =
        childNamed(childNamed(chart.root(), ns::chart, "chart"), ns::chart, "plotVisOnly");
    Memories(copied, formatOf, std::move(references),
             std::string(root.substr(0, root.find(':') + 1)),
             shownOnly && !shownOnly.attribute("val").as_bool(true))
        .refresh();
}

}  // namespace office::package
