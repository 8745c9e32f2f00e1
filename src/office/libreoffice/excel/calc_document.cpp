#include "office/libreoffice/excel/calc_document.h"

#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <com/sun/star/util/XProtectable.hpp>

#include <algorithm>
#include <utility>

namespace libreoffice::excel {

CalcDocument::CalcDocument(uno::Reference<css::frame::XModel> model)
    : Document(std::move(model)),
      formats_(this->model()) {}

SheetList& CalcDocument::sheets(const Connection& connection) {
    if (!sheets_) {
        sheets_.emplace(as<css::sheet::XSpreadsheetDocument>(model())->getSheets(),
                        facts(connection));
        if (!facts(connection).known && comesFromExcel()) sheets_->tellKindsByLooks();
    }
    return *sheets_;
}

bool CalcDocument::structureIsLocked(const Connection& connection) {
    return facts(connection).structureIsLocked ||
           as<css::util::XProtectable>(model())->isProtected();
}

const WorkbookFacts& CalcDocument::facts(const Connection& connection) {
    if (!facts_) facts_ = readWorkbookFacts(connection, url());
    return *facts_;
}

/// A file that can't be looked into, being encrypted or of the old binary format, but that may have
/// chart sheets.
bool CalcDocument::comesFromExcel() const {
    const auto arguments = model()->getArgs();
    return std::any_of(arguments.begin(), arguments.end(),
                       [](const css::beans::PropertyValue& argument) {
                           rtl::OUString filter;
                           return argument.Name == "FilterName" && (argument.Value >>= filter) &&
                                  filter.indexOf("MS Excel") >= 0;
                       });
}

const uno::Reference<css::sheet::XNamedRanges>& CalcDocument::names() {
    if (!names_.is())
        names_ = property<uno::Reference<css::sheet::XNamedRanges>>(model(), "NamedRanges");
    return names_;
}

uno::Reference<css::sheet::XSpreadsheetView> CalcDocument::view() const {
    return tryAs<css::sheet::XSpreadsheetView>(controller());
}

SheetPtr CalcDocument::activeSheet(const Connection& connection) {
    if (const auto window = view(); window.is()) {
        const auto active = as<css::container::XNamed>(window->getActiveSheet());
        return sheets(connection).find(fromUno(active->getName()));
    }
    for (const SheetPtr& sheet : sheets(connection).all()) {
        if (sheet->isShown()) return sheet;
    }
    return nullptr;
}

bool CalcDocument::isModified() const {
    return as<css::util::XModifiable>(model())->isModified();
}

void CalcDocument::setModified(bool modified) {
    as<css::util::XModifiable>(model())->setModified(modified);
}

KeptModifiedFlag::~KeptModifiedFlag() {
    try {
        if (book_.isModified() != modified_) book_.setModified(modified_);
    } catch (const uno::Exception&) {
        // The document or the suite has gone, and the flag with it.
    }
}

}  // namespace libreoffice::excel
