#include "office_double/excel/workbook.h"

#include <fmt/format.h>

#include <algorithm>

#include "office_double/excel/address.h"
#include "office_double/excel/application.h"
#include "office_double/excel/chart.h"
#include "office_double/excel/name.h"
#include "office_double/excel/worksheet.h"
#include "support/png_file.h"

namespace office_double {

namespace {

template <class Wanted>
Items tabsOf(const std::vector<std::shared_ptr<Sheet>>& tabs) {
    Items wanted;
    for (const auto& tab : tabs) {
        if (dynamic_cast<Wanted*>(tab.get()) != nullptr) wanted.push_back(tab);
    }
    return wanted;
}

[[noreturn]] void refuse(const std::string& source, const std::string& why) {
    throw Failure(FailureNumber::ApplicationDefined, source, why);
}

}  // namespace

const office::MemberTable<Workbook>& Workbook::members() {
    using Self = Workbook;
    static const auto table =
        office::MemberTable<Self>("Workbook")
            .property("Name", reading(&Self::name_))
            .property("FullName", reading(&Self::fullName))
            .property("Path", reading(&Self::folder_))
            .property("ReadOnly", reading(&Self::readOnly_))
            .property("ProtectStructure", reading(&Self::structureProtected_))
            .property("Saved", reading(&Self::saved_), writing(&Self::saved_))
            .property("ActiveSheet", reading([](Self& self) { return valueOf(self.activeTab()); }))
            .property("Sheets", &Self::readSheets)
            .property("Worksheets", &Self::readWorksheets)
            .property("Charts", &Self::readCharts)
            .property("Names", reading([](Self& self) { return self.namesOf(nullptr); }))
            .method("Activate", {}, &Self::activate)
            .method("Save", {}, &Self::save)
            .method("SaveCopyAs", {"Filename"}, &Self::saveCopyAs)
            .method("Close", {"SaveChanges"}, &Self::close);
    return table;
}

Worksheet& Workbook::sheet(const std::string& name) {
    if (!findTab(name)) insertTab(std::make_shared<Worksheet>(*this, name), tabs_.size());
    return dynamic_cast<Worksheet&>(*findTab(name));
}

Chart& Workbook::chartSheet(const std::string& name) {
    if (!findTab(name)) insertTab(std::make_shared<Chart>(*this, name), tabs_.size());
    return dynamic_cast<Chart&>(*findTab(name));
}

Workbook& Workbook::define(const std::string& name, const std::string& formula) {
    addName(name, formula, nullptr);
    return *this;
}

Workbook& Workbook::defineHidden(const std::string& name, const std::string& formula) {
    addName(name, formula, nullptr).hide();
    return *this;
}

Workbook& Workbook::protectStructure(bool on) {
    structureProtected_ = on;
    return *this;
}

Workbook& Workbook::readOnly() {
    readOnly_ = true;
    return *this;
}

std::string Workbook::fullName() const {
    return folder_.empty() ? name_ : folder_ + "/" + name_;
}

ExcelApplication& Workbook::application() const {
    return parent<ExcelApplication>();
}

std::shared_ptr<Sheet> Workbook::findTab(const std::string& name) const {
    for (const auto& tab : tabs_) {
        if (office::sameIgnoringCase(tab->name(), name)) return tab;
    }
    return nullptr;
}

std::shared_ptr<Sheet> Workbook::activeTab() const {
    auto active = active_.lock();
    return active || tabs_.empty() ? active : tabs_.front();
}

std::size_t Workbook::visibleTabs() const {
    return static_cast<std::size_t>(std::count_if(tabs_.begin(), tabs_.end(), [](const auto& tab) {
        return tab->visibility() == Sheet::shown;
    }));
}

void Workbook::activateSheet(const std::string& name) {
    active_ = findTab(name);
    application().activate(*this);
    application().select({});
}

void Workbook::removeTab(Sheet& sheet) {
    const std::string name = sheet.name();
    sheet.remove();
    std::erase_if(tabs_, [&](const auto& tab) { return tab.get() == &sheet; });
    for (const auto& defined : names_) defined->sheetDeleted(name);
    touch();
}

void Workbook::sheetRenamed(const std::string& from, const std::string& to) {
    for (const auto& defined : names_) defined->sheetRenamed(from, to);
    touch();
}

void Workbook::requireOpenStructure(const std::string& source) const {
    if (structureProtected_) refuse(source, "The structure of the workbook is protected");
}

Name& Workbook::addName(const std::string& name, const std::string& formula, Worksheet* scope) {
    names_.push_back(std::make_shared<Name>(*this, name, formula, scope));
    touch();
    return *names_.back();
}

void Workbook::removeName(Name& name) {
    name.remove();
    std::erase_if(names_, [&](const auto& held) { return held.get() == &name; });
    touch();
}

std::shared_ptr<Name> Workbook::findName(const std::string& name, const Worksheet* sheet) const {
    const auto find = [&](auto matches) -> std::shared_ptr<Name> {
        const auto found = std::find_if(names_.begin(), names_.end(), matches);
        return found == names_.end() ? nullptr : *found;
    };
    const auto isBare = [&](const std::shared_ptr<Name>& held, const Worksheet* scope) {
        return held->belongsTo(scope) && office::sameIgnoringCase(held->bareName(), name);
    };
    if (sheet != nullptr) {
        if (auto found = find([&](const auto& held) { return isBare(held, sheet); })) return found;
    }
    if (auto found = find([&](const auto& held) { return isBare(held, nullptr); })) return found;
    return find([&](const auto& held) { return office::sameIgnoringCase(held->name(), name); });
}

Value Workbook::namesOf(const Worksheet* sheet) {
    auto made = collection(*this, "Names", [this, sheet] {
        Items wanted;
        for (const auto& held : names_) {
            if (sheet == nullptr || held->belongsTo(sheet)) wanted.push_back(held);
        }
        return wanted;
    });
    made->method("Item", {"Index"}, [this, sheet](const CallArguments& arguments) -> Value {
        const Value& index = arguments.at(0);
        if (!index.isText()) return Object(lookUp(names_, index, arguments.source()));
        const auto* active = dynamic_cast<Worksheet*>(activeTab().get());
        auto found = findName(index.toText(), sheet != nullptr ? sheet : active);
        if (found) return Object(found);
        // A name of another sheet is found by its bare name when nothing else has it.
        const auto bare = std::find_if(names_.begin(), names_.end(), [&](const auto& held) {
            return office::sameIgnoringCase(held->bareName(), index.toText());
        });
        if (bare != names_.end()) return Object(*bare);
        throw Failure(FailureNumber::SubscriptOutOfRange, arguments.source(), "No such name");
    });
    made->method("Add",
                 {"Name", "RefersTo", "Visible", "MacroType", "ShortcutKey", "Category",
                  "NameLocal", "RefersToLocal", "CategoryLocal", "RefersToR1C1"},
                 [this](const CallArguments& arguments) { return addNameByCall(arguments); });
    return valueOf(made);
}

Value Workbook::addNameByCall(const CallArguments& arguments) {
    constexpr std::size_t refersTo = 1;
    constexpr std::size_t visible = 2;
    constexpr std::size_t refersToR1C1 = 9;
    std::string name = arguments.at(0).toText();
    Worksheet* scope = nullptr;
    if (const auto mark = name.rfind('!'); mark != std::string::npos) {
        const std::string sheet = office::replaceAll(name.substr(0, mark), "'", "");
        scope = dynamic_cast<Worksheet*>(findTab(sheet).get());
        if (scope == nullptr) refuse(arguments.source(), "There is no sheet " + sheet);
        name = name.substr(mark + 1);
    }
    if (name.empty() || areaOf(name)) refuse(arguments.source(), "A name can't be " + name);
    std::string formula;
    if (arguments.has(refersToR1C1)) {
        const auto references = referencesOf(arguments.at(refersToR1C1).toText(), Notation::R1C1);
        if (references.empty()) refuse(arguments.source(), "The reference isn't valid");
        formula = formulaOf(references);
    } else {
        formula = arguments.at(refersTo).toText();
    }
    std::erase_if(names_, [&](const auto& held) {
        return held->belongsTo(scope) && office::sameIgnoringCase(held->bareName(), name);
    });
    Name& added = addName(name, formula, scope);
    if (!arguments.at(visible, true).toBool()) added.hide();
    return added.handle();
}

Value Workbook::readSheets() {
    return growing([this] { return itemsOf(tabs_); });
}

Value Workbook::readWorksheets() {
    return growing([this] { return tabsOf<Worksheet>(tabs_); });
}

Value Workbook::growing(std::function<Items()> list) {
    auto made = collection(*this, "Sheets", std::move(list));
    made->method("Add", {"Before", "After", "Count", "Type"},
                 [this](const CallArguments& arguments) { return addSheet(arguments); });
    return valueOf(made);
}

Value Workbook::readCharts() {
    return valueOf(collection(*this, "Sheets", [this] { return tabsOf<Chart>(tabs_); }));
}

Value Workbook::addSheet(const CallArguments& arguments) {
    requireOpenStructure(arguments.source());
    const auto placeOf = [&](const std::shared_ptr<Sheet>& tab) {
        return static_cast<std::size_t>(std::find(tabs_.begin(), tabs_.end(), tab) - tabs_.begin());
    };
    std::size_t at = placeOf(activeTab());
    if (arguments.has(0)) at = placeOf(doubleOf<Sheet>(arguments.at(0)));
    if (arguments.has(1)) at = placeOf(doubleOf<Sheet>(arguments.at(1))) + 1;
    if (at > tabs_.size()) refuse(arguments.source(), "No such place for a sheet");
    auto added = std::make_shared<Worksheet>(*this, freshName());
    insertTab(added, at);
    activateSheet(added->name());
    touch();
    return Object(added);
}

void Workbook::insertTab(std::shared_ptr<Sheet> sheet, std::size_t at) {
    tabs_.insert(tabs_.begin() + static_cast<std::ptrdiff_t>(at), std::move(sheet));
}

std::string Workbook::freshName() const {
    for (std::size_t number = tabs_.size() + 1;; ++number) {
        std::string name = fmt::format("Sheet{}", number);
        if (!findTab(name)) return name;
    }
}

Value Workbook::activate(const CallArguments&) {
    application().activate(*this);
    return {};
}

Value Workbook::save(const CallArguments&) {
    saved_ = true;
    return {};
}

Value Workbook::saveCopyAs(const CallArguments& arguments) {
    const std::string text = "A copy of " + name_ + "\n";
    support::writeBytes(arguments.at(0).toText(), {text.begin(), text.end()});
    return {};
}

Value Workbook::close(const CallArguments&) {
    application().closeBook(*this);
    return {};
}

}  // namespace office_double
