#include "destinations/image_files.h"
#include "destinations/selection_to_image.h"
#include "files_stage.h"
#include "support/png_file.h"

namespace {

using destinations::FileNames;
using destinations::ImageFileOptions;
using session::ImageFormat;
using stage::FilesStage;
using stage::ItemKind;
using stage::Names;

constexpr const char* folder = "MurvaneImages";

class ImageFiles : public FilesStage {
protected:
    void exportRows(ImageFileOptions options = {}) {
        if (options.folder.empty()) options.folder = destinations::defaultImageFolder(session);
        auto all = batch();
        static_cast<void>(destinations::ExportRowsToImageFiles(all, options));
    }
};

TEST_F(ImageFiles, HaveNamesThatStayInTheFolderAndAreTheirOwn) {
    const std::string longName(255, 'x');
    const std::pair<std::string, std::string> cases[] = {
        {"Chart 1", "Chart 1-Sales.png"},
        {"chart 1", "chart 1-Sales (2).png"},
        {"../../etc/passwd", "_._.._etc_passwd-Sales.png"},
        {"..", "_.-Sales.png"},
        {"a\nb:c?\"d\"<script>", "a_b_c__d__script_-Sales.png"},
        {".hidden", "_hidden-Sales.png"},
        {"Umsätze 📈", "Umsätze 📈-Sales.png"},
        {longName, std::string(240, 'x') + ".png"},
        {longName + "y", std::string(240, 'x') + " (2).png"},
        {std::string(239, 'x') + "ä", std::string(239, 'x') + ".png"},
    };
    for (const auto& [name, file] : cases) addChart(name, "Sales");
    const auto planned = destinations::plannedImageFiles(
        session, list, {.folder = destinations::defaultImageFolder(session)});
    ASSERT_EQ(planned.size(), std::size(cases));
    for (std::size_t i = 0; i < planned.size(); ++i)
        EXPECT_EQ(planned[i], host.home.file(folder) + "/" + cases[i].second) << i;
    exportRows();
    EXPECT_EQ(filesIn(folder).size(), std::size(cases));
    EXPECT_EQ(host.home.names(), std::set<std::string>{folder});
}

TEST_F(ImageFiles, AreNumberedByRowAndGoOnAfterAnItemThatFails) {
    addChart("Small", "Sales");
    add(ItemKind::Chart, "Gone", "Sales");
    book.sheet("Sales").define("Total", "A1:B2");
    add(ItemKind::Range, "Total", "Sales");
    book.sheet("Hidden").chart("Unseen").hide();
    add(ItemKind::Chart, "Unseen", "Hidden");
    addChart("Unchecked", "Sales");
    list.rows.back().checked = false;
    book.chartSheet("Trend").size(360, 240);
    add(ItemKind::ChartSheet, "", "Trend");
    exportRows({.names = FileNames::Numerator});
    EXPECT_EQ(filesIn(folder), (Names{"1.png", "3.png", "6.png"}));
    EXPECT_EQ(failed, Names{"Gone"});
    const auto widthOf = [&](const char* name) {
        return support::pngSizeOf(host.home.file(folder) + "/" + name).widthPoints();
    };
    EXPECT_NEAR(widthOf("1.png"), 240, 1);
    EXPECT_NEAR(widthOf("3.png"), 96, 1);
    EXPECT_NEAR(widthOf("6.png"), 360, 1);
}

TEST_F(ImageFiles, TakeThePlaceOfOthersOnlyWhereTheyMay) {
    addChart("A", "S");
    exportRows({.format = ImageFormat::Jpeg});
    exportRows({.format = ImageFormat::Jpeg});
    exportRows({.format = ImageFormat::Jpeg, .replaces = true});
    EXPECT_EQ(filesIn(folder), (Names{"A-S (2).jpg", "A-S.jpg"}));
}

TEST_F(ImageFiles, GoBesideAFolderOfTheirName) {
    addChart("A", "S");
    std::filesystem::create_directories(host.home.file(folder) + std::string("/A-S.png"));
    const auto planned = destinations::plannedImageFiles(
        session, list, {.folder = destinations::defaultImageFolder(session)});
    EXPECT_EQ(planned, Names{host.home.file(folder) + "/A-S (2).png"});
    exportRows({.replaces = true});
    EXPECT_EQ(filesIn(folder), (Names{"A-S (2).png", "A-S.png"}));
}

TEST_F(ImageFiles, EndWithTheFirstThatCantBeWritten) {
    addChart("A", "S");
    addChart("B", "S");
    host.home.write("file", "x");
    EXPECT_EQ(support::failureOf([&] { exportRows({.folder = host.home.file("file")}); }), 75);
    EXPECT_TRUE(failed.empty());
}

TEST_F(ImageFiles, HoldTheSelectionIfAPictureCanBeTakenOfIt) {
    auto& sales = book.sheet("Sales").chart("Chart 1");
    book.chartSheet("Trend").size(360, 240);
    const std::pair<std::function<void()>, double> cases[] = {
        {[&] { suite.excel().selectRange("B2:D5"); }, 144},
        {[&] { sales.findChart("Chart 1")->select(); }, 240},
        {[&] { book.activateSheet("Trend"); }, 360},
        {[&] { suite.excel().selectRange("A1,C3"); }, 0},
        {[&] { book.select({}); }, 0},
    };
    for (const auto& [select, width] : cases) {
        book.activateSheet("Sales");
        std::filesystem::remove_all(host.home.file(folder));
        host.boxes.clear();
        select();
        destinations::SaveSelectionAsImage(session);
        ASSERT_EQ(host.boxes.size(), 1U);
        const std::string file = host.home.file(folder) + "/Murvane.png";
        if (width == 0) {
            EXPECT_TRUE(host.boxes.front().starts_with("Nothing was saved")) << host.boxes.front();
            EXPECT_TRUE(host.home.names().empty());
        } else {
            EXPECT_EQ(host.boxes.front(), "Selection saved as " + file);
            EXPECT_NEAR(support::pngSizeOf(file).widthPoints(), width, 1);
        }
    }
}

}  // namespace
