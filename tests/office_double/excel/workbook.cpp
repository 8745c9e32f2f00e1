#include "office_double/excel/workbook.h"

#include <algorithm>

#include "office/text.h"
#include "office_double/excel/application.h"

namespace office_double {

Worksheet& Workbook::sheet(const std::string& name) {
    if (!findTab(name)) tabs_.push_back(std::make_shared<Worksheet>(*this, name));
    return dynamic_cast<Worksheet&>(*findTab(name));
}

Chart& Workbook::chartSheet(const std::string& name) {
    if (!findTab(name)) tabs_.push_back(std::make_shared<Chart>(*this, name));
    return dynamic_cast<Chart&>(*findTab(name));
}

Workbook& Workbook::define(const std::string& name, const std::string& formula) {
    names_.add(name, formula, true);
    return *this;
}

Workbook& Workbook::defineHidden(const std::string& name, const std::string& formula) {
    names_.add(name, formula, false);
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

office::Object Workbook::handle() {
    return application_.handleOf(*this);
}

std::shared_ptr<Sheet> Workbook::findTab(std::string_view name) const {
    const auto found = std::find_if(tabs_.begin(), tabs_.end(), [&](const auto& tab) {
        return office::sameIgnoringCase(tab->knownName(), name);
    });
    return found == tabs_.end() ? nullptr : *found;
}

void Workbook::activateSheet(const std::string& name) {
    active_ = findTab(name);
    selection_ = {};
    activate();
}

void Workbook::activate() {
    application_.activate(*this);
}

void Workbook::close() {
    closed_ = true;
    application_.closeBook(*this);
}

std::vector<std::string> Workbook::sheetNames() {
    std::vector<std::string> names;
    for (const auto& tab : tabs_) names.push_back(tab->name());
    return names;
}

std::shared_ptr<Sheet> Workbook::activeTab() const {
    auto active = active_.lock();
    return active || tabs_.empty() ? active : tabs_.front();
}

excel::SheetPtr Workbook::addSheet(const std::string& name, std::int32_t place) {
    modified_ = true;
    // The sheet that is on top stays there.
    if (active_.expired() && !tabs_.empty()) active_ = tabs_.front();
    const auto added =
        *tabs_.insert(tabs_.begin() + place, std::make_shared<Worksheet>(*this, name));
    if (bringsUpNewSheets_) active_ = added;
    return added;
}

void Workbook::removeSheet(const excel::SheetPtr& sheet) {
    sheetRenamed(sheet->knownName(), {});
    std::erase(tabs_, sheet);
}

void Workbook::sheetRenamed(const std::string& from, const std::string& to) {
    modified_ = true;
    names_.sheetRenamed(from, to);
    for (const auto& tab : tabs_) tab->names_.sheetRenamed(from, to);
}

}  // namespace office_double
