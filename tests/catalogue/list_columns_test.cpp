#include <gtest/gtest.h>

#include <array>
#include <tuple>

#include "catalogue/list_columns.h"
#include "catalogue/number_entry.h"

namespace {

TEST(ListColumns, ShareTheWidthOfTheList) {
    const std::tuple<std::int32_t, bool, std::array<std::int32_t, 5>> cases[] = {
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
    for (const auto& [listWidth, predefinedSlides, expected] : cases) {
        const auto widths = catalogue::SizeListColumns(listWidth, predefinedSlides);
        for (std::size_t i = 0; i < expected.size(); ++i)
            EXPECT_EQ(widths.at(i), expected.at(i)) << listWidth << ", column " << i + 1;
        EXPECT_EQ(widths.at(5) + widths.at(6) + widths.at(7), 0);
    }
}

TEST(ANumberBox, losesTheLastCharacterOfWhatIsNoNumber) {
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},       {"12", "12"},   {"12a", "12"}, {"-", "-"},  {"-5", "-5"},  {"1.5", "1.5"},
        {"1,5", "1,5"}, {"1e3", "1e3"}, {" 7", " 7"},  {"7é", "7"}, {"abc", "ab"}, {"1-", "1"},
    };
    for (const auto& [typed, kept] : cases) {
        EXPECT_EQ(catalogue::Validate_Number_Entry(typed), kept) << typed;
    }
}

}  // namespace
