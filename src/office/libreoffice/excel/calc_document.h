#pragma once

#include <com/sun/star/sheet/XNamedRanges.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>

#include <memory>
#include <optional>
#include <string>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/document.h"
#include "office/libreoffice/excel/number_formats.h"
#include "office/libreoffice/excel/sheet_list.h"
#include "office/libreoffice/excel/workbook_facts.h"

namespace libreoffice::excel {

/// An open workbook, and what automation remembers about it: the sheets that were met, the shapes
/// of their charts, and what its file says that LibreOffice does not keep.
class CalcDocument : public Document {
public:
    explicit CalcDocument(uno::Reference<css::frame::XModel> model);

    [[nodiscard]] SheetList& sheets(const Connection& connection);
    /// Whether sheets may be added, removed, renamed, shown and hidden. LibreOffice drops this
    /// protection when it loads a file, so the file's word counts as well.
    [[nodiscard]] bool structureIsLocked(const Connection& connection);

    [[nodiscard]] const uno::Reference<css::sheet::XNamedRanges>& names();
    [[nodiscard]] NumberFormats& formats() { return formats_; }

    [[nodiscard]] uno::Reference<css::sheet::XSpreadsheetView> view() const;
    /// The sheet on top; of a workbook without a window, the first visible one.
    [[nodiscard]] SheetPtr activeSheet(const Connection& connection);

    [[nodiscard]] bool isModified() const;
    void setModified(bool modified);

private:
    [[nodiscard]] const WorkbookFacts& facts(const Connection& connection);
    [[nodiscard]] bool comesFromExcel() const;

    std::optional<WorkbookFacts> facts_;
    std::optional<SheetList> sheets_;
    uno::Reference<css::sheet::XNamedRanges> names_;
    NumberFormats formats_;
};

using BookPtr = std::shared_ptr<CalcDocument>;

/// Puts the document's modified flag back when it goes: for what is done to a workbook for a moment
/// and undone.
class KeptModifiedFlag {
public:
    explicit KeptModifiedFlag(CalcDocument& book) : book_(book), modified_(book.isModified()) {}
    KeptModifiedFlag(const KeptModifiedFlag&) = delete;
    KeptModifiedFlag& operator=(const KeptModifiedFlag&) = delete;
    ~KeptModifiedFlag();

private:
    CalcDocument& book_;
    bool modified_;
};

}  // namespace libreoffice::excel
