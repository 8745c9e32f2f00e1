#include <cmath>
#include <fstream>
#include <limits>

#include "contract/contract_test.h"
#include "support/png_file.h"
#include "support/vector_file.h"

namespace contract {

namespace {

TEST_F(PowerPointContract, InsertsAPictureBehindTheOthersAtItsNaturalSize) {
    const std::int32_t before = slide(3).get("Shapes").get("Count").toLong();
    const Object picture = addPicture(3, 240, 150);
    EXPECT_EQ(slide(3).get("Shapes").get("Count").toLong(), before + 1);
    EXPECT_NEAR(picture.get("Width").toDouble(), 240, 0.5);
    EXPECT_NEAR(picture.get("Height").toDouble(), 150, 0.5);
    EXPECT_NEAR(picture.get("Left").toDouble(), 0, 0.1);
    EXPECT_NEAR(picture.get("Top").toDouble(), 0, 0.1);
    const Value last = slide(3).get("Shapes").get("Item", before + 1);
    EXPECT_NEAR(last.get("Width").toDouble(), 240, 0.5);
}

TEST_F(PowerPointContract, ScalesAPictureByTheSideThatIsGiven) {
    static_cast<void>(addPicture(3, 200, 100));
    const Value made = slide(3).get("Shapes").call(
        "AddPicture", environment().temporaryFile("picture.png"), 0, -1, 10, 20, 50, -1);
    EXPECT_NEAR(made.get("Height").toDouble(), 25, 0.1);
    EXPECT_NEAR(made.get("Left").toDouble(), 10, 0.1);
    EXPECT_NEAR(made.get("Top").toDouble(), 20, 0.1);
}

TEST_F(PowerPointContract, TakesVectorsInTheirOwnSize) {
    for (const auto kind : {office::PictureKind::Svg, office::PictureKind::Emf}) {
        const std::string file =
            environment().temporaryFile(std::string("vectors") + office::endingOf(kind));
        support::writeBytes(file, support::pictureOfPoints(kind, 200, 90));
        const Value made = slide(3).get("Shapes").call("AddPicture", file, 0, -1, 10, 20, -1, -1);
        EXPECT_NEAR(made.get("Width").toDouble(), 200, 0.3) << file;
        EXPECT_NEAR(made.get("Height").toDouble(), 90, 0.3) << file;
        EXPECT_NEAR(made.get("Left").toDouble(), 10, 0.1);
        made.put("Width", 100);
        EXPECT_NEAR(made.get("Height").toDouble(), 45, 0.3) << file;
    }
}

TEST_F(PowerPointContract, FailsOnAPictureThatIsntThereOrThatNeedsMore) {
    const std::string outsider = environment().temporaryFile("outsider.svg");
    const std::string svg = support::svgPictureOfPoints(200, 90);
    std::ofstream(outsider) << svg.substr(0, svg.find("</svg>"))
                            << R"(<image href="file:///etc/hostname"/></svg>)";
    const std::int32_t before = slide(3).get("Shapes").get("Count").toLong();
    for (const std::string& file : {std::string("/nonexistent.png"), outsider})
        EXPECT_NE(failureOf([&] {
                      slide(3).get("Shapes").call("AddPicture", file, 0, -1, 0, 0, -1, -1);
                  }),
                  0)
            << file;
    EXPECT_EQ(slide(3).get("Shapes").get("Count").toLong(), before);
}

TEST_F(PowerPointContract, SizesEachSideAloneWithoutTheAspectLock) {
    const Object picture = addPicture(3, 240, 120);
    picture.put("LockAspectRatio", 0);
    EXPECT_EQ(picture.get("LockAspectRatio").toLong(), 0);
    picture.put("Width", 100);
    EXPECT_NEAR(picture.get("Height").toDouble(), 120, 0.5);
    picture.put("Height", 30);
    EXPECT_NEAR(picture.get("Width").toDouble(), 100, 0.5);
    picture.put("Left", 12.5);
    picture.put("Top", 40);
    EXPECT_NEAR(picture.get("Left").toDouble(), 12.5, 0.1);
    EXPECT_NEAR(picture.get("Top").toDouble(), 40, 0.1);
}

TEST_F(PowerPointContract, KeepsTheProportionsUnderTheAspectLock) {
    const Object picture = addPicture(3, 240, 120);
    picture.put("LockAspectRatio", true);
    EXPECT_EQ(picture.get("LockAspectRatio").toLong(), -1);
    picture.put("Width", 120);
    EXPECT_NEAR(picture.get("Height").toDouble(), 60, 0.5);
    picture.put("Height", 90);
    EXPECT_NEAR(picture.get("Width").toDouble(), 180, 0.5);
}

TEST_F(PowerPointContract, RefusesASizeThatWouldHideTheShape) {
    const Object picture = addPicture(3, 240, 120);
    constexpr double endless = std::numeric_limits<double>::infinity();
    for (const double size : {0.0, -12.0, 1e9, endless, std::nan("")}) {
        EXPECT_EQ(failureOf([&] { picture.put("Width", size); }), 5) << size;
        EXPECT_EQ(failureOf([&] { picture.put("Height", size); }), 5) << size;
    }
    EXPECT_EQ(failureOf([&] { picture.put("Left", endless); }), 5);
    EXPECT_NEAR(picture.get("Width").toDouble(), 240, 0.5);
    EXPECT_NEAR(picture.get("Height").toDouble(), 120, 0.5);
    picture.put("LockAspectRatio", true);
    picture.put("Height", 0.001);
    EXPECT_GT(picture.get("Width").toDouble(), 0);
    EXPECT_GT(picture.get("Height").toDouble(), 0);
}

TEST_F(PowerPointContract, ComesToTheSlideOfAShapeThatIsSelectedAndStaysThere) {
    goTo(2);
    addPicture(3, 50, 50).call("Select");
    EXPECT_EQ(selection().get("SlideRange").get("SlideIndex").toLong(), 3);
    selection().call("Unselect");
    EXPECT_EQ(selection().get("SlideRange").get("SlideIndex").toLong(), 3)
        << "the slide in view is still the one that an export works on";
}

TEST_F(PowerPointContract, NamesAShapeAndDescribesIt) {
    const Object picture = addPicture(3, 50, 50);
    picture.put("Name", "Chart 1");
    picture.put("AlternativeText", "Umsätze by item");
    const Value shapes = slide(3).get("Shapes");
    const std::int32_t count = shapes.get("Count").toLong();
    expectMembers(shapes.get("Item", count),
                  {{"Name", "Chart 1"}, {"AlternativeText", "Umsätze by item"}});
    EXPECT_EQ(failureOf([&] { shapes.get("Item", count + 1); }), subscriptOutOfRange);
}

/// The road of the source line.
TEST_F(PowerPointContract, GrowsALabelWithItsTextAndKeepsItsPlace) {
    goTo(4);
    const Value label =
        selection().get("SlideRange").get("Shapes").call("AddLabel", 1, 20.25, 518, 8.5, 28.875);
    label.call("Select");
    label.get("TextFrame").put("WordWrap", false);
    const Value text = label.get("TextFrame").get("TextRange");
    text.put("Text", "/documents/of the group/contract-book.xlsx");
    text.get("Font").put("Name", "Tahoma");
    text.get("Font").put("Size", 10);
    text.get("Font").get("Color").put("RGB", 178 + 178 * 256 + 178 * 65536);
    selection().call("Unselect");

    const Value made = slide(4).get("Shapes").get("Item", 1);
    const Value range = made.get("TextFrame").get("TextRange");
    EXPECT_EQ(range.get("Text").toText(), "/documents/of the group/contract-book.xlsx");
    EXPECT_EQ(range.get("Font").get("Name").toText(), "Tahoma");
    EXPECT_NEAR(range.get("Font").get("Size").toDouble(), 10, 0.1);
    EXPECT_EQ(range.get("Font").get("Color").get("RGB").toLong(), 0xB2B2B2);
    EXPECT_EQ(made.get("TextFrame").get("WordWrap").toLong(), 0);
    EXPECT_GT(made.get("Width").toDouble(), 100);
    EXPECT_NEAR(made.get("Left").toDouble(), 20.25, 1);
    EXPECT_NEAR(made.get("Top").toDouble(), 518, 1);
}

struct Setting {
    const char* part;
    const char* member;
    Value value;
};

TEST_F(PowerPointContract, AppliesEachSettingOfAStyle) {
    const std::vector<Setting> settings = {
        {"Shadow", "Visible", -1},      {"Shadow", "Blur", 25},         {"Shadow", "Size", 100},
        {"Shadow", "OffsetX", 8.12132}, {"Shadow", "OffsetY", 8.12132}, {"Reflection", "Offset", 1},
        {"Reflection", "Size", 20},
    };
    const Object picture = addPicture(3, 240, 120);
    for (const auto& [part, member, value] : settings) {
        picture.get(part).put(member, value);
        EXPECT_NEAR(picture.get(part).get(member).toDouble(), value.toDouble(), 0.1)
            << part << "." << member;
    }
    EXPECT_EQ(picture.get("Shadow").get("Visible").toLong(), -1);
    picture.get("Shadow").get("ForeColor").put("RGB", 0x336699);
    EXPECT_EQ(picture.get("Shadow").get("ForeColor").get("RGB").toLong(), 0x336699);
}

TEST_F(PowerPointContract, RefusesSettingsThatNoShapeHas) {
    const Object picture = addPicture(3, 240, 120);
    picture.put("AutoShapeType", 5);
    EXPECT_EQ(failureOf([&] { picture.get("Adjustments").put("Item", 1, std::nan("")); }), 5);
    EXPECT_EQ(failureOf([&] { picture.get("Adjustments").put("Item", 2, 0.1); }),
              subscriptOutOfRange);
    const std::vector<Setting> settings = {
        {"Shadow", "Blur", -1},      {"Shadow", "OffsetX", std::nan("")}, {"Shadow", "Size", 1e9},
        {"Reflection", "Size", 101}, {"Reflection", "Offset", -1},
    };
    for (const auto& [part, member, value] : settings)
        EXPECT_EQ(failureOf([&, &p = part, &m = member, &v = value] { picture.get(p).put(m, v); }),
                  5)
            << part << "." << member;
    EXPECT_EQ(picture.get("Shadow").get("Visible").toLong(), 0);
    const Value text = slide(3).get("Shapes").get("Title").get("TextFrame").get("TextRange");
    for (const double size : {0.0, -10.0, 4001.0, std::nan("")})
        EXPECT_EQ(failureOf([&] { text.get("Font").put("Size", size); }), 5) << size;
}

TEST_F(PowerPointContract, RoundsTheCornersOfAPicture) {
    const Object picture = addPicture(3, 240, 120);
    EXPECT_NE(failureOf([&] { picture.get("Adjustments").put("Item", 1, 0.03); }), 0)
        << "a plain picture has nothing to adjust";
    EXPECT_EQ(failureOf([&] { picture.put("AutoShapeType", 77); }), 5);
    picture.put("AutoShapeType", 5);
    EXPECT_EQ(picture.get("AutoShapeType").toLong(), 5);
    picture.get("Adjustments").put("Item", 1, 0.05);
    EXPECT_NEAR(picture.get("Adjustments").get("Item", 1).toDouble(), 0.05, 0.001);
    EXPECT_NEAR(picture.get("Width").toDouble(), 240, 0.5);
    EXPECT_NEAR(picture.get("Height").toDouble(), 120, 0.5);
}

}  // namespace

}  // namespace contract
