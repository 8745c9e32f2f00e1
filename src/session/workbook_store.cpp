#include "session/workbook_store.h"

namespace session {

namespace {

std::int32_t asIndex(std::size_t number) {
    return static_cast<std::int32_t>(number);
}

/// The block that is written covers the placement cells of row 1; they take part with what they
/// hold, so that saving the list doesn't forget where the user wants shapes to stand.
void keepPlacement(const office::Object& sheet, office::Table& rows) {
    const office::Table held = sheet.get("Range", "O1:R1").get("Value").toTable();
    for (std::size_t column = store::topColumn; column <= store::leftColumn; ++column) {
        rows.at(1, column) = held.at(1, column - store::topColumn + 1);
    }
}

}  // namespace

bool SheetExists(OfficeSession& session, std::string_view name) {
    return office::orElse(
        [&] {
            const office::Value sheet = session.ActiveBook.get("Worksheets").get("Item", name);
            return !sheet.get("Name").isBlank();
        },
        false);
}

void EnsureStoreSheet(OfficeSession& session) {
    if (session.ActiveBook.isNothing() || SheetExists(session, store::sheetName)) return;

    office::ContinueOnFailure scope;
    const office::Object& book = session.ActiveBook;
    office::Object sheet;
    scope.attempt([&] { sheet = book.get("Worksheets").call("Add").toObject(); });
    scope.attempt([&] { sheet.put("Name", store::sheetName); });
    scope.attempt([&] {
        book.get("Names").call("Add", office::arg("Name", store::itemsName),
                               office::arg("RefersToR1C1", "=kukukukuZichron!C1:C8"));
    });
    // Text keeps a slide number or a name such as "3" as it was typed; the running order and the
    // check mark are numbers.
    scope.attempt([&] { sheet.get("Range", store::itemsName).put("NumberFormat", "@"); });
    scope.attempt([&] { sheet.get("Columns", "D:E").put("NumberFormat", "0"); });
    scope.attempt([&] {
        book.get("Names").call("Add", office::arg("Name", store::reservedName),
                               office::arg("RefersToR1C1", "=kukukukuZichron!R23C15:R30C22"));
    });
    scope.attempt([&] { sheet.put("Visible", store::veryHidden); });
}

void writeStoreRows(OfficeSession& session, office::ContinueOnFailure& scope, office::Table rows) {
    office::Object sheet;
    scope.attempt([&] {
        sheet = session.ActiveBook.get("Worksheets").get("Item", store::sheetName).toObject();
    });
    scope.attempt([&] { sheet.get("Range", store::itemsName).call("ClearContents"); });
    // The marker lengthens the region of the items by one row: rows that a later run adds begin
    // below it.
    scope.attempt([&] {
        sheet.get("Cells", asIndex(rows.rows() + 1), asIndex(store::laterRowColumn))
            .put("Value", asIndex(rows.rows() + 1));
    });
    scope.attempt([&] { keepPlacement(sheet, rows); });
    scope.attempt([&] {
        const office::Value first = sheet.get("Cells", 1, 1);
        const office::Value last =
            sheet.get("Cells", asIndex(rows.rows()), asIndex(store::columnCount));
        sheet.get("Range", first, last).put("Value", rows);
    });
}

}  // namespace session
