#include <algorithm>

#include "contract/contract_test.h"

namespace contract {

namespace {

class PasteContract : public PowerPointContract {
protected:
    void SetUp() override {
        PowerPointContract::SetUp();
        suite().clearClipboard();
    }
};

/// A picture has nothing behind it that could be embedded or linked. For charts and cells a suite
/// may refuse that; then nothing is on the slide.
TEST_F(PasteContract, PutsWhatWasCopiedOnTheSlideInEachForm) {
    constexpr std::int32_t png = 6;
    constexpr std::int32_t embedded = 10;
    const Value shapes = slide(3).get("Shapes");
    const double slideWidth = deck.get("PageSetup").get("SlideWidth").toDouble();
    const auto paste = [&](std::int32_t type, bool link) {
        shapes.call("PasteSpecial", arg("DataType", type), arg("Link", link));
    };
    for (const char* what : {"chart", "cells", "picture"}) {
        for (const auto& [type, link] :
             {std::pair(0, false), {png, false}, {embedded, false}, {0, true}}) {
            SCOPED_TRACE(std::string(what) + " " + std::to_string(type) + (link ? " linked" : ""));
            const std::int32_t before = shapes.get("Count").toLong();
            copyItem(what);
            const std::int32_t failure =
                failureOf([&, &type = type, &link = link] { paste(type, link); });
            if (const bool isPlain = type != embedded && !link; isPlain || *what == 'p')
                EXPECT_EQ(failure, isPlain ? 0 : refused);
            else
                EXPECT_TRUE(failure == 0 || failure == refused) << failure;
            ASSERT_EQ(shapes.get("Count").toLong(), before + (failure == 0 ? 1 : 0));
            if (failure != 0) continue;
            const Value made = shapes.get("Item", before + 1);
            EXPECT_EQ(namesIn(shapes).back(), made.get("Name").toText());
            EXPECT_GE(made.get("Left").toDouble(), 0);
            EXPECT_GT(made.get("Width").toDouble(), 100);
            EXPECT_LE(made.get("Left").toDouble() + made.get("Width").toDouble(), slideWidth);
            EXPECT_GT(made.get("Height").toDouble(), 30);
            made.put("Top", 100);
            made.put("AlternativeText", "Figures");
            EXPECT_NEAR(made.get("Top").toDouble(), 100, 0.1);
            EXPECT_EQ(made.get("AlternativeText").toText(), "Figures");
        }
    }
    auto names = namesIn(shapes);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end()) << "a name twice";
}

TEST_F(PasteContract, RefusesToPasteNothingAndWhatIsNotKnown) {
    const Value shapes = slide(3).get("Shapes");
    EXPECT_EQ(failureOf([&] { shapes.call("PasteSpecial", 0); }), refused);
    copyItem("chart");
    EXPECT_EQ(failureOf([&] { shapes.call("PasteSpecial", 99); }), 5);
}

}  // namespace

}  // namespace contract
