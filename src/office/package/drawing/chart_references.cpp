#include "office/package/drawing/chart_references.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include "office/text.h"

namespace office::package {

namespace {

std::optional<CellsOfSheet> cellsOf(std::string_view formula) {
    formula = trim(formula);
    if (formula.starts_with('(') && formula.ends_with(')'))
        formula = formula.substr(1, formula.size() - 2);
    return cellsOfFormula(formula, office::model::excel::Notation::A1);
}

bool isLine(const CellBlock& block) {
    return block.columns() == 1 || block.rows() == 1;
}

/// None is drawn with more, and all cells of a sheet would be many thousands.
bool hasFewLevels(const CellBlock& block) {
    constexpr std::int32_t most = 100;
    return std::min(block.columns(), block.rows()) <= most;
}

std::optional<ChartReference> referenceOf(pugi::xml_node node) {
    using Memory = ChartReference::Memory;
    struct Type {
        std::string_view name;
        std::string_view cache;
        Memory memory;
    };
    static constexpr Type types[] = {{"numRef", "numCache", Memory::Numbers},
                                     {"strRef", "strCache", Memory::Texts},
                                     {"multiLvlStrRef", "multiLvlStrCache", Memory::Levels},
                                     {"datalabelsRange", "dlblRangeCache", Memory::Texts},
                                     {"dlblFTEntry", "dlblFieldTableCache", Memory::Texts}};
    for (const Type& type : types) {
        if (localName(node) != type.name) continue;
        const auto cache = childCalled(node, type.cache);
        auto cells = cellsOf(childCalled(node, "f").text().get());
        if (!cache || !cells) return {};
        const auto& blocks = cells->blocks;
        const bool isPlain = type.memory == Memory::Levels
                                 ? blocks.size() == 1 && hasFewLevels(blocks.front())
                                 : std::all_of(blocks.begin(), blocks.end(), isLine);
        if (!isPlain) return {};
        const std::string_view holder = localName(node.parent());
        return ChartReference{node,
                              cache,
                              type.memory,
                              *std::move(cells),
                              holder == "cat" || holder == "xVal",
                              holder == "tx" || type.name == "dlblFTEntry"};
    }
    return {};
}

/// Whether the categories stand one below the other.
bool areInRows(const ChartReference& levels) {
    const auto values = childCalled(childCalled(levels.node.parent().parent(), "val"), "numRef");
    const auto cells = cellsOf(childCalled(values, "f").text().get());
    const CellBlock& block = levels.cells.blocks.front();
    if (cells && cells->blocks.front().cells() > 1) return cells->blocks.front().columns() == 1;
    return block.rows() >= block.columns();
}

}  // namespace

std::vector<ChartReference> referencesIn(const Xml& chart) {
    std::vector<ChartReference> references;
    visitBelow(chart.root(), [&](pugi::xml_node node) {
        if (auto found = referenceOf(node)) references.push_back(*std::move(found));
    });
    return references;
}

std::vector<CellsOfSheet> levelsOf(const ChartReference& one) {
    if (one.memory != ChartReference::Memory::Levels) return {one.cells};
    std::vector<CellsOfSheet> levels;
    const CellBlock& block = one.cells.blocks.front();
    const bool inRows = areInRows(one);
    for (std::int32_t i = 0; i < (inRows ? block.columns() : block.rows()); ++i) {
        CellBlock level = block;
        if (inRows)
            level.firstColumn = level.lastColumn = block.lastColumn - i;
        else
            level.firstRow = level.lastRow = block.lastRow - i;
        levels.push_back({one.cells.sheet, {level}});
    }
    return levels;
}

}  // namespace office::package
