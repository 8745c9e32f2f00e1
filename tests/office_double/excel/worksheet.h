#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "office/model/excel/book.h"
#include "office/value.h"
#include "office_double/excel/cell_store.h"

namespace office_double {

class Sheet;
class Workbook;

/// The defined names of a workbook or of a sheet.
class NameList final : public excel::NameScope {
public:
    explicit NameList(Workbook& book) : book_(book) {}

    void add(const std::string& name, const std::string& formula, bool visible);
    void remove(const std::string& name);
    /// An empty new name stands for a sheet that was deleted.
    void sheetRenamed(const std::string& from, const std::string& to);

    std::vector<std::string> all() override;
    bool has(std::string_view name) override;
    std::optional<excel::NamedCells> cells(const std::string& name) override;
    bool isVisible(const std::string& name) override { return find(name).visible; }
    void define(const std::string& name, const excel::CellsOfSheet& cells, bool visible) override;

private:
    struct DefinedName {
        std::string name;
        std::optional<excel::CellsOfSheet> cells;
        bool visible = true;
    };

    [[nodiscard]] DefinedName& find(std::string_view name);

    Workbook& book_;
    std::vector<DefinedName> names_;
};

/// What worksheets and chart sheets have in common: a tab of a workbook.
class Sheet : public excel::Sheet, public std::enable_shared_from_this<Sheet> {
public:
    Sheet(Workbook& book, std::string name) : names_(book), book_(book), name_(std::move(name)) {}

    void hide() { visibility_ = excel::Visibility::Hidden; }
    void veryHide() { visibility_ = excel::Visibility::VeryHidden; }
    [[nodiscard]] Workbook& book() const { return book_; }

    [[nodiscard]] bool isGone() const override;
    bool isThere() override { return !isGone(); }
    std::string name() override { return name_; }
    [[nodiscard]] const std::string& knownName() const override { return name_; }
    void rename(const std::string& name) override;
    std::int32_t place() override;
    excel::Visibility visibility() override { return visibility_; }
    void setVisibility(excel::Visibility visibility) override { visibility_ = visibility; }
    void activate() override;
    excel::NameScope& names() override { return names_; }

    NameList names_;

private:
    Workbook& book_;
    std::string name_;
    excel::Visibility visibility_ = excel::Visibility::Shown;
};

/// A chart with a name and a place.
class PlacedChart : public excel::SheetChart {
public:
    PlacedChart(Sheet& sheet, std::string name, const excel::Box& box)
        : sheet_(sheet),
          name_(std::move(name)),
          box_(box) {}

    [[nodiscard]] bool isGone() const override { return removed_; }
    std::string name() override { return name_; }
    excel::Box box() override { return box_; }
    office::CopiedPtr copy(office::CopySource source) override;
    void writePicture(const std::string& path, office::PictureKind kind) override;
    void paste(const office::CopiedPtr& picture) override;
    void select() override;
    void remove() override;

private:
    Sheet& sheet_;
    std::string name_;
    excel::Box box_;
    bool removed_ = false;
};

class Worksheet : public Sheet {
public:
    using Sheet::Sheet;

    /// Every column and row of the double has the same size, in points.
    static constexpr double columnWidth = 48;
    static constexpr double rowHeight = 15;

    // Building.
    Worksheet& chart(std::string name, const excel::Box& box = {96, 30, 240, 150});
    Worksheet& value(std::string_view cell, const office::Value& value);
    /// Values row by row, from a cell on.
    Worksheet& block(std::string_view firstCell,
                     const std::vector<std::vector<office::Value>>& rows);
    Worksheet& format(std::string_view address, std::string numberFormat);
    /// A name of this sheet alone; the address may have several areas: "A1:A5,C1:C5".
    Worksheet& define(const std::string& name, std::string_view address);
    Worksheet& protect();

    [[nodiscard]] CellStore& store() { return store_; }

    [[nodiscard]] bool isChartSheet() const override { return false; }
    bool isProtected() override { return protected_; }
    excel::CellsPtr cells(const excel::CellBlock& block) override;
    excel::CellBlock used() override { return store_.used(); }
    std::unique_ptr<excel::CellMap> cellMap() override;
    void select(const excel::CellBlocks& blocks) override;
    std::vector<excel::SheetChartPtr> charts() override { return charts_; }
    excel::SheetChartPtr findChart(std::string_view name) override;
    excel::SheetChartPtr ownChart() override { return nullptr; }
    void removeChart(const excel::SheetChart& chart);

private:
    CellStore store_;
    std::vector<excel::SheetChartPtr> charts_;
    bool protected_ = false;
};

/// A chart sheet. Size in points.
class Chart : public Sheet {
public:
    using Sheet::Sheet;

    Chart& size(double width, double height);

    [[nodiscard]] bool isChartSheet() const override { return true; }
    bool isProtected() override { return false; }
    excel::CellsPtr cells(const excel::CellBlock&) override { return nullptr; }
    excel::CellBlock used() override { return {}; }
    std::unique_ptr<excel::CellMap> cellMap() override { return nullptr; }
    void select(const excel::CellBlocks&) override {}
    std::vector<excel::SheetChartPtr> charts() override { return {}; }
    excel::SheetChartPtr findChart(std::string_view) override { return nullptr; }
    excel::SheetChartPtr ownChart() override;

private:
    excel::Box box_{0, 0, 360, 240};
};

}  // namespace office_double
