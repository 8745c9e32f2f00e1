#include <filesystem>
#include <fstream>

#include "contract/contract_test.h"
#include "support/vector_file.h"

namespace contract {

namespace {

using support::textOf;

constexpr std::int32_t aRange = 4;
constexpr std::int32_t aChart = 5;

TEST_F(ExcelContract, PublishesRangesAndChartsToAPageThatGrowsAtItsEnd) {
    const std::string file = environment().temporaryFile("page.html");
    const bool wasSaved = book.get("Saved").toBool();
    const Object records = book.get("PublishObjects").toObject();
    const auto add = [&](std::int32_t type, const char* sheetName, const char* source,
                         const char* title = "") {
        return records.call("Add", type, file, sheetName, source, 0, "", title).toObject();
    };
    const Object first = add(aRange, "Sales", "$A$1:$B$3", "2026 <draft>");
    const Object second = add(aChart, "Overview", "");
    const Object third = add(aChart, "Sales", "Trend");
    first.call("Publish", true);
    second.call("Publish", false);
    second.put("AutoRepublish", false);
    const std::string page = textOf(file);
    EXPECT_TRUE(page.starts_with("<!DOCTYPE html>") && page.ends_with("</body>\n</html>\n"));
    const std::size_t title = page.find("<h2>2026 &lt;draft&gt;</h2>");
    EXPECT_LT(title, page.find("Item 2"));
    EXPECT_LT(page.find("Item 2"), page.find("alt=\"Overview\""));
    EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(file).parent_path() / "page_files" /
                                        "image001.png"));
    third.call("Publish", true);
    EXPECT_EQ(textOf(file).find("Item 2"), std::string::npos) << "made anew";
    EXPECT_NE(textOf(file).find("image002.png"), std::string::npos) << "the first is still there";
    EXPECT_EQ(book.get("Saved").toBool(), wasSaved);
    first.call("Delete");
    EXPECT_EQ(records.get("Count").toLong(), 2);
    for (const Object& record : {second, third}) record.call("Delete");
    std::filesystem::remove_all(std::filesystem::path(file).parent_path() / "page_files");
}

TEST_F(ExcelContract, RefusesToPublishWhatIsNotThere) {
    const std::string file = environment().temporaryFile("none.html");
    const Object records = book.get("PublishObjects").toObject();
    const std::tuple<std::int32_t, const char*, const char*> cases[] = {
        {aRange, "Nonesuch", "A1"},    {aRange, "Sales", "Nonesuch"}, {aRange, "Sales", "A1,C3"},
        {aRange, "Sales", "TwoAreas"}, {aChart, "Sales", "Nonesuch"}, {aRange, "Sales", "Z:Z"},
    };
    for (const auto& [type, sheetName, source] : cases) {
        const Value record = records.call("Add", type, file, sheetName, source, 0, "", "");
        EXPECT_EQ(failureOf([&] { record.call("Publish", false); }), refused) << source;
        EXPECT_EQ(failureOf([&] { record.toObject().put("AutoRepublish", true); }), refused);
        record.call("Delete");
    }
    EXPECT_FALSE(std::filesystem::exists(file)) << "no page of nothing";
    EXPECT_EQ(failureOf([&] { records.call("Add", 1, file); }), refused);
    const std::string other = environment().temporaryFile("other.txt");
    std::ofstream(other) << "no page";
    const Value record = records.call("Add", aRange, other, "Sales", "A1", 0, "", "");
    EXPECT_EQ(failureOf([&] { record.call("Publish", false); }), refused);
    EXPECT_EQ(textOf(other), "no page");
    record.call("Delete");
    const Value nowhere =
        records.call("Add", aRange, "/nowhere/at/all.html", "Sales", "A1", 0, "", "");
    EXPECT_EQ(failureOf([&] { nowhere.call("Publish", true); }), 75);
    nowhere.call("Delete");
    EXPECT_EQ(records.get("Count").toLong(), 0);
}

}  // namespace

}  // namespace contract
