#include "office/libreoffice/excel/sheet_list.h"

#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "office/failure.h"
#include "office/text.h"

namespace libreoffice::excel {

namespace {

bool hasContents(const SheetPtr& sheet) {
    const auto filled =
        as<css::sheet::XCellRangesQuery>(sheet->sheet())
            ->queryContentCells(css::sheet::CellFlags::VALUE | css::sheet::CellFlags::DATETIME |
                                css::sheet::CellFlags::STRING | css::sheet::CellFlags::FORMULA);
    return filled->getRangeAddresses().hasElements();
}

/// How a chart sheet arrives: no cells, and one chart in the corner.
bool looksLikeChartSheet(const SheetPtr& sheet) {
    const auto& charts = sheet->charts().all();
    if (charts.size() != 1) return false;
    const css::awt::Point corner = charts.front()->shape->getPosition();
    return corner.X == 0 && corner.Y == 0 && !hasContents(sheet);
}

}  // namespace

SheetList::SheetList(uno::Reference<css::sheet::XSpreadsheets> sheets, const WorkbookFacts& facts)
    : sheets_(std::move(sheets)),
      byPlace_(as<css::container::XIndexAccess>(sheets_)) {
    // All of them at once: a record made later could not be told from one whose sheet was deleted.
    for (const SheetPtr& record : all()) {
        for (const WorkbookFacts::Sheet& fact : facts.sheets) {
            if (fact.name != record->knownName()) continue;
            record->isChartSheet = fact.isChartSheet;
            record->isVeryHidden = fact.isVeryHidden;
            record->part = fact.part;
            record->fileName = fact.name;
        }
    }
}

std::vector<std::string> SheetList::readNames() {
    std::vector<std::string> names;
    const auto elements = sheets_->getElementNames();
    for (const rtl::OUString& name : elements) names.push_back(fromUno(name));
    return names;
}

std::vector<SheetPtr> SheetList::all(Kind kind) {
    const auto names = readNames();
    if (names != namesSeen_) followNames(names);
    std::vector<SheetPtr> sheets;
    for (const std::string& name : names) {
        const SheetPtr record = recordFor(name);
        const bool fits = kind == Kind::Any || record->isChartSheet == (kind == Kind::ChartSheet);
        if (fits) sheets.push_back(record);
    }
    return sheets;
}

std::int32_t SheetList::count() {
    return byPlace_->getCount();
}

SheetPtr SheetList::find(std::string_view name) {
    const auto isCalled = [&](const std::string& known) {
        return office::sameIgnoringCase(known, name);
    };
    for (const SheetPtr& record : records_) {
        if (isCalled(record->knownName()) && isCalled(record->readName())) return record;
    }
    followNames(readNames());
    for (const SheetPtr& record : records_) {
        if (isCalled(record->knownName())) return record;
    }
    if (!sheets_->hasByName(toUno(name))) return nullptr;
    return recordFor(std::string(name));
}

SheetPtr SheetList::at(std::int32_t place) {
    if (place < 0) return nullptr;
    const auto sheets = all();
    const auto index = static_cast<std::size_t>(place);
    return index < sheets.size() ? sheets[index] : nullptr;
}

void SheetList::requireThere(const SheetPtr& sheet, const std::string& source) {
    if (!sheet->isGone && sheet->readName() != sheet->knownName()) followNames(readNames());
    sheet->requireNotGone(source);
}

SheetPtr SheetList::add(std::int32_t place) {
    const auto names = readNames();
    const auto isTaken = [&](const std::string& wanted) {
        return std::any_of(names.begin(), names.end(), [&](const std::string& name) {
            return office::sameIgnoringCase(name, wanted);
        });
    };
    std::size_t number = names.size() + 1;
    while (isTaken(fmt::format("Sheet{}", number))) ++number;
    const std::string name = fmt::format("Sheet{}", number);
    sheets_->insertNewByName(toUno(name), static_cast<sal_Int16>(place));
    return recordFor(name);
}

void SheetList::remove(const SheetPtr& sheet) {
    sheets_->removeByName(toUno(sheet->readName()));
    sheet->isGone = true;
    std::erase(records_, sheet);
}

void SheetList::tellKindsByLooks() {
    for (const SheetPtr& sheet : all()) sheet->isChartSheet = looksLikeChartSheet(sheet);
}

SheetPtr SheetList::recordFor(const std::string& name) {
    for (const SheetPtr& record : records_) {
        if (record->knownName() == name) return record;
    }
    const uno::Reference<css::sheet::XSpreadsheet> sheet(sheets_->getByName(toUno(name)),
                                                         uno::UNO_QUERY_THROW);
    records_.push_back(std::make_shared<SheetRecord>(sheet, name));
    return records_.back();
}

/// Brings the records up to date with renamed and deleted sheets. A record whose sheet was deleted
/// now reads the name of a neighbour; the neighbour's own record, which bore that name already, is
/// the right one.
void SheetList::followNames(const std::vector<std::string>& names) {
    std::vector<std::pair<SheetPtr, std::string>> changed;
    std::vector<std::string> kept;
    for (const SheetPtr& record : records_) {
        const std::string now = record->readName();
        if (now == record->knownName()) {
            kept.push_back(now);
        } else {
            changed.emplace_back(record, now);
        }
    }
    for (const auto& [record, now] : changed) {
        const bool exists = std::find(names.begin(), names.end(), now) != names.end();
        const bool isOthers = std::find(kept.begin(), kept.end(), now) != kept.end();
        if (exists && !isOthers) {
            record->noteName(now);
            kept.push_back(now);
        } else {
            record->isGone = true;
        }
    }
    std::erase_if(records_, [](const SheetPtr& record) { return record->isGone; });
    namesSeen_ = names;
}

}  // namespace libreoffice::excel
