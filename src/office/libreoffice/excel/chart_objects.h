#pragma once

#include "office/libreoffice/excel/book_object.h"

namespace libreoffice::excel {

/// The chart objects of a worksheet. `Add` makes one that lives in Murvane only, to hold a picture:
/// it is not counted here, and the workbook stays as it is.
class ChartObjects : public SheetObject<ChartObjects> {
public:
    ChartObjects(DeskPtr desk, BookPtr book, SheetPtr sheet);

    static const office::MemberTable<ChartObjects>& members();

    Value count();
    Value item(const CallArguments& arguments);
    Value add(const CallArguments& arguments);
};

}  // namespace libreoffice::excel
