#include "export_stage.h"
#include "powerpoint/picture_styles.h"

namespace {

using office_double::Shape;
namespace style = powerpoint::style;

class PictureStyle : public stage::ExportStage {
protected:
    Shape& newPicture() {
        return deck.addSlide().shape(Shape::Kind::Picture, "Picture", {0, 0, 100, 100});
    }
};

TEST_F(PictureStyle, GivesEachLookItsShadowReflectionAndCorners) {
    struct Case {
        std::int16_t style;
        bool hasShadow;
        int reflection;
        int outline;
    };
    constexpr int rectangle = 1;
    constexpr int rounded = 5;
    for (const Case& it :
         {Case{style::none, false, 0, rectangle}, Case{style::shadow, true, 0, rectangle},
          Case{style::roundedCorners, false, 0, rounded},
          Case{style::reflection, true, 20, rectangle},
          Case{style::reflectionRounded, true, 20, rounded}, Case{7, false, 0, rectangle}}) {
        Shape& picture = newPicture();
        const office::Object shape = picture.handle();
        powerpoint::ApplyPictureStyle(it.style, shape);
        EXPECT_EQ(picture.hasShadow(), it.hasShadow) << it.style;
        EXPECT_EQ(shape.get("Reflection").get("Size").toDouble(), it.reflection) << it.style;
        EXPECT_EQ(shape.get("AutoShapeType").toLong(), it.outline) << it.style;
        if (it.outline == rounded) {
            EXPECT_DOUBLE_EQ(shape.get("Adjustments").get("Item", 1).toDouble(), 0.05);
        }
    }
}

TEST_F(PictureStyle, GoesOnWhereTheShapeRefusesASetting) {
    Shape& picture = newPicture();
    suite.failures().failAlways("ColorFormat.RGB");
    suite.failures().fail("ShadowFormat.Size");
    powerpoint::ApplyPictureStyle(style::shadow, picture.handle());
    EXPECT_TRUE(picture.hasShadow());
    EXPECT_DOUBLE_EQ(picture.handle().get("Shadow").get("OffsetY").toDouble(), 8.12132);
}

}  // namespace
