#include "office/libreoffice/excel/name.h"

#include <fmt/format.h>

#include <utility>

#include "office/libreoffice/excel/formulas.h"
#include "office/libreoffice/excel/objects.h"

namespace libreoffice::excel {

const office::MemberTable<Name>& Name::members() {
    static const auto table = office::MemberTable<Name>("Name")
                                  .property("Name", &Name::name)
                                  .property("RefersTo", &Name::refersTo)
                                  .property("RefersToR1C1", &Name::refersToR1C1)
                                  .property("RefersToRange", &Name::refersToRange)
                                  .property("Visible", &Name::isVisible, &Name::setVisible)
                                  .property("Parent", &Name::parent)
                                  .method("Delete", {}, &Name::remove);
    return table;
}

Name::Name(DeskPtr desk, BookPtr book, NameEntry entry)
    : BookObject(std::move(desk), std::move(book)),
      entry_(std::move(entry)) {}

Value Name::name() {
    return entry_.fullName();
}

Value Name::refersTo() {
    return formulaOfContents(book(), fromUno(fetchName(book(), entry_)->getContent()),
                             Notation::A1);
}

Value Name::refersToR1C1() {
    return formulaOfContents(book(), fromUno(fetchName(book(), entry_)->getContent()),
                             Notation::R1C1);
}

Value Name::refersToRange() {
    if (auto cells = cellsOfName(book(), desk().connection(), entry_)) {
        return rangeObject(deskPtr(), bookPtr(), cells->sheet, std::move(cells->blocks));
    }
    throw Failure(FailureNumber::ApplicationDefined, "Name.RefersToRange",
                  fmt::format("The name \"{}\" stands for no range", entry_.fullName()));
}

Value Name::isVisible() {
    return (fetchName(book(), entry_)->getType() & hiddenNameFlag) == 0;
}

void Name::setVisible(const Value& visible) {
    const auto name = fetchName(book(), entry_);
    const sal_Int32 others = name->getType() & ~hiddenNameFlag;
    name->setType(visible.toBool() ? others : others | hiddenNameFlag);
}

Value Name::parent() {
    if (entry_.scope) return sheetObject(deskPtr(), bookPtr(), entry_.scope);
    return workbookObject(deskPtr(), bookPtr());
}

Value Name::remove(const CallArguments&) {
    const auto& names = entry_.scope ? entry_.scope->names() : book().names();
    names->removeByName(toUno(entry_.storedName));
    return {};
}

}  // namespace libreoffice::excel
