#include "office/libreoffice/excel/areas.h"

#include <utility>

namespace libreoffice::excel {

const office::MemberTable<Areas>& Areas::members() {
    static const auto table = office::MemberTable<Areas>("Areas")
                                  .property("Count", &Areas::count)
                                  .property("Item", {"Index"}, &Areas::item);
    return table;
}

Areas::Areas(DeskPtr desk, BookPtr book, SheetPtr sheet, CellBlocks blocks)
    : SheetObject(std::move(desk), std::move(book), std::move(sheet)),
      blocks_(std::move(blocks)) {}

Value Areas::count() {
    return static_cast<std::int32_t>(blocks_.size());
}

Value Areas::item(const CallArguments& arguments) {
    const std::size_t place =
        ItemIndex(arguments.at(0).toLong(), arguments.source()).placeBelow(blocks_.size());
    return rangeObject(deskPtr(), bookPtr(), sheetPtr(), {blocks_[place]});
}

}  // namespace libreoffice::excel
