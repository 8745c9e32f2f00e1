#include "office/package/workbook/object_source.h"

#include <fmt/format.h>

#include <utility>

#include "office/failure.h"
#include "office/file_address.h"
#include "office/files.h"
#include "office/package/workbook/embedded_workbook.h"
#include "office/text.h"

namespace office::package {

namespace {

/// "R4C2:R20C8", "R4C2", and "C2:C8" or "R4:R20" for whole columns or rows.
std::string addressByNumbers(const CellBlock& cells) {
    const auto [left, top, right, bottom] = cells;
    if (cells.spansAllRows()) return fmt::format("C{}:C{}", left + 1, right + 1);
    if (cells.spansAllColumns()) return fmt::format("R{}:R{}", top + 1, bottom + 1);
    const std::string first = fmt::format("R{}C{}", top + 1, left + 1);
    return cells.cells() == 1 ? first : fmt::format("{}:R{}C{}", first, bottom + 1, right + 1);
}

/// "Sales%202026.xlsx!Sheet%201!R5C2:R8C7", as the program that follows the link reads it: sheets
/// have no apostrophes there, and cells go by their numbers.
std::string addressOfCells(const FileRules& rules, const CopySource& source) {
    const std::string address = fmt::format(
        "{}!{}!{}", linkAddress(pathOf(source.file), rules.linkBase), linkWord(source.sheet),
        addressByNumbers(blockOf(source.address).value_or(CellBlock())));
    // The colon between two cells must not stand in the first name of a relative address.
    const bool isPlainName = address.find('/') == std::string::npos;
    return isPlainName ? "./" + address : address;
}

}  // namespace

std::string objectObstacle(PasteAs as, const CopySource& source, WorkbookFiles& workbooks,
                           bool sheetAlone) {
    if (source.kind == CopySource::Kind::Picture) return "it is a picture";
    if (source.file.empty()) return "its workbook has not been saved yet";
    try {
        const WorkbookFilePtr workbook = workbooks.at(source.file);
        const WorkbookSheet* const sheet = workbook->sheet(source.sheet);
        if (sheet == nullptr) return "the workbook's file does not hold its sheet";
        if (as == PasteAs::Embedded && sheetAlone) prepareSheetAlone(*workbook, *sheet);
        return {};
    } catch (const PackageError& error) {
        return workbookObstacle(error, source.file);
    }
}

void requireNoObstacle(PasteAs as, const CopySource& source, const FileRules& rules,
                       const char* member) {
    const std::string obstacle =
        objectObstacle(as, source, *rules.workbooks, rules.embedsSheetAlone);
    if (!obstacle.empty())
        refuse(member, fmt::format("It can't be {}: {}",
                                   as == PasteAs::Linked ? "linked" : "embedded", obstacle));
}

ObjectSource embedWorkbook(Package& package, const std::string& holder, const std::string& stem,
                           const CopySource& source, const FileRules& rules) {
    const WorkbookFilePtr workbook = rules.workbooks->at(source.file);
    EmbeddedWorkbook made = embeddedWorkbook(*workbook, source, rules.embedsSheetAlone);
    // A part for each object, though some hold the same: they are edited each by itself.
    const std::string part = package.freeName(stem, made.format.ending);
    package.add(part, made.format.type, std::move(made.bytes), Storage::Stored);
    return {package.relationshipsOf(holder).add("package", part), made.format.programId};
}

ObjectSource linkCells(Package& package, const std::string& holder, const CopySource& source,
                       const FileRules& rules) {
    const bool hasMacros = rules.workbooks->at(source.file)->hasMacros();
    Relationships& relationships = package.relationshipsOf(holder);
    return {relationships.addExternal("oleObject", addressOfCells(rules, source)),
            workbookFormat(hasMacros).programId};
}

}  // namespace office::package
