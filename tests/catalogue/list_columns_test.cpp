#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "catalogue/list_columns.h"

namespace {

TEST(ListColumns, ShareTheWidthOfTheList) {
    struct Case {
        std::int32_t listWidth;
        bool predefinedSlides;
        std::array<std::int32_t, 5> widths;
    };
    const std::vector<Case> cases = {
        // usable 6375: 32, 16 and 12 per cent
        {6915, false, {2040, 1020, 0, 765, 2550}},
        // usable 5655: sum 1809 + 904 + 720 + 2264 = 5697 with order at its floor, scaled
        {6915, true, {1795, 897, 720, 714, 2249}},
        // usable 3000: sum 960 + 780 + 720 + 1200 = 3660, scaled; the caption takes the rest
        {3540, false, {900, 639, 0, 590, 871}},
        {0, false, {900, 639, 0, 590, 871}},
        // usable 2280: sum 729 + 780 + 720 + 914 = 3143; the name back at its floor, the caption at
        // its own
        {3000, true, {900, 565, 720, 522, 600}},
    };
    for (const Case& it : cases) {
        const auto widths = catalogue::SizeListColumns(it.listWidth, it.predefinedSlides);
        for (std::size_t i = 0; i < it.widths.size(); ++i) {
            EXPECT_EQ(widths.at(i), it.widths.at(i)) << it.listWidth << ", column " << i + 1;
        }
        EXPECT_EQ(widths.at(5) + widths.at(6) + widths.at(7), 0);
    }
}

}  // namespace
