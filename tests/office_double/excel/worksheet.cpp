#include "office_double/excel/worksheet.h"

#include <fmt/format.h>

#include <cmath>
#include <stdexcept>

#include "office/text.h"
#include "office_double/excel/application.h"
#include "office_double/excel/picture.h"

namespace office_double {

namespace {

excel::CellBlocks requiredBlocks(std::string_view address) {
    const auto blocks = excel::blocksOf(address);
    if (!blocks) throw std::invalid_argument("No address: " + std::string(address));
    return *blocks;
}

class Grid : public excel::CellMap {
public:
    excel::CellBlock cellAt(double left, double top) override {
        return excel::CellBlock::cell(
            static_cast<std::int32_t>(std::floor(top / Worksheet::rowHeight)),
            static_cast<std::int32_t>(std::floor(left / Worksheet::columnWidth)));
    }
    excel::Box placeOf(const excel::CellBlock& block) override {
        return {block.firstColumn * Worksheet::columnWidth, block.firstRow * Worksheet::rowHeight,
                block.columns() * Worksheet::columnWidth, block.rows() * Worksheet::rowHeight};
    }
};

/// One block of cells of a worksheet.
class StoredCells : public excel::Cells {
public:
    StoredCells(Worksheet& sheet, const excel::CellBlock& block) : sheet_(sheet), block_(block) {}

    office::Table read() override { return sheet_.store().read(block_); }
    void write(const office::Table& values) override {
        sheet_.store().enter(block_.firstRow, block_.firstColumn, values);
        sheet_.book().setModified(true);
    }
    void clear() override {
        sheet_.store().clear(block_);
        sheet_.book().setModified(true);
    }
    std::string numberFormat() override {
        return sheet_.store().format(block_.firstRow, block_.firstColumn);
    }
    void setNumberFormat(const std::string& code) override {
        sheet_.store().setFormat(block_, code);
    }
    excel::Box place() override { return Grid().placeOf(block_); }
    bool areBlank() override {
        const office::Table values = read();
        for (std::size_t row = 1; row <= values.rows(); ++row) {
            for (std::size_t column = 1; column <= values.columns(); ++column)
                if (!values.at(row, column).isEmpty()) return false;
        }
        return true;
    }
    office::CopiedPtr copy(office::CopySource source) override {
        office::TableLook table;
        const office::Table values = read();
        if (source.kind == office::CopySource::Kind::Cells) {
            table.leftPt = place().left;
            table.topPt = place().top;
            table.columnWidthsPt.assign(values.columns(), Worksheet::columnWidth);
            table.rowHeightsPt.assign(values.rows(), Worksheet::rowHeight);
            for (std::size_t row = 1; row <= values.rows(); ++row) {
                for (std::size_t column = 1; column <= values.columns(); ++column) {
                    table.cells.emplace_back();
                    table.cells.back().text = values.at(row, column).toText();
                }
            }
        }
        return std::make_shared<CopiedThing>(std::move(source), place(), std::move(table));
    }

private:
    Worksheet& sheet_;
    excel::CellBlock block_;
};

}  // namespace

void NameList::add(const std::string& name, const std::string& formula, bool visible) {
    names_.push_back({name, excel::cellsOfFormula(formula, excel::Notation::A1), visible});
}

void NameList::remove(const std::string& name) {
    std::erase_if(
        names_, [&](const DefinedName& each) { return office::sameIgnoringCase(each.name, name); });
}

void NameList::sheetRenamed(const std::string& from, const std::string& to) {
    for (DefinedName& each : names_) {
        if (!each.cells || each.cells->sheet != from) continue;
        if (to.empty()) {
            each.cells.reset();
        } else {
            each.cells->sheet = to;
        }
    }
}

std::vector<std::string> NameList::all() {
    std::vector<std::string> names;
    for (const DefinedName& each : names_) names.push_back(each.name);
    return names;
}

bool NameList::has(std::string_view name) {
    return std::any_of(names_.begin(), names_.end(), [&](const DefinedName& each) {
        return office::sameIgnoringCase(each.name, name);
    });
}

NameList::DefinedName& NameList::find(std::string_view name) {
    for (DefinedName& each : names_) {
        if (office::sameIgnoringCase(each.name, name)) return each;
    }
    throw office::Failure(office::FailureNumber::SubscriptOutOfRange, "Names", "No such name");
}

std::optional<excel::NamedCells> NameList::cells(const std::string& name) {
    const auto& cells = find(name).cells;
    if (!cells) return std::nullopt;
    std::string sheet = cells->sheet;
    Workbook* where = &book_;
    if (const auto close = sheet.find(']'); sheet.starts_with('[') && close != std::string::npos) {
        where = book_.application().findOpen(sheet.substr(1, close - 1));
        sheet.erase(0, close + 1);
    }
    const auto found = where == nullptr ? nullptr : where->findTab(sheet);
    if (!found) return std::nullopt;
    return excel::NamedCells{where->shared_from_this(), found, cells->blocks};
}

void NameList::define(const std::string& name, const excel::CellsOfSheet& cells, bool visible) {
    std::erase_if(
        names_, [&](const DefinedName& each) { return office::sameIgnoringCase(each.name, name); });
    names_.push_back({name, cells, visible});
    book_.setModified(true);
}

bool Sheet::isGone() const {
    const auto& tabs = book_.tabs();
    return std::none_of(tabs.begin(), tabs.end(),
                        [this](const auto& tab) { return tab.get() == this; });
}

void Sheet::rename(const std::string& name) {
    book_.sheetRenamed(name_, name);
    name_ = name;
}

std::int32_t Sheet::place() {
    const auto& tabs = book_.tabs();
    const auto self = std::find_if(tabs.begin(), tabs.end(),
                                   [this](const auto& tab) { return tab.get() == this; });
    return static_cast<std::int32_t>(self - tabs.begin());
}

void Sheet::activate() {
    book_.activateSheet(name_);
}

office::CopiedPtr PlacedChart::copy(office::CopySource source) {
    return std::make_shared<CopiedThing>(std::move(source), box_);
}

void PlacedChart::writePicture(const std::string& path, office::PictureKind kind) {
    writePictureOf(box_, path, kind);
}

void PlacedChart::paste(const office::CopiedPtr&) {
    office::refuse("Chart.Paste", "This chart has data of its own");
}

void PlacedChart::select() {
    sheet_.book().select({sheet_.shared_from_this(), {}, sheet_.findChart(name_)});
}

void PlacedChart::remove() {
    removed_ = true;
    dynamic_cast<Worksheet&>(sheet_).removeChart(*this);
}

Worksheet& Worksheet::chart(std::string name, const excel::Box& box) {
    charts_.push_back(std::make_shared<PlacedChart>(*this, std::move(name), box));
    return *this;
}

Worksheet& Worksheet::value(std::string_view cell, const office::Value& value) {
    return block(cell, {{value}});
}

Worksheet& Worksheet::block(std::string_view firstCell,
                            const std::vector<std::vector<office::Value>>& rows) {
    const excel::CellBlock first = requiredBlocks(firstCell).front();
    auto row = first.firstRow;
    for (const auto& values : rows) {
        office::Table table(1, values.size());
        for (std::size_t i = 0; i < values.size(); ++i) table.at(1, i + 1) = values[i];
        store_.enter(row++, first.firstColumn, table);
    }
    return *this;
}

Worksheet& Worksheet::format(std::string_view address, std::string numberFormat) {
    store_.setFormat(requiredBlocks(address).front(), std::move(numberFormat));
    return *this;
}

Worksheet& Worksheet::define(const std::string& name, std::string_view address) {
    names_.define(name, {this->name(), requiredBlocks(address)}, true);
    return *this;
}

Worksheet& Worksheet::protect() {
    protected_ = true;
    return *this;
}

excel::CellsPtr Worksheet::cells(const excel::CellBlock& block) {
    return std::make_shared<StoredCells>(*this, block);
}

std::unique_ptr<excel::CellMap> Worksheet::cellMap() {
    return std::make_unique<Grid>();
}

void Worksheet::select(const excel::CellBlocks& blocks) {
    book().select({shared_from_this(), blocks, nullptr});
}

excel::SheetChartPtr Worksheet::findChart(std::string_view name) {
    for (const auto& chart : charts_) {
        if (office::sameIgnoringCase(chart->name(), name)) return chart;
    }
    return nullptr;
}

void Worksheet::removeChart(const excel::SheetChart& chart) {
    std::erase_if(charts_, [&](const auto& held) { return held.get() == &chart; });
}

Chart& Chart::size(double width, double height) {
    box_ = {0, 0, width, height};
    return *this;
}

excel::SheetChartPtr Chart::ownChart() {
    return std::make_shared<PlacedChart>(*this, name(), box_);
}

}  // namespace office_double
