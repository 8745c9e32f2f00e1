#include "office/libreoffice/excel/sheet_members.h"

#include <algorithm>

#include "office/text.h"

namespace libreoffice::excel {

namespace {

/// In UTF-16 units, as Excel counts.
constexpr sal_Int32 longestName = 31;

[[noreturn]] void fail(const std::string& source, const std::string& why) {
    throw Failure(FailureNumber::ApplicationDefined, source, why);
}

bool isSheetName(const std::string& name) {
    return !name.empty() && toUno(name).getLength() <= longestName && !name.starts_with('\'') &&
           !name.ends_with('\'') && name.find_first_of(":\\/?*[]") == std::string::npos;
}

}  // namespace

void requireOpenStructure(CalcDocument& book, const Connection& connection,
                          const std::string& source) {
    if (book.structureIsLocked(connection))
        fail(source, "The structure of the workbook is protected");
}

std::int32_t visibilityOf(SheetRecord& sheet) {
    if (sheet.isShown()) {
        sheet.isVeryHidden = false;  // somebody has shown it by the menu
        return visibility::shown;
    }
    return sheet.isVeryHidden ? visibility::veryHidden : visibility::hidden;
}

void setVisibility(CalcDocument& book, const Connection& connection, SheetRecord& sheet,
                   const Value& wanted) {
    requireOpenStructure(book, connection, "Sheet.Visible");
    const std::int32_t state = wanted.toLong();
    const bool shown = state != visibility::hidden && state != visibility::veryHidden;
    sheet.show(shown);
    // LibreOffice refuses without a word to hide the last visible sheet.
    if (sheet.isShown() != shown) fail("Sheet.Visible", "A workbook needs a visible sheet");
    sheet.isVeryHidden = state == visibility::veryHidden;
}

void renameSheet(CalcDocument& book, const Connection& connection, const SheetPtr& sheet,
                 const std::string& name) {
    constexpr const char* source = "Sheet.Name";
    requireOpenStructure(book, connection, source);
    book.sheets(connection).requireThere(sheet, source);
    if (isSheetName(name)) sheet->rename(name);
    // LibreOffice refuses a name without a word, too: one that is taken, for instance.
    const std::string now = sheet->readName();
    if (now != name) fail(source, fmt::format("A sheet can't have the name \"{}\"", name));
    sheet->noteName(name);
}

void activateSheet(CalcDocument& book, const SheetPtr& sheet, const std::string& source) {
    // LibreOffice would activate the next visible one.
    if (!sheet->isShown())
        fail(source, fmt::format("The sheet \"{}\" is hidden", sheet->knownName()));
    const auto view = book.view();
    if (!view.is()) fail(source, "The workbook has no window");
    view->setActiveSheet(sheet->sheet());
}

void deleteSheet(CalcDocument& book, const Connection& connection, const SheetPtr& sheet) {
    constexpr const char* source = "Sheet.Delete";
    requireOpenStructure(book, connection, source);
    book.sheets(connection).requireThere(sheet, source);
    const auto sheets = book.sheets(connection).all();
    const bool othersShown = std::any_of(sheets.begin(), sheets.end(), [&](const SheetPtr& other) {
        return other != sheet && other->isShown();
    });
    if (!othersShown) fail(source, "A workbook needs a visible sheet");
    book.sheets(connection).remove(sheet);
}

}  // namespace libreoffice::excel
