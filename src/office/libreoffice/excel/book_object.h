#pragma once

#include <memory>
#include <utility>

#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/guard.h"

namespace libreoffice::excel {

using office::CallArguments;
using office::Failure;
using office::FailureNumber;
using office::Object;
using office::Value;

/// Base of the objects that belong to a workbook.
template <class Self>
class BookObject : public UnoObject<Self> {
public:
    BookObject(DeskPtr desk, BookPtr book)
        : UnoObject<Self>(std::move(desk), book),
          book_(std::move(book)) {}

    [[nodiscard]] CalcDocument& book() const { return *book_; }
    [[nodiscard]] const BookPtr& bookPtr() const { return book_; }
    [[nodiscard]] SheetList& sheets() const { return book_->sheets(this->desk().connection()); }

private:
    BookPtr book_;
};

/// Base of the objects that belong to a sheet.
template <class Self>
class SheetObject : public BookObject<Self> {
public:
    SheetObject(DeskPtr desk, BookPtr book, SheetPtr sheet)
        : BookObject<Self>(std::move(desk), std::move(book)),
          sheet_(std::move(sheet)) {}

    /// As for any object; and the sheet must not be known to be deleted.
    void requireAlive(std::string_view member) const {
        BookObject<Self>::requireAlive(member);
        sheet_->requireNotGone(std::string(member));
    }

    [[nodiscard]] SheetRecord& sheet() const { return *sheet_; }
    [[nodiscard]] const SheetPtr& sheetPtr() const { return sheet_; }
    /// Before the sheet is changed: `Failure` Disconnected if it has been deleted.
    void requireSheet(const std::string& source) const {
        this->sheets().requireThere(sheet_, source);
    }

private:
    SheetPtr sheet_;
};

}  // namespace libreoffice::excel
