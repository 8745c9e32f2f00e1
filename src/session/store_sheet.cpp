#include "session/store_sheet.h"

#include "office/failure_patterns.h"
#include "session/read_only.h"

namespace session {

namespace {

constexpr int veryHidden = 2;

}  // namespace

bool CanKeepStore(OfficeSession& session) {
    if (isReadOnly(session.ActiveBook)) {
        ShowWarningNotice(session.notices,
                          "The workbook is read-only, and Murvane keeps its list in the workbook.\r"
                          "Open it for editing or save it under another name,\r"
                          "then reopen Murvane.");
        return false;
    }
    // A workbook that has the sheet already takes no new one, so its protection is no hindrance.
    if (!SheetExists(session, store::sheetName) &&
        session.ActiveBook.get("ProtectStructure").toBool()) {
        ShowWarningNotice(session.notices,
                          "              The workbook looks protected\r\r"
                          "Please remove the protection and reopen Murvane\r"
                          "After that you may reprotect the workbook.\r"
                          "The message will not longer appear");
        return false;
    }
    return true;
}

bool SheetExists(OfficeSession& session, std::string_view name) {
    return office::orElse(
        [&] {
            const office::Value sheet = session.ActiveBook.get("Worksheets").get("Item", name);
            return !sheet.get("Name").isBlank();
        },
        false);
}

office::Object AddSheetAtEnd(const office::Object& book) {
    const office::Object sheets = book.get("Sheets").toObject();
    const office::Value last = sheets.get("Item", sheets.get("Count"));
    const std::string onTop = book.get("ActiveSheet").get("Name").toText();
    // Without a count there would be as many as are selected.
    office::Object sheet = book.get("Worksheets")
                               .call("Add", office::arg("After", last), office::arg("Count", 1))
                               .toObject();
    // An Excel brings the new one up. What is on top is not brought up again: that takes time.
    office::ContinueOnFailure().attempt([&] {
        if (book.get("ActiveSheet").get("Name").toText() != onTop)
            sheets.get("Item", onTop).call("Activate");
    });
    return sheet;
}

void EnsureStoreSheet(OfficeSession& session) {
    if (session.ActiveBook.isNothing() || SheetExists(session, store::sheetName)) return;

    office::ContinueOnFailure scope;
    const office::Object& book = session.ActiveBook;
    office::Object sheet;
    // Behind the others: one in front of them would move what all charts refer to, and a suite then
    // draws each of them anew.
    const bool isThere = scope.attempt([&] { sheet = AddSheetAtEnd(book); });
    // Names that lead to no sheet would be all that is left of it.
    if (!isThere) return;
    scope.attempt([&] { sheet.put("Name", store::sheetName); });
    scope.attempt([&] {
        book.get("Names").call("Add", office::arg("Name", store::itemsName),
                               office::arg("RefersToR1C1", "=kukukukuZichron!C1:C8"));
    });
    // Text keeps a slide number, a name or a caption such as "007" as it was typed; the running
    // order and the check mark are numbers.
    scope.attempt(
        [&] { sheet.get("Range", store::itemsName).put("NumberFormat", store::textFormat); });
    scope.attempt([&] { sheet.get("Columns", "D:E").put("NumberFormat", "0"); });
    scope.attempt([&] { sheet.get("Columns", "T:T").put("NumberFormat", store::textFormat); });
    scope.attempt([&] {
        book.get("Names").call("Add", office::arg("Name", store::reservedName),
                               office::arg("RefersToR1C1", "=kukukukuZichron!R23C15:R30C22"));
    });
    scope.attempt([&] { sheet.put("Visible", veryHidden); });
}

}  // namespace session
