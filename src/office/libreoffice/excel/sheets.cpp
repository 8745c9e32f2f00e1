#include "office/libreoffice/excel/sheets.h"

#include <utility>

#include "office/libreoffice/excel/chart_sheet.h"
#include "office/libreoffice/excel/objects.h"
#include "office/libreoffice/excel/sheet_members.h"
#include "office/libreoffice/excel/worksheet.h"

namespace libreoffice::excel {

namespace {

constexpr std::int32_t worksheetType = -4167;

enum AddArgument : std::size_t { Before, After, HowMany, Type };

}  // namespace

const office::MemberTable<Sheets>& Sheets::members() {
    static const auto table =
        office::MemberTable<Sheets>("Sheets")
            .property("Count", &Sheets::count)
            .property("Item", {"Index"}, &Sheets::item)
            .method("Add", {"Before", "After", "Count", "Type"}, &Sheets::add);
    return table;
}

Sheets::Sheets(DeskPtr desk, BookPtr book, SheetList::Kind kind)
    : BookObject(std::move(desk), std::move(book)),
      kind_(kind) {}

/// All three collections are of one class in Excel, too.
std::string Sheets::typeName() const {
    return "Sheets";
}

Value Sheets::count() {
    if (kind_ == SheetList::Kind::Any) return sheets().count();
    return static_cast<std::int32_t>(sheets().all(kind_).size());
}

Value Sheets::item(const CallArguments& arguments) {
    const ItemIndex index(arguments.at(0), arguments.source());
    SheetPtr found;
    if (index.isName()) {
        found = sheets().find(index.name());
        const bool fits = kind_ == SheetList::Kind::Any ||
                          (found && found->isChartSheet == (kind_ == SheetList::Kind::ChartSheet));
        if (!found || !fits) index.fail();
    } else {
        const auto all = sheets().all(kind_);
        found = all[index.placeBelow(all.size())];
    }
    return sheetObject(deskPtr(), bookPtr(), found);
}

SheetPtr Sheets::sheetBehind(const Value& value, const std::string& source) const {
    SheetPtr sheet;
    if (value.isObject()) {
        const auto target = value.toObject().target();
        if (const auto worksheet = std::dynamic_pointer_cast<Worksheet>(target))
            sheet = worksheet->sheetPtr();
        if (const auto chart = std::dynamic_pointer_cast<ChartSheet>(target))
            sheet = chart->sheetPtr();
    }
    if (!sheet)
        throw Failure(FailureNumber::TypeMismatch, source, "Type mismatch: a sheet is needed");
    sheets().requireThere(sheet, source);
    return sheet;
}

std::int32_t Sheets::placeToAdd(const CallArguments& arguments) const {
    if (arguments.has(Before))
        return sheetBehind(arguments.at(Before), arguments.source())->place();
    if (arguments.has(After))
        return sheetBehind(arguments.at(After), arguments.source())->place() + 1;
    const SheetPtr active = book().activeSheet(desk().connection());
    return active ? active->place() : 0;
}

Value Sheets::add(const CallArguments& arguments) {
    const bool otherType = arguments.at(Type, worksheetType).toLong() != worksheetType;
    if (kind_ == SheetList::Kind::ChartSheet || otherType) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "Only worksheets can be added");
    }
    requireOpenStructure(book(), desk().connection(), arguments.source());
    const std::int32_t place = placeToAdd(arguments);
    const std::int32_t howMany = arguments.at(HowMany, 1).toLong();
    SheetPtr added;
    for (std::int32_t i = 0; i < howMany; ++i) added = sheets().add(place + i);
    return sheetObject(deskPtr(), bookPtr(), added);
}

}  // namespace libreoffice::excel
