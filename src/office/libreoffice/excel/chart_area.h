#pragma once

#include "office/libreoffice/excel/book_object.h"

namespace libreoffice::excel {

/// The whole area of a chart: what it does, it has the chart do.
class ChartArea : public BookObject<ChartArea> {
public:
    ChartArea(DeskPtr desk, BookPtr book, Object chart)
        : BookObject(std::move(desk), std::move(book)),
          chart_(std::move(chart)) {}

    static const office::MemberTable<ChartArea>& members() {
        static const auto table = office::MemberTable<ChartArea>("ChartArea")
                                      .property("Parent", &ChartArea::parent)
                                      .method("Select", {}, &ChartArea::select)
                                      .method("Copy", {}, &ChartArea::copy);
        return table;
    }

    Value parent() { return chart_; }
    Value select(const CallArguments&) { return chart_.call("Select"); }
    Value copy(const CallArguments&) { return chart_.call("CopyPicture"); }

private:
    Object chart_;
};

}  // namespace libreoffice::excel
