#pragma once

#include <optional>
#include <vector>

#include "office/libreoffice/excel/book_object.h"
#include "office/libreoffice/excel/name_list.h"

namespace libreoffice::excel {

/// The defined names of a workbook, those of its sheets included, or of one sheet. A list that is
/// held keeps its order; counting reads it anew.
class Names : public BookObject<Names> {
public:
    Names(DeskPtr desk, BookPtr book, SheetPtr ofSheet);

    static const office::MemberTable<Names>& members();

    Value count();
    Value item(const CallArguments& arguments);
    Value add(const CallArguments& arguments);

private:
    void read();
    [[nodiscard]] NameEntry entryToAdd(const std::string& name);

    SheetPtr ofSheet_;
    std::optional<std::vector<NameEntry>> entries_;
};

}  // namespace libreoffice::excel
