#include "office/libreoffice/excel/names.h"

#include <com/sun/star/table/CellAddress.hpp>
#include <fmt/format.h>

#include <utility>

#include "office/libreoffice/excel/formulas.h"
#include "office/libreoffice/excel/name.h"
#include "office/libreoffice/excel/objects.h"

namespace libreoffice::excel {

namespace {

/// The arguments of `Add` in the order of the object model.
enum AddArgument : std::size_t { NameText = 0, RefersTo = 1, Visible = 2, RefersToR1C1 = 9 };

}  // namespace

const office::MemberTable<Names>& Names::members() {
    static const auto table = office::MemberTable<Names>("Names")
                                  .property("Count", &Names::count)
                                  .property("Item", {"Index"}, &Names::item)
                                  .method("Add",
                                          {"Name", "RefersTo", "Visible", "MacroType",
                                           "ShortcutKey", "Category", "NameLocal", "RefersToLocal",
                                           "CategoryLocal", "RefersToR1C1", "RefersToR1C1Local"},
                                          &Names::add);
    return table;
}

Names::Names(DeskPtr desk, BookPtr book, SheetPtr ofSheet)
    : BookObject(std::move(desk), std::move(book)),
      ofSheet_(std::move(ofSheet)) {}

void Names::read() {
    entries_ = listNames(book(), desk().connection(), ofSheet_);
}

Value Names::count() {
    read();
    return static_cast<std::int32_t>(entries_->size());
}

Value Names::item(const CallArguments& arguments) {
    const ItemIndex index(arguments.at(0), arguments.source());
    if (index.isName()) {
        const auto found = ofSheet_ ? findNameIn(book(), ofSheet_, index.name())
                                    : findName(book(), desk().connection(), index.name());
        if (!found) index.fail();
        return makeObject<Name>(deskPtr(), bookPtr(), *found);
    }
    if (!entries_) read();
    return makeObject<Name>(deskPtr(), bookPtr(), (*entries_)[index.placeBelow(entries_->size())]);
}

NameEntry Names::entryToAdd(const std::string& name) {
    const auto split = splitSheet(name);
    if (!split) return {ofSheet_, name};
    const SheetPtr sheet = sheets().find(split->sheet);
    if (sheet) return {sheet, split->text};
    throw Failure(FailureNumber::ApplicationDefined, "Names.Add",
                  fmt::format("There is no sheet \"{}\"", split->sheet));
}

Value Names::add(const CallArguments& arguments) {
    const NameEntry entry = entryToAdd(arguments.at(NameText).toText());
    const bool isR1C1 = arguments.has(RefersToR1C1);
    const std::string formula = arguments.at(isR1C1 ? RefersToR1C1 : RefersTo).toText();
    const std::string contents =
        contentsOfFormula(book(), formula, isR1C1 ? Notation::R1C1 : Notation::A1);
    const sal_Int32 type = arguments.at(Visible, true).toBool() ? 0 : hiddenNameFlag;

    const auto& container = entry.scope ? entry.scope->names() : book().names();
    const rtl::OUString name = toUno(entry.storedName);
    if (container->hasByName(name)) {
        const auto known = fetchName(book(), entry);
        known->setContent(toUno(contents));
        known->setType(type);
    } else {
        container->addNewByName(name, toUno(contents), css::table::CellAddress(), type);
    }
    entries_.reset();
    return makeObject<Name>(deskPtr(), bookPtr(), entry);
}

}  // namespace libreoffice::excel
