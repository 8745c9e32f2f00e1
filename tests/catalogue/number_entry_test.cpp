#include <gtest/gtest.h>

#include "catalogue/number_entry.h"

namespace {

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
