#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "office/model/excel/publications.h"
#include "office/model/excel/sheet.h"
#include "office/model/guard.h"

namespace office::model::excel {

class Book;
using BookPtr = std::shared_ptr<Book>;

/// What is selected: cells, a chart, or neither.
struct Selection {
    SheetPtr sheet;
    CellBlocks blocks;
    SheetChartPtr chart;
};

/// An open workbook.
class Book : public Part {
public:
    virtual std::string name() = 0;
    /// The file's path; the name alone of one never saved.
    virtual std::string fullName() = 0;
    /// Tells it from every other one that is open, also once it is saved under another name.
    virtual std::string identity() = 0;
    /// Whether its file may not be written. It can be changed all the same.
    virtual bool isReadOnly() = 0;
    virtual bool isModified() = 0;
    virtual void setModified(bool modified) = 0;
    /// Whether sheets may not be added, removed, renamed, shown and hidden.
    virtual bool structureIsProtected() = 0;
    virtual void activate() = 0;
    /// Closes without saving.
    virtual void close() = 0;

    /// In the order of the tabs.
    virtual std::vector<SheetPtr> sheets() = 0;
    virtual std::vector<std::string> sheetNames() = 0;
    /// Whatever the case of the name; null if there is none.
    virtual SheetPtr findSheet(std::string_view name) = 0;
    /// The sheet on top; null if none is shown.
    virtual SheetPtr activeSheet() = 0;
    virtual SheetPtr addSheet(const std::string& name, std::int32_t place) = 0;
    virtual void removeSheet(const SheetPtr& sheet) = 0;
    virtual Selection selection() = 0;
    /// The workbook's own names.
    virtual NameScope& names() = 0;

    /// What is published of it. It is kept as long as the workbook is open and never saved.
    [[nodiscard]] Publications& publications() { return publications_; }

private:
    Publications publications_;
};

/// The cells that a name stands for, in this workbook or in another that is open.
struct NamedCells {
    BookPtr book;
    SheetPtr sheet;
    CellBlocks blocks;
};

/// The defined names of one sheet, or those of the workbook. `Failure` 9 for a name that is gone.
class NameScope {
public:
    /// As the object model spells them: "Print_Area".
    virtual std::vector<std::string> all() = 0;
    virtual bool has(std::string_view name) = 0;
    /// Nothing for a constant, a formula, a broken reference or one to a file that is not open.
    virtual std::optional<NamedCells> cells(const std::string& name) = 0;
    virtual bool isVisible(const std::string& name) = 0;
    /// Defines a name, or gives it another meaning.
    virtual void define(const std::string& name, const CellsOfSheet& cells, bool visible) = 0;

protected:
    ~NameScope() = default;
};

}  // namespace office::model::excel
