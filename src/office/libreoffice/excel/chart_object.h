#pragma once

#include "office/libreoffice/excel/book_object.h"

namespace libreoffice::excel {

/// A chart on a worksheet: the frame around it, with a name and a place.
class ChartObject : public SheetObject<ChartObject> {
public:
    ChartObject(DeskPtr desk, BookPtr book, SheetPtr sheet, ChartShapePtr chart);

    static const office::MemberTable<ChartObject>& members();

    Value name();
    Value index();
    Value chart();
    Value parent();
    Value topLeftCell();
    Value bottomRightCell();
    Value left();
    Value top();
    Value width();
    Value height();
    Value select(const CallArguments& arguments);
    Value copyPicture(const CallArguments& arguments);
    Value remove(const CallArguments& arguments);

private:
    ChartShapePtr chart_;
};

}  // namespace libreoffice::excel
