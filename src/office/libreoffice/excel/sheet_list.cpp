#include "office/libreoffice/excel/sheet_list.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/excel/unrecorded.h"
#include "office/text.h"

namespace libreoffice::excel {

namespace {

/// How a chart sheet arrives: no cells, and one chart in the corner.
bool looksLikeChartSheet(const SheetRecordPtr& sheet) {
    const auto& charts = sheet->chartShapes().all();
    if (charts.size() != 1) return false;
    const css::awt::Point corner = charts.front()->shape()->getPosition();
    return corner.X == 0 && corner.Y == 0 &&
           !filledParts(as<css::table::XCellRange>(sheet->sheet())).hasElements();
}

}  // namespace

SheetList::SheetList(CalcDocument& book, uno::Reference<css::sheet::XSpreadsheets> sheets,
                     const WorkbookFacts& facts)
    : book_(book),
      sheets_(std::move(sheets)) {
    // All of them at once: a record made later could not be told from one whose sheet was deleted.
    for (const SheetRecordPtr& record : all()) {
        for (const WorkbookFacts::Sheet& fact : facts.sheets) {
            if (fact.name != record->knownName()) continue;
            record->showsChart = fact.isChartSheet;
            record->isVeryHidden = fact.isVeryHidden;
            record->part = fact.part;
            record->fileName = fact.name;
        }
    }
}

std::vector<std::string> SheetList::names() {
    std::vector<std::string> all;
    const auto elements = sheets_->getElementNames();
    for (const rtl::OUString& name : elements) all.push_back(fromUno(name));
    return all;
}

std::vector<SheetRecordPtr> SheetList::all() {
    const auto now = names();
    if (now != namesSeen_) followNames(now);
    std::vector<SheetRecordPtr> sheets;
    sheets.reserve(now.size());
    for (const std::string& name : now) sheets.push_back(recordFor(name));
    return sheets;
}

SheetRecordPtr SheetList::find(std::string_view name) {
    const auto isCalled = [&](const std::string& known) {
        return office::sameIgnoringCase(known, name);
    };
    for (const SheetRecordPtr& record : records_) {
        if (isCalled(record->knownName()) && isCalled(record->name())) return record;
    }
    followNames(names());
    for (const SheetRecordPtr& record : records_) {
        if (isCalled(record->knownName())) return record;
    }
    if (!sheets_->hasByName(toUno(name))) return nullptr;
    return recordFor(std::string(name));
}

SheetRecordPtr SheetList::at(std::int32_t place) {
    if (place < 0) return nullptr;
    const auto sheets = all();
    const auto index = static_cast<std::size_t>(place);
    return index < sheets.size() ? sheets[index] : nullptr;
}

bool SheetList::isThere(SheetRecord& sheet) {
    if (!sheet.foundDeleted && sheet.name() != sheet.knownName()) followNames(names());
    return !sheet.foundDeleted;
}

SheetRecordPtr SheetList::add(const std::string& name, std::int32_t place) {
    const Unrecorded quiet(book_);
    sheets_->insertNewByName(toUno(name), static_cast<sal_Int16>(place));
    book_.noteOwnChange();
    return recordFor(name);
}

void SheetList::remove(const model::SheetPtr& sheet) {
    const Unrecorded quiet(book_);
    sheets_->removeByName(toUno(sheet->name()));
    book_.noteOwnChange();
    const auto record = std::dynamic_pointer_cast<SheetRecord>(sheet);
    record->foundDeleted = true;
    std::erase(records_, record);
}

void SheetList::tellKindsByLooks() {
    for (const SheetRecordPtr& sheet : all()) sheet->showsChart = looksLikeChartSheet(sheet);
}

SheetRecordPtr SheetList::recordFor(const std::string& name) {
    for (const SheetRecordPtr& record : records_) {
        if (record->knownName() == name) return record;
    }
    const uno::Reference<css::sheet::XSpreadsheet> sheet(sheets_->getByName(toUno(name)),
                                                         uno::UNO_QUERY_THROW);
    records_.push_back(std::make_shared<SheetRecord>(book_, sheet, name));
    return records_.back();
}

/// Brings the records up to date with renamed and deleted sheets. A record whose sheet was deleted
/// now reads the name of a neighbour; the neighbour's own record, which bore that name already, is
/// the right one.
void SheetList::followNames(const std::vector<std::string>& names) {
    std::vector<std::pair<SheetRecordPtr, std::string>> changed;
    std::vector<std::string> kept;
    for (const SheetRecordPtr& record : records_) {
        const std::string now = record->name();
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
            record->foundDeleted = true;
        }
    }
    std::erase_if(records_, [](const SheetRecordPtr& record) { return record->foundDeleted; });
    namesSeen_ = names;
}

}  // namespace libreoffice::excel
