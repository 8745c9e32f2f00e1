#include <functional>
#include <utility>
#include <vector>

#include "contract/contract_test.h"

namespace contract {

namespace {

/// An unknown member is a failure that names class and member.
void expectNoSuchMember(const Object& object) {
    const std::string source = object.typeName() + ".Nonesuch";
    try {
        object.get("Nonesuch");
        FAIL() << source << " went through";
    } catch (const Failure& failure) {
        EXPECT_TRUE(failure.is(FailureNumber::NoSuchMember)) << source << ": " << failure.number();
        EXPECT_NE(failure.description().find(source), std::string::npos) << failure.description();
    }
    EXPECT_EQ(failureOf([&] { object.put("Nonesuch", 1); }), 438) << source;
    EXPECT_EQ(failureOf([&] { object.call("Nonesuch"); }), 438) << source;
}

TEST_F(ExcelContract, NamesClassAndMemberThatItDoesntHave) {
    for (const Object& each : {excel, sheet("Sales"), range("Sales", "A1")})
        expectNoSuchMember(each);
}

TEST_F(PowerPointContract, NamesClassAndMemberThatItDoesntHave) {
    for (const Object& each : {powerPoint, slide(1), window()}) expectNoSuchMember(each);
    EXPECT_EQ(failureOf([&] { powerPoint.put("ScreenUpdating", true); }), 438);
}

TEST_F(ExcelContract, RefusesWrongArguments) {
    const Value names = book.get("Names");
    EXPECT_EQ(failureOf([&] { names.call("Add", arg("Named", "x")); }), 448);
    EXPECT_EQ(failureOf([&] { sheet("Sales").get("Range", "A1", "B2", "C3"); }), 450);
    EXPECT_EQ(failureOf([&] { sheet("Sales").get("Columns", "B2"); }), 13);
    EXPECT_NE(failureOf([&] { sheet("Sales").get("Range", "no address"); }), 0);
    EXPECT_EQ(failureOf([&] { book.put("FullName", "x"); }), 438);
}

TEST_F(PowerPointContract, RefusesWrongArguments) {
    EXPECT_EQ(failureOf([&] { slides().call("Add", arg("Place", 1)); }), 448);
    EXPECT_NE(failureOf([&] { slide(4).get("Shapes").call("AddLabel", 1); }), 0);
    EXPECT_EQ(slide(4).get("Shapes").get("Count").toLong(), 0);
}

TEST_F(ExcelContract, CopiesAPictureOfAnythingThatIsExported) {
    using office::Sharpness;
    const Object sales = sheet("Sales");
    const std::vector<std::pair<const char*, std::function<void()>>> copies = {
        {"range", [&] { range("Sales", "A1:C3").call("Copy"); }},
        {"screen of a range", [&] { range("Sales", "A1:C3").call("CopyPicture", 1, 2); }},
        {"chart", [&] { sales.call("ChartObjects", "Trend").call("Copy"); }},
        {"chart sheet", [&] { book.get("Charts").get("Item", 1).get("ChartArea").call("Copy"); }},
    };
    for (const auto& [what, copy] : copies) {
        suite().clearClipboard();
        copy();
        EXPECT_GT(suite().clipboardPicture(Sharpness::Crisp).size(), 50U) << what;
    }
    suite().clearClipboard();
    EXPECT_TRUE(suite().clipboardPicture(Sharpness::Crisp).empty());
}

}  // namespace

}  // namespace contract
