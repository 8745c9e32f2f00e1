#pragma once

#include <string>

#include "office/libreoffice/excel/book_object.h"

namespace libreoffice::excel {

/// The title of a chart, as it was when the chart was asked for it.
class ChartTitle : public BookObject<ChartTitle> {
public:
    ChartTitle(DeskPtr desk, BookPtr book, std::string text)
        : BookObject(std::move(desk), std::move(book)),
          text_(std::move(text)) {}

    static const office::MemberTable<ChartTitle>& members() {
        static const auto table = office::MemberTable<ChartTitle>("ChartTitle")
                                      .property("Text", &ChartTitle::text)
                                      .property("Caption", &ChartTitle::text);
        return table;
    }

    Value text() { return text_; }

private:
    std::string text_;
};

}  // namespace libreoffice::excel
