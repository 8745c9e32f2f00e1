#include "catalogue/list_columns.h"

#include <algorithm>

namespace catalogue {

const std::string& cellText(const ExportItem& item, std::size_t column) {
    static const std::string nothing;
    switch (column) {
        case ListColumn::name:
            return item.name;
        case ListColumn::sheet:
            return item.sheet;
        case ListColumn::slideNumber:
            return item.slideNumber;
        case ListColumn::order:
            return item.order;
        case ListColumn::caption:
            return item.caption;
        case ListColumn::laterRow:
            return item.laterRow;
        default:
            return nothing;
    }
}

std::array<std::int32_t, 8> SizeListColumns(std::int32_t listWidth, bool predefinedSlides) {
    const std::int32_t available = std::max(listWidth - 540, 3000);
    const std::int32_t slide = predefinedSlides ? 720 : 0;
    const std::int32_t usable = available - slide;

    std::int32_t name = usable * 32 / 100;
    std::int32_t sheet = usable * 16 / 100;
    std::int32_t order = usable * 12 / 100;
    std::int32_t caption = usable - name - sheet - order;
    sheet = std::max(sheet, 780);
    order = std::max(order, 720);
    caption = std::max(caption, 900);

    const std::int32_t sum = name + sheet + order + caption;
    if (sum > usable) {
        name = name * usable / sum;
        sheet = sheet * usable / sum;
        order = order * usable / sum;
    }
    name = std::max(name, 900);
    // What the others leave; in a narrow list that is less than a caption needs, and the list then
    // scrolls.
    caption = std::max(available - slide - name - sheet - order, 600);
    return {name, sheet, slide, order, caption, 0, 0, 0};
}

}  // namespace catalogue
