#include "export_stage.h"
#include "powerpoint/picture_styles.h"

namespace {

using office_double::Shape;
using stage::ExportStage;
namespace style = powerpoint::style;

struct StyleCase {
    std::int16_t style;
    std::vector<std::string> settings;
};

class PictureStyleTest : public ExportStage, public testing::WithParamInterface<StyleCase> {
protected:
    PictureStyleTest() { deck.addSlides(1); }

    std::vector<std::string> settingsMade() {
        std::vector<std::string> made;
        for (const auto& call : suite.log().calls()) {
            if (call.kind == support::CallKind::Put) made.push_back(call.text());
        }
        return made;
    }
};

TEST_P(PictureStyleTest, MakesItsSettingsInTheirOrder) {
    deck.slide(1).shape(Shape::Kind::Picture, "Picture", {0, 0, 100, 100});
    session.PictureStyle = GetParam().style;
    powerpoint::ApplyPictureStyle(session, 2);
    EXPECT_EQ(settingsMade(), GetParam().settings);
}

INSTANTIATE_TEST_SUITE_P(
    Styles, PictureStyleTest,
    testing::Values(
        StyleCase{style::none, {}},
        StyleCase{style::shadowAllAround,
                  {"ShadowFormat.Blur = 25", "ShadowFormat.Size = 100", "ColorFormat.RGB = 0"}},
        StyleCase{style::shadow,
                  {"ShadowFormat.Visible = 1", "ColorFormat.RGB = 0", "ShadowFormat.Size = 100",
                   "ShadowFormat.OffsetX = 8.12132", "ShadowFormat.OffsetY = 8.12132"}},
        StyleCase{style::roundedCorners, {"Shape.AutoShapeType = 5", "Adjustments.Item(1) = 0.05"}},
        StyleCase{style::reflection,
                  {"ReflectionFormat.Offset = 1", "ReflectionFormat.Size = 20",
                   "Adjustments.Item(1) = 0.03", "ShadowFormat.Visible = 1"}},
        StyleCase{style::reflectionRounded,
                  {"ReflectionFormat.Offset = 1", "ReflectionFormat.Size = 20",
                   "Adjustments.Item(1) = 0.03", "ShadowFormat.Visible = 1",
                   "Shape.AutoShapeType = 5", "Adjustments.Item(1) = 0.05"}},
        StyleCase{7, {}}));

TEST_F(PictureStyleTest, RoundsTheCornersByTheSecondAdjustment) {
    Shape& picture = deck.slide(1).shape(Shape::Kind::Picture, "Picture", {0, 0, 100, 100});
    session.PictureStyle = style::reflectionRounded;
    powerpoint::ApplyPictureStyle(session, 2);
    EXPECT_DOUBLE_EQ(picture.handle().get("Adjustments").get("Item", 1).toDouble(), 0.05);
}

TEST_F(PictureStyleTest, ARefusedSettingDoesNotKeepTheRestFromTheShape) {
    Shape& picture = deck.slide(1).shape(Shape::Kind::Picture, "Picture", {0, 0, 100, 100});
    session.PictureStyle = style::shadow;
    suite.failures().failAlways("ColorFormat.RGB");
    suite.failures().fail("ShadowFormat.Size");
    powerpoint::ApplyPictureStyle(session, 2);
    EXPECT_TRUE(picture.hasShadow());
    EXPECT_DOUBLE_EQ(picture.handle().get("Shadow").get("OffsetY").toDouble(), 8.12132);
}

TEST_F(PictureStyleTest, AShapeThatIsNotThereIsNoFailure) {
    session.PictureStyle = style::roundedCorners;
    EXPECT_NO_THROW(powerpoint::ApplyPictureStyle(session, 9));
}

}  // namespace
