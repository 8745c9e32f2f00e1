#include <com/sun/star/sheet/XNamedRanges.hpp>

#include <utility>

#include "live/live_suite.h"

namespace live {

namespace {

using namespace libreoffice;
using Names = std::vector<std::string>;

class ExcelCells : public ExcelLive {
protected:
    [[nodiscard]] Value at(std::string_view address) const {
        return data.get("Range", address).get("Value");
    }
    void write(std::string_view address, const Value& value) const {
        data.get("Range", address).put("Value", value);
    }

    Object book = open("cells.xlsx");
    Object data = sheet(book, "Data");
};

TEST_F(ExcelCells, ReadsTruthValuesHoweverTheFileFormatsThem) {
    const Table block = at("E1:F4").toTable();
    for (const std::size_t row : {1U, 2U}) {
        EXPECT_TRUE(block.at(row, 1).isBool() && block.at(row, 1).toBool() == (row == 1)) << row;
    }
    EXPECT_TRUE(block.at(1, 2).isBool() && at("E2").isBool());
    for (const std::size_t row : {2U, 3U, 4U}) EXPECT_TRUE(block.at(row, 2).isDouble()) << row;
    EXPECT_TRUE(at("F2").isDouble());
}

TEST_F(ExcelCells, KeepsTruthValuesThroughASavedFileAndUntilANumberReplacesThem) {
    Table block(6, 2);
    for (std::size_t row = 1; row <= 6; ++row) {
        block.at(row, 1) = row % 2 == 0;
        block.at(row, 2) = static_cast<double>(row);
    }
    write("J1:K6", block);
    const std::string saved = savedAs("copy.xlsx", "Calc MS Excel 2007 XML");
    const Object copy = app.get("Workbooks").call("Open", saved).toObject();
    const Table read = sheet(copy, "Data").get("Range", "J1:K6").get("Value").toTable();
    for (std::size_t row = 1; row <= 6; ++row) {
        EXPECT_TRUE(read.at(row, 1).isBool() && read.at(row, 1).toBool() == (row % 2 == 0)) << row;
        EXPECT_TRUE(read.at(row, 2).isDouble()) << row;
    }
    write("J2", 1);
    EXPECT_TRUE(at("J1").isBool() && at("J2").isDouble() && at("J3").isBool());
    write("J2", false);
    EXPECT_TRUE(at("J2").isBool() && !at("J2").toBool());
}

TEST_F(ExcelCells, TypesValuesInAsAPersonWould) {
    struct Case {
        const char* address;
        Value written;
        bool isNumber;
        const char* text;
    };
    const Case cases[] = {
        {"J1", "12", true, "12"},        {"J2", "1.5", true, "1.5"},
        {"J3", "12 px", false, "12 px"}, {"G1", "12", false, "12"},
        {"G2", 7, false, "7"},           {"G3", true, false, "TRUE"},
        {"G4", "007", false, "007"},     {"E5", "3", true, "3"},
        {"J4", "", false, ""},           {"J5", "'quoted", false, "'quoted"},
        {"J6", "=1+1", false, "=1+1"},
    };
    for (const Case& each : cases) {
        write(each.address, each.written);
        EXPECT_EQ(at(each.address).isNumber(), each.isNumber) << each.address;
        EXPECT_EQ(at(each.address).toText(), each.text) << each.address;
    }
}

TEST_F(ExcelCells, LeavesWhatATableDoesNotReachAndCutsATableThatIsTooLarge) {
    write("J1:K2", "old");
    write("J1:K2", support::tableOf({{"new"}}));
    EXPECT_EQ(at("J1").toText() + at("K2").toText(), "newold");
    write("J1", Table(5, 5));
    EXPECT_TRUE(at("J1").isBlank());
    EXPECT_EQ(at("K1").toText(), "old");
}

TEST_F(ExcelCells, MovesABlockInAsManyCallsAsItHasColumnsAtMost) {
    const auto callsForRows = [&](std::size_t rows) {
        Table block(rows, 8);
        for (std::size_t row = 1; row <= rows; ++row) {
            block.at(row, 1) = "text";
            block.at(row, 5) = row % 3 == 0;
            block.at(row, 7) = static_cast<double>(row);
        }
        const Value range = data.get("Range", "J1:Q" + std::to_string(rows));
        // A first writing sets formats run by run; from then on there are none to set.
        range.put("Value", block);
        const auto writing = callsOf([&] { range.put("Value", block); });
        const auto reading = callsOf([&] { static_cast<void>(range.get("Value")); });
        return std::pair(writing, reading);
    };
    const auto [writingFew, readingFew] = callsForRows(10);
    const auto [writingMany, readingMany] = callsForRows(400);
    EXPECT_LE(writingMany, writingFew + 2);
    EXPECT_LE(readingMany, readingFew + 2);
    EXPECT_LE(readingMany, 40U);
}

TEST_F(ExcelCells, ListsNamesAsExcelDoes) {
    // As LibreOffice calls Excel's own in older files.
    const auto names = property<uno::Reference<css::sheet::XNamedRanges>>(model(), "NamedRanges");
    for (const char* const name : {"Excel_BuiltIn__FilterDatabase", "_xlnm__FilterDatabase"})
        names->addNewByName(rtl::OUString::createFromAscii(name), "$Data.$B$3", {}, 0);
    EXPECT_EQ(namesIn(book.get("Names")),
              (Names{"_FilterDatabase", "Columns", "OffSheet", "Data!Own", "Wide!Print_Area",
                     "Wide!Print_Titles", "Relative", "Total"}));
    const auto addressOf = [&](const char* name) {
        return book.get("Names").get("Item", name).get("RefersToRange").get("Address").toText();
    };
    EXPECT_EQ(addressOf("Columns"), "$A:$B");
    EXPECT_EQ(addressOf("Relative"), "$B$2");
    EXPECT_EQ(addressOf("Wide!Print_Titles"), "$1:$2");
    EXPECT_EQ(addressOf("_FilterDatabase"), "$B$3");
    EXPECT_EQ(failureOf([&] { addressOf("OffSheet"); }), refused);
    EXPECT_EQ(failureOf([&] { book.get("Names").call("Add", "loc1", "=Data!$A$1"); }), refused);
}

TEST_F(ExcelCells, LooksForANameOnceAndFindsWhatBearsItNow) {
    const Object name = book.get("Names").call("Add", "Moves", "=Data!$A$1").toObject();
    const auto address = [&] { return name.get("RefersToRange").get("Address").toText(); };
    EXPECT_EQ(address(), "$A$1");
    EXPECT_LE(callsOf([&] { name.get("RefersToRange"); }), 2U) << "its contents, its sheet";
    const auto names = property<uno::Reference<css::sheet::XNamedRanges>>(model(), "NamedRanges");
    names->removeByName("Moves");
    EXPECT_NE(failureOf([&] { name.get("RefersToRange"); }), 0);
    names->addNewByName("Moves", "$Data.$B$2", {}, 0);
    EXPECT_EQ(address(), "$B$2");
}

}  // namespace

}  // namespace live
