#pragma once

#include "office/libreoffice/excel/book_object.h"
#include "office/libreoffice/excel/objects.h"

namespace libreoffice::excel {

/// The blocks of a range, one by one.
class Areas : public SheetObject<Areas> {
public:
    Areas(DeskPtr desk, BookPtr book, SheetPtr sheet, CellBlocks blocks);

    static const office::MemberTable<Areas>& members();

    Value count();
    Value item(const CallArguments& arguments);

private:
    CellBlocks blocks_;
};

}  // namespace libreoffice::excel
