#include <fmt/format.h>

#include "export_stage.h"

namespace {

class BatchCallsTest : public stage::ExportStage {
protected:
    BatchCallsTest() { deck.addSlides(1); }

    /// Calls into the applications for a batch of so many charts.
    std::size_t callsFor(int items) {
        auto& sheet = book.sheet(fmt::format("Sheet {}", items));
        list.rows.clear();
        for (int i = 1; i <= items; ++i) {
            // Small ones: their pictures are drawn for nobody.
            sheet.chart(fmt::format("Chart {}", i), {0, 0, 24, 15});
            add(stage::chartRow(fmt::format("Chart {}", i), fmt::format("Sheet {}", items)));
        }
        exportRows();
        return suite.log().count();
    }

    std::size_t callsAnItem() {
        const std::size_t ten = callsFor(10);
        const std::size_t twenty = callsFor(20);
        const std::size_t many = callsFor(200);
        EXPECT_EQ((twenty - ten) % 10, 0U);
        EXPECT_EQ(many - twenty, (twenty - ten) * 18);
        return (twenty - ten) / 10;
    }
};

TEST_F(BatchCallsTest, AnItemCostsTheSameNumberOfCallsHoweverManyThereAre) {
    EXPECT_LE(callsAnItem(), 28U);
}

TEST_F(BatchCallsTest, AnItemWithAllOptionsDoesSoToo) {
    options.titles = true;
    options.sourceLine = true;
    options.shadow = true;
    options.look = session::PictureLook::ShadowAllAround;
    options.placesShapes = true;
    storePlacement(0.3, 0.5, {});
    callsFor(1);  // From now on the shadow is the style.
    EXPECT_LE(callsAnItem(), 129U);
}

TEST_F(BatchCallsTest, ARowThatIsNotTakenCostsNothing) {
    const std::size_t before = callsFor(10);
    for (int i = 0; i < 100; ++i) {
        list.rows.push_back(stage::chartRow("Chart 1", "Sheet 10"));
        list.rows.back().checked = false;
    }
    exportRows();
    EXPECT_EQ(suite.log().count() - before, 0U);
}

}  // namespace
