#include <algorithm>

#include "contract/contract_test.h"

namespace contract {

namespace {

/// A name, and where it leads; no address for one that refers to no range.
struct NameCase {
    const char* name;
    const char* sheet;
    const char* address;
};

const std::vector<NameCase> ranges = {
    {"Total", "Sales", "$B$2:$C$5"},
    {"OneCell", "Sales", "$B$2"},
    {"TwoAreas", "Sales", "$A$1:$A$5,$C$1:$C$5"},
    {"Quoted", "Data, 2026", "$A$1:$B$2"},
    {"OnHidden", "Hidden", "$A$1"},
    {"Concealed", "Sales", "$A$1"},
    {"Sales!Local", "Sales", "$A$2:$B$3"},
    {"'Data, 2026'!Local", "Data, 2026", "$A$1"},
    {"'Data, 2026'!Own", "Data, 2026", "$B$2"},
    {"Sales!Print_Area", "Sales", "$A$1:$J$20"},
};

TEST_F(ExcelContract, ListsTheNamesOfTheWorkbookAndThoseOfItsSheets) {
    auto names = namesIn(book.get("Names"));
    std::vector<std::string> expected = {"Constant", "Formula", "Broken", "Elsewhere"};
    for (const NameCase& one : ranges) expected.emplace_back(one.name);
    std::sort(names.begin(), names.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(names, expected);
}

TEST_F(ExcelContract, LeadsFromANameToItsRange) {
    for (const auto& [name, sheetName, address] : ranges) {
        const Value found = book.get("Names").get("Item", name).get("RefersToRange");
        EXPECT_EQ(found.toObject().typeName(), "Range") << name;
        expectMembers(found, {{"Address", address},
                              {"Worksheet.Name", sheetName},
                              {"Worksheet.Parent.Name", "contract-book.xlsx"}});
    }
    EXPECT_EQ(failureOf([&] { sheet("Sales").get("Range", "Nonesuch"); }), refused);
    // A name of a sheet is found by its bare name where no other has it.
    expectMembers(book.get("Names").get("Item", "own"), {{"RefersToRange.Address", "$B$2"}});
    EXPECT_EQ(range("Data, 2026", "Own").get("Address").toText(), "$B$2");
    for (const char* name : {"Constant", "Formula", "Broken", "Elsewhere"}) {
        const Value found = book.get("Names").get("Item", name);
        EXPECT_EQ(failureOf([&] { found.get("RefersToRange"); }), refused) << name;
    }
}

TEST_F(ExcelContract, FindsASheetsOwnNameAheadOfTheWorkbooks) {
    book.get("Names").call("Add", "Local", "=Types!$C$3");
    struct Case {
        const char* active;
        const char* sheet;
        const char* ofSheet;   ///< Sheets(sheet).Range("Local"); null: on another sheet
        const char* ofActive;  ///< Names("Local")
    };
    const std::vector<Case> cases = {
        {"Sales", "Sales", "$A$2:$B$3", "$A$2:$B$3"}, {"Sales", "Data, 2026", "$A$1", "$A$2:$B$3"},
        {"Data, 2026", "Types", "$C$3", "$A$1"},      {"Types", "Sales", "$A$2:$B$3", "$C$3"},
        {"Locked", "Locked", nullptr, "$C$3"},
    };
    for (const auto& [active, sheetName, ofSheet, ofActive] : cases) {
        sheet(active).call("Activate");
        if (ofSheet == nullptr) {
            EXPECT_EQ(failureOf([&, &s = sheetName] { sheet(s).get("Range", "Local"); }), refused);
        } else {
            EXPECT_EQ(range(sheetName, "Local").get("Address").toText(), ofSheet) << active;
        }
        EXPECT_EQ(
            book.get("Names").get("Item", "Local").get("RefersToRange").get("Address").toText(),
            ofActive)
            << active;
    }
}

TEST_F(ExcelContract, ListsNamesThatExcelKeepsForItself) {
    const auto before = namesIn(book.get("Names"));
    book.get("Names").call("Add", "Sales!Print_Titles", "=Sales!$1:$1");
    EXPECT_EQ(namesIn(book.get("Names")).size(), before.size() + 1);
    EXPECT_EQ(range("Sales", "Print_Titles").get("Address").toText(), "$1:$1");
}

TEST_F(ExcelContract, CountsTheAreasOfARange) {
    expectMembers(range("Sales", "Total"), {{"Areas.Count", 1}});
    const Value areas = range("Sales", "TwoAreas").get("Areas");
    EXPECT_EQ(areas.get("Count").toLong(), 2);
    EXPECT_EQ(areas.get("Item", 2).get("Address").toText(), "$C$1:$C$5");
}

TEST_F(ExcelContract, DefinesNamesInRowAndColumnNotation) {
    const Value names = book.get("Names");
    names.call("Add", arg("Name", "Columns"), arg("RefersToR1C1", "=Types!C1:C8"));
    names.call("Add", arg("Name", "Block"), arg("RefersToR1C1", "='Data, 2026'!R23C15:R30C22"));
    expectMembers(names.get("Item", "Columns"), {{"RefersToRange.Address", "$A:$H"}});
    expectMembers(names.get("Item", "Block"), {{"RefersToRange.Address", "$O$23:$V$30"},
                                               {"RefersToRange.Worksheet.Name", "Data, 2026"}});
    for (const char* formula : {"=42", "no cells", "=SUM(Sales!$A$1)"})
        EXPECT_EQ(failureOf([&] { names.call("Add", "Other", formula); }), refused) << formula;
    for (const char* name : {"", "A1", "loc1", "two words", "7th"})
        EXPECT_EQ(failureOf([&] { names.call("Add", name, "=Sales!$A$1"); }), refused) << name;
}

TEST_F(ExcelContract, HidesANameAndGivesOneAnotherMeaning) {
    const Value names = book.get("Names");
    EXPECT_FALSE(names.get("Item", "Concealed").get("Visible").toBool());
    names.call("Add", arg("Name", "Unseen"), arg("RefersTo", "=Sales!$A$1"), arg("Visible", false));
    EXPECT_FALSE(names.get("Item", "Unseen").get("Visible").toBool());
    names.call("Add", "Unseen", "=Types!$B$2");
    expectMembers(names.get("Item", "Unseen"),
                  {{"Visible", true}, {"RefersToRange.Address", "$B$2"}});
    sheet("Data, 2026").put("Name", "Renamed");
    expectMembers(names.get("Item", "Quoted"), {{"RefersToRange.Worksheet.Name", "Renamed"}});
}

}  // namespace

}  // namespace contract
