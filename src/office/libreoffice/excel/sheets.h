#pragma once

#include "office/libreoffice/excel/book_object.h"

namespace libreoffice::excel {

/// `Sheets`, `Worksheets` or `Charts` of a workbook, in the order of the tabs.
class Sheets : public BookObject<Sheets> {
public:
    Sheets(DeskPtr desk, BookPtr book, SheetList::Kind kind);

    static const office::MemberTable<Sheets>& members();
    [[nodiscard]] std::string typeName() const override;

    Value count();
    Value item(const CallArguments& arguments);
    /// New worksheets, ahead of the active sheet unless told otherwise; gives the last one.
    /// LibreOffice keeps the sheet on top that is there, Excel would bring the new one up.
    Value add(const CallArguments& arguments);

private:
    [[nodiscard]] SheetPtr sheetBehind(const Value& value, const std::string& source) const;
    [[nodiscard]] std::int32_t placeToAdd(const CallArguments& arguments) const;

    SheetList::Kind kind_;
};

}  // namespace libreoffice::excel
