#include "office_double/excel/sheet.h"

#include <algorithm>

#include "office_double/excel/application.h"
#include "office_double/excel/workbook.h"

namespace office_double {

namespace {

bool isSheetName(const std::string& name) {
    return !name.empty() && name.size() <= 31 && name.front() != '\'' && name.back() != '\'' &&
           name.find_first_of(":\\/?*[]") == std::string::npos;
}

}  // namespace

Workbook& Sheet::book() const {
    return parent<Workbook>();
}

void Sheet::rename(const Value& name) {
    const std::string wanted = name.toText();
    Workbook& owner = book();
    owner.requireOpenStructure(typeName() + ".Name");
    const auto taken = owner.findTab(wanted);
    if (!isSheetName(wanted) || (taken && taken.get() != this)) {
        throw Failure(FailureNumber::ApplicationDefined, typeName() + ".Name",
                      "A sheet can't have the name \"" + wanted + "\"");
    }
    owner.sheetRenamed(name_, wanted);
    name_ = wanted;
}

void Sheet::writeVisible(const Value& value) {
    Workbook& owner = book();
    owner.requireOpenStructure(typeName() + ".Visible");
    const std::int32_t wanted = value.isBool() ? (value.toBool() ? shown : hidden) : value.toLong();
    if (wanted != shown && visible_ == shown && owner.visibleTabs() == 1) {
        throw Failure(FailureNumber::ApplicationDefined, typeName() + ".Visible",
                      "A workbook needs a visible sheet");
    }
    visible_ = wanted;
}

Value Sheet::readIndex() {
    const auto& tabs = book().tabs();
    const auto self = std::find_if(tabs.begin(), tabs.end(),
                                   [this](const auto& tab) { return tab.get() == this; });
    return count(static_cast<std::size_t>(self - tabs.begin()) + 1);
}

Value Sheet::readBook() {
    return book().handle();
}

Value Sheet::activate(const CallArguments& arguments) {
    if (visible_ != shown) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "A hidden sheet can't be selected");
    }
    book().activateSheet(name_);
    return true;
}

Value Sheet::deleteSheet(const CallArguments& arguments) {
    Workbook& owner = book();
    owner.requireOpenStructure(arguments.source());
    if (visible_ == shown && owner.visibleTabs() == 1) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "A workbook needs a visible sheet");
    }
    owner.removeTab(*this);
    return true;
}

}  // namespace office_double
