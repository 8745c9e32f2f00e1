#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "office/failure.h"
#include "office/value.h"
#include "support/automation.h"

namespace {

using office::Failure;
using office::FailureNumber;
using office::Object;
using office::Table;
using office::Value;

using support::failureOf;

constexpr auto mismatch = static_cast<std::int32_t>(FailureNumber::TypeMismatch);

/// What a conversion gives, nothing where it fails with a mismatch.
template <class Conversion>
auto converted(const Conversion& conversion) -> std::optional<decltype(conversion())> {
    try {
        return conversion();
    } catch (const Failure& failure) {
        EXPECT_TRUE(failure.is(FailureNumber::TypeMismatch));
        return std::nullopt;
    }
}

TEST(Value, ConvertsByTheRulesOfAutomation) {
    Table cell(1, 1);
    using Texts = std::optional<std::string>;
    const std::tuple<const char*, Value, Texts, std::optional<double>, std::optional<bool>>
        conversions[] = {
            {"empty", Value(), "", 0.0, false},
            {"true", true, "True", -1.0, true},
            {"false", false, "False", 0.0, false},
            {"integer", 7, "7", 7.0, true},
            {"double", 2.5, "2.5", 2.5, true},
            {"a whole double", 3.0, "3", 3.0, true},
            {"minus nothing", -0.0, "0", 0.0, false},
            {"text", "Sales", "Sales", std::nullopt, std::nullopt},
            {"a text that is a number", " 12.5 ", " 12.5 ", 12.5, true},
            {"a text with an exponent", "1e3", "1e3", 1000.0, true},
            {"a text with a plus", "+4", "+4", 4.0, true},
            {"a number with words behind it", "12 px", "12 px", std::nullopt, std::nullopt},
            {"a decimal comma", "1,5", "1,5", std::nullopt, std::nullopt},
            {"infinity", "inf", "inf", std::nullopt, std::nullopt},
            {"an empty text", "", "", std::nullopt, std::nullopt},
            {"the word true", " TRUE", " TRUE", std::nullopt, true},
            {"missing", office::missing, std::nullopt, std::nullopt, std::nullopt},
            {"nothing as object", Object(), std::nullopt, std::nullopt, std::nullopt},
            {"a table", cell, std::nullopt, std::nullopt, std::nullopt},
        };
    for (const auto& [what, value, text, number, flag] : conversions) {
        SCOPED_TRACE(what);
        EXPECT_EQ(converted([&v = value] { return v.toText(); }), text);
        EXPECT_EQ(converted([&v = value] { return v.toDouble(); }), number);
        EXPECT_EQ(converted([&v = value] { return v.toBool(); }), flag);
    }
}

TEST(Value, RoundsHalvesToTheEvenNeighbourWithin32Bits) {
    const std::vector<std::pair<double, std::int32_t>> cases = {
        {0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {1.6, 2}, {2147483647.4, 2147483647}};
    for (const auto& [number, rounded] : cases)
        EXPECT_EQ(Value(number).toLong(), rounded) << number;
    for (const double number :
         {2147483648.0, -2147483649.0, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(failureOf([&] { (void)Value(number).toLong(); }), mismatch) << number;
    }
}

TEST(Object, FailsWithObjectNotSetOnNothing) {
    const Object nothing;
    const auto notSet = static_cast<std::int32_t>(FailureNumber::ObjectNotSet);
    EXPECT_EQ(nothing.typeName(), "Nothing");
    EXPECT_EQ(failureOf([&] { (void)nothing.get("Name"); }), notSet);
    EXPECT_EQ(failureOf([&] { nothing.put("Name", "x"); }), notSet);
    EXPECT_EQ(failureOf([&] { (void)nothing.call("Show"); }), notSet);
    EXPECT_TRUE(Value().toObject().isNothing());
    const auto required = static_cast<std::int32_t>(FailureNumber::ObjectRequired);
    for (const Value& other : {Value(), Value(3), Value("x")})
        EXPECT_EQ(failureOf([&] { (void)other.get("Name"); }), required);
}

TEST(Table, CountsFromOneAndRefusesWhatIsOutside) {
    Table table(2, 3);
    table.at(1, 1) = "first";
    table.at(2, 3) = "last";
    EXPECT_EQ(table.at(1, 1).toText(), "first");
    EXPECT_EQ(table.at(2, 3).toText(), "last");
    const auto outOfRange = static_cast<std::int32_t>(FailureNumber::SubscriptOutOfRange);
    const std::vector<std::pair<std::size_t, std::size_t>> outside = {
        {0, 1}, {1, 0}, {3, 1}, {1, 4}};
    for (const auto& [row, column] : outside) {
        EXPECT_EQ(failureOf([&, r = row, c = column] { (void)table.at(r, c); }), outOfRange)
            << row << ", " << column;
    }
}

}  // namespace
