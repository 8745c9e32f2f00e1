#include "office/libreoffice/excel/worksheet.h"

#include <com/sun/star/util/XProtectable.hpp>

#include <utility>

#include "office/libreoffice/excel/chart_objects.h"
#include "office/libreoffice/excel/objects.h"
#include "office/libreoffice/excel/range_lookup.h"
#include "office/libreoffice/excel/sheet_members.h"
#include "office/libreoffice/excel/used_block.h"

namespace libreoffice::excel {

namespace {

constexpr std::int32_t worksheetType = -4167;

}  // namespace

const office::MemberTable<Worksheet>& Worksheet::members() {
    using Self = Worksheet;
    static const auto table =
        office::MemberTable<Self>("Worksheet")
            .property("Name", &Self::name, &Self::setName)
            .property("Index", &Self::index)
            .property("Type", [](Self&, const CallArguments&) { return Value(worksheetType); })
            .property("Visible", &Self::visible, &Self::setVisible)
            .property("CodeName", &Self::codeName)
            .property("Parent", &Self::parent)
            .property("ProtectContents", &Self::isProtected)
            .property("ChartObjects", {"Index"}, &Self::chartObjects)
            .property("Range", {"Cell1", "Cell2"}, &Self::range)
            .property("Cells", {"RowIndex", "ColumnIndex"}, &Self::cells)
            .property("Rows", {"RowIndex"}, &Self::rows)
            .property("Columns", {"ColumnIndex"}, &Self::columns)
            .property("UsedRange", &Self::usedRange)
            .property("Names", &Self::names)
            .method("Select", {"Replace"}, &Self::activate)
            .method("Activate", {}, &Self::activate)
            .method("Delete", {}, &Self::remove);
    return table;
}

Worksheet::Worksheet(DeskPtr desk, BookPtr book, SheetPtr sheet)
    : SheetObject(std::move(desk), std::move(book), std::move(sheet)) {}

Value Worksheet::name() {
    return sheet().readName();
}

void Worksheet::setName(const Value& name) {
    renameSheet(book(), desk().connection(), sheetPtr(), name.toText());
}

Value Worksheet::index() {
    return sheet().place() + 1;
}

Value Worksheet::visible() {
    return visibilityOf(sheet());
}

void Worksheet::setVisible(const Value& visible) {
    requireSheet("Worksheet.Visible");
    setVisibility(book(), desk().connection(), sheet(), visible);
}

Value Worksheet::codeName() {
    return fromUno(property<rtl::OUString>(sheet().properties(), "CodeName"));
}

Value Worksheet::parent() {
    return workbookObject(deskPtr(), bookPtr());
}

Value Worksheet::isProtected() {
    const bool is = as<css::util::XProtectable>(sheet().sheet())->isProtected();
    return is;
}

Value Worksheet::chartObjects(const CallArguments& arguments) {
    ChartObjects all(deskPtr(), bookPtr(), sheetPtr());
    if (arguments.has(0)) return all.item(arguments);
    return chartObjectsObject(deskPtr(), bookPtr(), sheetPtr());
}

Value Worksheet::range(const CallArguments& arguments) {
    return rangeByArguments(deskPtr(), bookPtr(), sheetPtr(), arguments, false);
}

Value Worksheet::cells(const CallArguments& arguments) {
    return cellsByArguments(deskPtr(), bookPtr(), sheetPtr(), arguments);
}

Value Worksheet::rows(const CallArguments& arguments) {
    return rowsByArguments(deskPtr(), bookPtr(), sheetPtr(), arguments);
}

Value Worksheet::columns(const CallArguments& arguments) {
    return columnsByArguments(deskPtr(), bookPtr(), sheetPtr(), arguments);
}

Value Worksheet::usedRange() {
    return rangeObject(deskPtr(), bookPtr(), sheetPtr(), {usedBlock(sheetPtr())});
}

Value Worksheet::names() {
    return namesObject(deskPtr(), bookPtr(), sheetPtr());
}

Value Worksheet::activate(const CallArguments& arguments) {
    requireSheet(arguments.source());
    activateSheet(book(), sheetPtr(), arguments.source());
    return true;
}

Value Worksheet::remove(const CallArguments&) {
    deleteSheet(book(), desk().connection(), sheetPtr());
    return true;
}

}  // namespace libreoffice::excel
