#include "office/package/workbook/embedded_workbook.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

#include "office/package/office_file.h"
#include "office/package/part_name.h"
#include "office/package/workbook/chart_sheet_place.h"
#include "office/package/workbook/sheet_alone.h"
#include "office/package/workbook/sheet_head.h"
#include "office/package/xml.h"
#include "office/text.h"

namespace office::package {

namespace {

/// The schema's order in a workbook, as far as something is put in.
constexpr std::string_view workbookOrder =
    "fileVersion fileSharing workbookPr workbookProtection bookViews sheets functionGroups "
    "externalReferences definedNames calcPr oleSize customWorkbookViews pivotCaches smartTagPr "
    "smartTagTypes webPublishing fileRecoveryPr webPublishObjects extLst";

/// For sheets of which the cells are bytes.
Limits carried() {
    Limits limits;
    limits.partBytes = limits.bytesRead;
    return limits;
}

/// What a sheet says of its windows stands ahead of its cells.
bool mayBeSelected(const Package& workbook, const std::string& sheet) {
    constexpr std::size_t headBytes = 16 << 10;
    return workbook.head(sheet, headBytes).find("tabSelected") != std::string::npos;
}

/// Two selected sheets would be a group, in which what is done to one is done to the other.
void selectSheet(Package& workbook, const std::string& sheet, bool isSelected) {
    const SheetHead head(workbook.read(sheet), sheet);
    const auto views = childNamed(head.root(), ns::spreadsheet, "sheetViews");
    bool isChanged = false;
    for (pugi::xml_node view : childrenNamed(views, ns::spreadsheet, "sheetView")) {
        if (view.attribute("tabSelected").as_bool() == isSelected) continue;
        isChanged = true;
        if (isSelected)
            attributeFor(view, "tabSelected").set_value("1");
        else
            view.remove_attribute("tabSelected");
    }
    if (isChanged) workbook.replace(sheet, head.bytes());
}

/// For programs that would show nothing of it once the object is opened.
void placeOwnChart(Package& workbook, const WorkbookSheet& sheet) {
    const std::string part = workbook.partOfType(sheet.part, "drawing");
    if (part.empty()) return;
    const Xml xml(workbook.read(part), part);
    if (placeOnPage(xml.root())) workbook.replace(part, xml.bytes());
}

/// From the first cell that a sheet's markup holds to the last.
CellBlock cellsIn(std::string_view sheet) {
    constexpr std::string_view mark = "c r=\"";
    std::optional<CellBlock> all;
    for (auto at = sheet.find(mark); at != std::string_view::npos; at = sheet.find(mark, at)) {
        at += mark.size();
        const auto cell = blockOf(sheet.substr(at, sheet.find('"', at) - at));
        if (!cell) continue;
        if (!all) all = cell;
        all = {std::min(all->firstColumn, cell->firstColumn),
               std::min(all->firstRow, cell->firstRow), std::max(all->lastColumn, cell->lastColumn),
               std::max(all->lastRow, cell->lastRow)};
    }
    return all.value_or(CellBlock());
}

/// The cells that the sheet says are in use. Some programs say "A1" of every sheet, or nothing.
CellBlock usedCells(const Package& workbook, const std::string& sheet) {
    const std::string bytes = workbook.read(sheet);
    const SheetHead head(bytes, sheet);
    const auto dimension = childNamed(head.root(), ns::spreadsheet, "dimension");
    const auto used = blockOf(dimension.attribute("ref").value());
    return used && used->cells() > 1 ? *used : cellsIn(bytes);
}

/// Nothing for a sheet that is a chart. Of whole columns or rows, those that are in use.
std::optional<CellBlock> shownCells(WorkbookFile& workbook, const Package& copy,
                                    const WorkbookSheet& sheet, const CopySource& source) {
    if (sheet.kind != WorkbookSheet::Kind::Worksheet) return {};
    std::optional<CellBlock> cells = blockOf(source.address);
    if (source.kind == CopySource::Kind::Chart) {
        const WorkbookChart* const chart = workbook.chart(sheet, source.chart);
        cells = chart != nullptr ? chart->cells : std::nullopt;
    }
    if (cells && !cells->spansAllRows() && !cells->spansAllColumns()) return cells;
    const CellBlock used = usedCells(copy, sheet.part);
    return cells ? intersection(*cells, used).value_or(used) : used;
}

/// "B4:H20"; "B4" for a single cell.
std::string plainAddress(const CellBlock& cells) {
    const std::string first = addressOf(CellBlock::cell(cells.firstRow, cells.firstColumn));
    const std::string last = addressOf(CellBlock::cell(cells.lastRow, cells.lastColumn));
    return replaceAll(first == last ? first : first + ":" + last, "$", "");
}

void show(Package& workbook, const std::string& main, const WorkbookSheet& sheet,
          const std::optional<CellBlock>& cells) {
    const Xml xml(workbook.read(main), main);
    pugi::xml_node root = xml.root();
    int place = 0;
    const auto entries =
        childrenNamed(childNamed(root, ns::spreadsheet, "sheets"), ns::spreadsheet, "sheet");
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].attribute("name").value() != sheet.name) continue;
        place = static_cast<int>(i);
        // A hidden sheet can't be the active one.
        pugi::xml_node entry = entries[i];
        entry.remove_attribute("state");
    }
    auto views = childInOrder(root, ns::spreadsheet, "bookViews", workbookOrder);
    static_cast<void>(childInOrder(views, ns::spreadsheet, "workbookView", "workbookView"));
    for (pugi::xml_node view : childrenNamed(views, ns::spreadsheet, "workbookView")) {
        attributeFor(view, "activeTab").set_value(place);
        view.remove_attribute("firstSheet");
        view.remove_attribute("visibility");
    }
    root.remove_child(childNamed(root, ns::spreadsheet, "oleSize"));
    if (cells) {
        auto size = childInOrder(root, ns::spreadsheet, "oleSize", workbookOrder);
        attributeFor(size, "ref").set_value(plainAddress(*cells).c_str());
    }
    workbook.replace(main, xml.bytes());
}

/// They hold for the file as it was.
void dropSignatures(Package& workbook) {
    Relationships& relationships = workbook.relationshipsOf("/");
    const Relationship* const found = relationships.ofType(signatureOrigin);
    if (found == nullptr || found->isExternal) return;
    const std::string origin = relationships.partOf(*found);
    relationships.remove(found->id);
    workbook.removeWithTargets(origin);
}

/// A template would be opened as a new file of its own, and the macros of a sheet alone stay
/// behind.
const WorkbookFormat& formatOfCopy(const WorkbookFile& workbook, bool sheetAlone) {
    return workbookFormat(workbook.hasMacros() && !sheetAlone);
}

/// A copy in which one sheet is selected, or left alone.
std::string copyOnSheet(const WorkbookFile& workbook, const WorkbookSheet& sheet, bool sheetAlone) {
    const std::string file = workbook.bytes();
    Package copy = Package::fromBytes(file, sheetAlone ? Limits() : carried());
    if (sheetAlone) keepSheetAlone(copy, workbook.mainPart(), sheet);
    dropSignatures(copy);
    for (const WorkbookSheet& one : workbook.sheets()) {
        if (!copy.has(one.part)) continue;
        const bool isShown = &one == &sheet;
        if (isShown || mayBeSelected(copy, one.part)) selectSheet(copy, one.part, isShown);
    }
    if (sheet.kind == WorkbookSheet::Kind::ChartSheet) placeOwnChart(copy, sheet);
    copy.setContentType(workbook.mainPart(), formatOfCopy(workbook, sheetAlone).mainType);
    return copy.bytes();
}

const std::string& rememberedCopy(WorkbookFile& workbook, const WorkbookSheet& sheet,
                                  bool sheetAlone) {
    const auto make = [&] { return copyOnSheet(workbook, sheet, sheetAlone); };
    // Whole copies are as large as the workbook, one for each sheet.
    return sheetAlone ? workbook.remembered(sheet.part, make)
                      : workbook.rememberedLast(sheet.part, make);
}

}  // namespace

void prepareSheetAlone(WorkbookFile& workbook, const WorkbookSheet& sheet) {
    static_cast<void>(rememberedCopy(workbook, sheet, true));
}

EmbeddedWorkbook embeddedWorkbook(WorkbookFile& workbook, const CopySource& source,
                                  bool sheetAlone) {
    const WorkbookSheet& sheet = *workbook.sheet(source.sheet);
    Package copy = Package::fromBytes(rememberedCopy(workbook, sheet, sheetAlone), carried());
    show(copy, workbook.mainPart(), sheet, shownCells(workbook, copy, sheet, source));
    return {copy.bytes(), formatOfCopy(workbook, sheetAlone)};
}

}  // namespace office::package
