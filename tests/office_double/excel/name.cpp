#include "office_double/excel/name.h"

#include <algorithm>

#include "office_double/excel/application.h"
#include "office_double/excel/range.h"
#include "office_double/excel/workbook.h"
#include "office_double/excel/worksheet.h"

namespace office_double {

const office::MemberTable<Name>& Name::members() {
    using Self = Name;
    static const auto table =
        office::MemberTable<Self>("Name")
            .property("Name", reading(&Self::name))
            .property("RefersTo", reading(&Self::refersTo_), writing(&Self::refersTo_))
            .property("RefersToR1C1", &Self::readFormulaR1C1)
            .property("RefersToRange", &Self::readRange)
            .property("Visible", reading(&Self::visible_), writing(&Self::visible_))
            .property("Parent", &Self::readParent)
            .method("Delete", {}, &Self::deleteName);
    return table;
}

Name::Name(Owner book, std::string name, std::string refersTo, Worksheet* scope)
    : Doubled(book),
      name_(std::move(name)),
      refersTo_(std::move(refersTo)),
      ofSheet_(scope != nullptr) {
    if (ofSheet_) scope_ = scope->weak_from_this();
}

std::string Name::name() const {
    const auto scope = scope_.lock();
    return scope ? quotedIfNeeded(scope->name()) + "!" + name_ : name_;
}

bool Name::belongsTo(const Worksheet* sheet) const {
    if (sheet == nullptr) return !ofSheet_;
    return scope_.lock().get() == sheet;
}

Name& Name::hide() {
    visible_ = false;
    return *this;
}

std::shared_ptr<Range> Name::range() const {
    std::shared_ptr<Worksheet> sheet;
    std::vector<Area> areas;
    for (const Reference& reference : referencesOf(refersTo_)) {
        Workbook* where =
            reference.book.empty() ? &book() : book().application().findOpen(reference.book);
        if (where == nullptr) return nullptr;
        sheet = std::dynamic_pointer_cast<Worksheet>(where->findTab(reference.sheet));
        if (!sheet) return nullptr;
        areas.push_back(reference.area);
    }
    if (!sheet) return nullptr;
    return std::make_shared<Range>(*sheet, std::move(areas));
}

void Name::sheetRenamed(const std::string& from, const std::string& to) {
    auto references = referencesOf(refersTo_);
    for (Reference& reference : references) {
        if (reference.book.empty() && reference.sheet == from) reference.sheet = to;
    }
    if (!references.empty()) refersTo_ = formulaOf(references);
}

void Name::sheetDeleted(const std::string& sheet) {
    const auto references = referencesOf(refersTo_);
    if (std::any_of(references.begin(), references.end(), [&](const Reference& reference) {
            return reference.book.empty() && reference.sheet == sheet;
        })) {
        refersTo_ = "=#REF!#REF!";
    }
}

Workbook& Name::book() const {
    return parent<Workbook>();
}

Value Name::readRange() {
    auto found = range();
    if (found) return Object(found);
    throw Failure(FailureNumber::ApplicationDefined, "Name.RefersToRange",
                  "The name " + name() + " refers to no range");
}

Value Name::readFormulaR1C1() {
    const auto references = referencesOf(refersTo_);
    return references.empty() ? refersTo_ : formulaOf(references, Notation::R1C1);
}

Value Name::readParent() {
    const auto scope = scope_.lock();
    return scope ? scope->handle() : book().handle();
}

Value Name::deleteName(const CallArguments&) {
    book().removeName(*this);
    return {};
}

}  // namespace office_double
