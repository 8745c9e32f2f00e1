#include <gtest/gtest.h>

#include "apps/murvane_export/csv.h"
#include "apps/murvane_export/errors.h"

namespace {

using Fields = std::vector<std::string>;

std::vector<Fields> fieldsOf(std::string_view text) {
    std::vector<Fields> all;
    for (const auto& record : unattended::parseCsv(text, "file.csv")) all.push_back(record.fields);
    return all;
}

struct CsvCase {
    const char* what;
    std::string text;
    std::vector<Fields> records;
};

class CsvTest : public testing::TestWithParam<CsvCase> {};

TEST_P(CsvTest, IsReadAsItIsMeant) {
    EXPECT_EQ(fieldsOf(GetParam().text), GetParam().records) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CsvTest,
    testing::Values(CsvCase{"nothing", "", {}},
                    CsvCase{"lines of all kinds",
                            "a,b\nc,d\r\ne,f\rg,h",
                            {{"a", "b"}, {"c", "d"}, {"e", "f"}, {"g", "h"}}},
                    CsvCase{"empty fields", ",\n", {{"", ""}}},
                    CsvCase{"empty lines", "a\n\n\nb\n", {{"a"}, {"b"}}},
                    CsvCase{"quotes", "\"a,b\",\"say \"\"so\"\"\"", {{"a,b", "say \"so\""}}},
                    CsvCase{"a line break in quotes", "\"one\ntwo\",x", {{"one\ntwo", "x"}}},
                    CsvCase{"an empty quoted field", "\"\",x", {{"", "x"}}},
                    CsvCase{"a byte-order mark", "\xEF\xBB\xBF\"a\",b", {{"a", "b"}}},
                    CsvCase{"semicolons", "a;b\n1,5;2", {{"a", "b"}, {"1,5", "2"}}},
                    CsvCase{"a semicolon among commas", "a,b;c", {{"a", "b;c"}}},
                    CsvCase{"other scripts", "Größe,売上,😀", {{"Größe", "売上", "😀"}}}));

TEST(Csv, RecordsKnowTheLineTheyBeginOn) {
    const auto records = unattended::parseCsv("a\n\"b\nc\"\n\nd", "file.csv");
    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(records[1].line, 2U);
    EXPECT_EQ(records[2].line, 5U);
}

struct BrokenCsv {
    std::string text;
    const char* message;
};

TEST(Csv, BrokenTextIsRefusedWithItsLine) {
    for (const BrokenCsv& broken :
         {BrokenCsv{"a\n\"b", "file.csv, line 2: a double quote is never closed."},
          {"\"a\"b", "file.csv, line 1: text follows a closing double quote."},
          {"a\nb\nGr\xF6\xDF"
           "e",
           "file.csv, line 3: this is not UTF-8. Save the file as \"CSV UTF-8\"."},
          {"\xC0\xAF", "file.csv, line 1: this is not UTF-8. Save the file as \"CSV UTF-8\"."},
          {"\xED\xA0\x80", "file.csv, line 1: this is not UTF-8. Save the file as \"CSV UTF-8\"."},
          {"\xE2\x82", "file.csv, line 1: this is not UTF-8. Save the file as \"CSV UTF-8\"."}}) {
        try {
            static_cast<void>(unattended::parseCsv(broken.text, "file.csv"));
            ADD_FAILURE() << broken.message;
        } catch (const unattended::UsageError& error) {
            EXPECT_STREQ(error.what(), broken.message);
        }
    }
}

}  // namespace
