#pragma once

#include "office/libreoffice/excel/book_object.h"

namespace libreoffice::excel {

/// The chart in a chart object of a worksheet.
class EmbeddedChart : public SheetObject<EmbeddedChart> {
public:
    EmbeddedChart(DeskPtr desk, BookPtr book, SheetPtr sheet, ChartShapePtr chart);

    static const office::MemberTable<EmbeddedChart>& members();

    Value name();
    Value parent();
    Value hasTitle();
    Value title();
    Value area();
    Value exportPicture(const CallArguments& arguments);
    Value copyPicture(const CallArguments& arguments);
    Value select(const CallArguments& arguments);

private:
    ChartShapePtr chart_;
};

}  // namespace libreoffice::excel
