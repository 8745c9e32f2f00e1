#pragma once

#include <functional>

#include "office/libreoffice/excel/book_object.h"

namespace libreoffice::excel {

/// A sheet that is a chart.
class ChartSheet : public SheetObject<ChartSheet> {
public:
    ChartSheet(DeskPtr desk, BookPtr book, SheetPtr sheet);

    static const office::MemberTable<ChartSheet>& members();

    Value name();
    void setName(const Value& name);
    Value index();
    Value visible();
    void setVisible(const Value& visible);
    Value parent();
    Value hasTitle();
    Value title();
    Value area();
    Value exportPicture(const CallArguments& arguments);
    Value copyPicture(const CallArguments& arguments);
    Value activate(const CallArguments& arguments);
    Value remove(const CallArguments& arguments);

private:
    using ChartUse = std::function<void(const uno::Reference<css::drawing::XShape>&)>;

    /// Does something with the sheet's chart, wherever that has to be taken from.
    void withChart(const ChartUse& use);
};

}  // namespace libreoffice::excel
