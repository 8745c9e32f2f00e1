#include "office/libreoffice/excel/sheet_record.h"

#include <fmt/format.h>

#include <utility>

#include "office/failure.h"

namespace libreoffice::excel {

SheetRecord::SheetRecord(uno::Reference<css::sheet::XSpreadsheet> sheet, std::string name)
    : sheet_(std::move(sheet)),
      name_(std::move(name)),
      charts_(sheet_) {}

const uno::Reference<css::beans::XPropertySet>& SheetRecord::properties() {
    if (!properties_.is()) properties_ = as<css::beans::XPropertySet>(sheet_);
    return properties_;
}

uno::Reference<css::table::XCellRange> SheetRecord::cells(const CellBlock& block) const {
    return sheet_->getCellRangeByPosition(block.firstColumn, block.firstRow, block.lastColumn,
                                          block.lastRow);
}

const uno::Reference<css::sheet::XNamedRanges>& SheetRecord::names() {
    if (!names_.is()) properties()->getPropertyValue("NamedRanges") >>= names_;
    return names_;
}

std::string SheetRecord::readName() {
    if (!named_.is()) named_ = as<css::container::XNamed>(sheet_);
    return fromUno(named_->getName());
}

void SheetRecord::rename(const std::string& name) {
    if (!named_.is()) named_ = as<css::container::XNamed>(sheet_);
    named_->setName(toUno(name));
}

void SheetRecord::requireNotGone(const std::string& source) const {
    if (!isGone) return;
    throw office::Failure(
        office::FailureNumber::Disconnected, source,
        fmt::format("The sheet \"{}\" has been deleted in the meantime", knownName()));
}

std::int32_t SheetRecord::place() {
    if (!addressable_.is()) addressable_ = as<css::sheet::XCellRangeAddressable>(sheet_);
    return addressable_->getRangeAddress().Sheet;
}

bool SheetRecord::isShown() {
    bool shown = true;
    properties()->getPropertyValue("IsVisible") >>= shown;
    return shown;
}

void SheetRecord::show(bool shown) {
    properties()->setPropertyValue("IsVisible", uno::Any(shown));
}

}  // namespace libreoffice::excel
