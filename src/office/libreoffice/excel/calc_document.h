#pragma once

#include <com/sun/star/datatransfer/XTransferableSupplier.hpp>
#include <com/sun/star/document/XUndoManager.hpp>
#include <com/sun/star/sheet/XNamedRanges.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "office/libreoffice/desk.h"
#include "office/libreoffice/document.h"
#include "office/libreoffice/excel/book_looks.h"
#include "office/libreoffice/excel/named_ranges.h"
#include "office/libreoffice/excel/number_formats.h"
#include "office/libreoffice/excel/sheet_list.h"
#include "office/libreoffice/excel/workbook_facts.h"
#include "office/model/excel/book.h"

namespace libreoffice::excel {

namespace model = office::model::excel;

/// A window of a workbook that cells can be copied from.
struct CopyingWindow {
    uno::Reference<css::frame::XController> window;
    uno::Reference<css::view::XSelectionSupplier> selection;
    uno::Reference<css::datatransfer::XTransferableSupplier> copier;
};

/// An open workbook, and what automation remembers about it: the sheets that were met, the shapes
/// of their charts, and what its file says that LibreOffice does not keep.
class CalcDocument : public Document,
                     public model::Book,
                     public std::enable_shared_from_this<CalcDocument> {
public:
    CalcDocument(Desk& desk, uno::Reference<css::frame::XModel> calc);

    [[nodiscard]] Desk& desk() const { return desk_; }
    [[nodiscard]] const Connection& connection() const { return desk_.connection(); }
    /// Whether nobody but this program changes the workbook.
    [[nodiscard]] bool isUndisturbed() const { return desk_.isUndisturbed; }
    /// How many times this program has changed names, sheets or charts of it; what it writes into
    /// cells doesn't count.
    [[nodiscard]] std::uint64_t ownChanges() const { return ownChanges_; }
    void noteOwnChange() { ++ownChanges_; }
    [[nodiscard]] SheetList& sheetList();
    [[nodiscard]] NumberFormats& formats() { return formats_; }
    [[nodiscard]] BookLooks& looks();
    [[nodiscard]] uno::Reference<css::sheet::XSpreadsheetView> view();
    /// The window as it is without what is copied here; nothing for a workbook that has none.
    [[nodiscard]] uno::Reference<css::frame::XController> window();
    /// What is selected comes back before anybody asks for the window. Between the copies of an
    /// export nobody does, and each way there and back may bring a sheet to the top.
    void selectAgainLater(const uno::Any& selected);
    /// Nothing if it is selected still.
    [[nodiscard]] const uno::Any& selectedBefore() const { return selectedBefore_; }
    /// `office::Failure` 1004 for a workbook without a window, or one in print preview. One that
    /// nobody sees stays as it is, and is asked for once.
    [[nodiscard]] CopyingWindow copyingWindow();
    /// What the user can take back.
    [[nodiscard]] const uno::Reference<css::document::XUndoManager>& undoSteps();
    /// The workbook as `NamedCells` give it.
    [[nodiscard]] model::BookPtr self() { return shared_from_this(); }

    /// Its file counts as one that may not be written.
    void leaveFileAlone() { leavesFileAlone_ = true; }

    [[nodiscard]] bool isGone() const override { return isClosed(); }
    std::string name() override { return Document::name(); }
    std::string fullName() override { return Document::fullName(); }
    std::string identity() override { return Document::identity(); }
    bool isReadOnly() override;
    bool isModified() override;
    void setModified(bool modified) override;
    /// LibreOffice drops this protection when it loads a file, so the file's word counts as well.
    bool structureIsProtected() override;
    void activate() override;
    void close() override { Document::close(); }
    std::vector<model::SheetPtr> sheets() override;
    std::vector<std::string> sheetNames() override { return sheetList().names(); }
    model::SheetPtr findSheet(std::string_view name) override { return sheetList().find(name); }
    /// Of a workbook without a window, the first visible one.
    model::SheetPtr activeSheet() override;
    model::SheetPtr addSheet(const std::string& name, std::int32_t place) override {
        return sheetList().add(name, place);
    }
    void removeSheet(const model::SheetPtr& sheet) override;
    model::Selection selection() override;
    NamedRanges& names() override;
    /// The cells of a sheet that its file gives a style of tables.
    [[nodiscard]] model::CellBlocks styledTablesOn(std::string_view sheet);

private:
    [[nodiscard]] const WorkbookFacts& facts();
    void selectAgain();

    Desk& desk_;
    bool leavesFileAlone_ = false;
    std::uint64_t ownChanges_ = 0;
    std::optional<WorkbookFacts> facts_;
    std::optional<SheetList> sheets_;
    std::optional<NamedRanges> names_;
    std::optional<BookLooks> looks_;
    uno::Reference<css::document::XUndoManager> undoSteps_;
    uno::Any selectedBefore_;
    std::optional<CopyingWindow> unseenWindow_;
    NumberFormats formats_;
};

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
