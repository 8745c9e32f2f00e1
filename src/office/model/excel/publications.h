#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "office/model/excel/sheet.h"
#include "office/picture.h"
#include "office/table_look.h"

namespace office::model::excel {

/// A part of a workbook that goes to a page.
struct Publication {
    enum class Source { Range = 4, Chart = 5 };

    Source source = Source::Range;
    /// Of the page.
    std::string file;
    std::string sheet;
    /// An address or a name, or the name of a chart; empty for a chart sheet.
    std::string place;
    /// What names it within the page.
    std::string divId;
    std::string title;
    /// Those of its page that may still be drawn, and their places.
    std::vector<std::pair<std::filesystem::path, Picture>> pictures = {};
};

using PublicationPtr = std::shared_ptr<Publication>;

/// The charts of a sheet, and where they and the cells under them lie.
struct PlacedCharts {
    struct One {
        SheetChartPtr chart;
        std::string name;
        Box box;
    };
    std::vector<One> charts;
    std::unique_ptr<CellMap> map;
    /// Null for one that has come to the sheet since.
    [[nodiscard]] const One* of(const SheetChart& chart) const;
    /// The cells under several of them and between them, if nothing is seen of any.
    std::optional<CellBlock> blankCells;
};

struct Publications {
    /// Those that have not been deleted.
    std::vector<PublicationPtr> records;
    /// How many there have been, for the names of those to come.
    int made = 0;
    /// The number of the picture that was written last.
    int lastPicture = 0;
    /// As they were seen first since there was no record: to ask for all of them for each record
    /// would take ever longer.
    const PlacedCharts& placedCharts(const SheetPtr& sheet);
    /// Places that showed nothing when they were published first since then: most are there to keep
    /// items apart, and are asked for again and again.
    std::map<std::pair<SheetPtr, std::string>, TableLook> gaps;

    /// What was seen goes with the last record.
    void remove(const PublicationPtr& record) {
        std::erase(records, record);
        if (!records.empty()) return;
        placedCharts_.clear();
        gaps.clear();
    }

private:
    std::map<SheetPtr, PlacedCharts> placedCharts_;
};

}  // namespace office::model::excel
