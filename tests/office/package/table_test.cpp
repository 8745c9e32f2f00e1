#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "office/failure.h"
#include "office/package/package.h"
#include "office/package/presentation/deck_file.h"
#include "office/package/presentation/table_markup.h"
#include "office/package/xml.h"
#include "office/units.h"
#include "support/automation.h"
#include "support/copied_double.h"
#include "support/temporary_folder.h"
#include "support/written_decks.h"

namespace {

using namespace office::package;
using office::CellLine;
using office::CellLook;
using office::Object;
using office::TableLook;

TableLook tableOf(std::vector<double> widthsPt, std::vector<double> heightsPt) {
    TableLook table{std::move(widthsPt), std::move(heightsPt), {}};
    table.cells.resize(table.columnWidthsPt.size() * table.rowHeightsPt.size());
    for (CellLook& cell : table.cells) cell.fontName = "Calibri";
    return table;
}

/// The attributes of an element, in their order.
std::string saidBy(pugi::xml_node element, std::initializer_list<std::string_view> names) {
    std::string all;
    for (const pugi::xml_attribute each : element.attributes()) {
        if (std::find(names.begin(), names.end(), each.name()) != names.end())
            all += fmt::format(" {}={}", each.name(), each.value());
    }
    return all;
}

/// What is particular to a cell of a table.
std::string describedCell(pugi::xml_node cell) {
    std::string all = saidBy(cell, {"rowSpan", "gridSpan", "hMerge", "vMerge"});
    for (const pugi::xml_node paragraph : cell.child("a:txBody").children("a:p")) {
        all += " |" + std::string(paragraph.child("a:r").child("a:t").text().get()) +
               saidBy(paragraph.child("a:pPr"), {"algn"});
        if (const std::string line = paragraph.child("a:r").child("a:rPr").attribute("u").value();
            !line.empty() && line != "none")
            all += " u=" + line;
    }
    const auto properties = cell.child("a:tcPr");
    all += saidBy(properties, {"marL", "vert", "anchor"});
    for (const pugi::xml_node line : properties.children()) {
        if (line.child("a:prstDash"))
            all += fmt::format(" {}={} {} {}", line.name() + 2, line.attribute("w").value(),
                               line.attribute("cmpd").value(),
                               line.child("a:prstDash").attribute("val").value());
    }
    for (const pugi::xml_node stop : properties.child("a:gradFill").child("a:gsLst").children())
        all += fmt::format(" {}={}", stop.attribute("pos").value(),
                           stop.first_child().attribute("val").value());
    const auto fill = properties.child("a:solidFill").child("a:srgbClr");
    return all + (fill ? std::string(" fill=") + fill.attribute("val").value() : "");
}

class Table : public testing::Test {
protected:
    Object paste(const TableLook& table) {
        clipboard->copied = std::make_shared<support::CopiedDouble>(table);
        const Object shapes = slide.get("Shapes").toObject();
        shapes.call("PasteSpecial", 0);
        return shapes.get("Item", shapes.get("Count")).toObject();
    }
    /// The last table of the presentation, as it is written to a file.
    pugi::xml_node saved() {
        const std::string file = folder.file(fmt::format("table {}.pptx", ++files_));
        deck.call("SaveCopyAs", file);
        const std::string part = "/ppt/slides/slide1.xml";
        xml_ = std::make_unique<Xml>(Package::open(file).read(part), part);
        const auto tree = xml_->root().child("p:cSld").child("p:spTree");
        frame = tree.last_child();
        return tableIn(frame);
    }
    void TearDown() override { support::keepDecks(folder.path(), {}); }

    support::TemporaryFolder folder;
    office::ClipboardPtr clipboard = std::make_shared<office::Clipboard>();
    /// Each character is half as wide as its font is high, each line a quarter higher.
    Object app = powerPointOfFiles(
        {.measure = [](const std::string& words, const office::Font& font,
                       std::optional<double> widthPt) -> office::Size {
             const double wide = static_cast<double>(words.size()) * font.sizePt / 2;
             const double lines = (widthPt ? std::ceil(wide / *widthPt) : 1) +
                                  static_cast<double>(std::count(words.begin(), words.end(), '\n'));
             return {wide, lines * font.sizePt * 1.25};
         },
         .clipboard = clipboard});
    Object deck = app.get("Presentations").call("Add").toObject();
    Object slide = deck.get("Slides").call("Add", 1, powerpoint::layout::titleOnly).toObject();
    pugi::xml_node frame;

private:
    std::unique_ptr<Xml> xml_;
    int files_ = 0;
};

TEST_F(Table, LooksAsItsCellsDo) {
    TableLook look = tableOf({60, 40, 40}, {15, 15, 60});
    const CellLine thin{0.75, 0x0000FF, CellLine::Style::Solid};
    CellLook& merged = look.cells[0];
    merged.text = "<a> & b";
    merged.columns = merged.rows = 2;
    merged.left = merged.right = merged.top = merged.bottom = thin;
    merged.fill = 0x0000EE;
    for (const std::size_t covered : {1U, 3U, 4U}) look.cells[covered].isCovered = true;
    look.cells[2].text = "one\n\ntwo";
    look.cells[2].across = CellLook::Across::Right;
    look.cells[2].bottom = {1.5, 0, CellLine::Style::Double};
    look.cells[5].text = "9";
    look.cells[5].bar = {0, 0, 0, 0, true};
    look.cells[5].across = CellLook::Across::Centre;
    look.cells[5].left = {0.1, 0, CellLine::Style::Dotted};
    look.cells[5].rising = thin;
    look.cells[6].text = "up";
    look.cells[6].rotation = 90;
    look.cells[6].across = CellLook::Across::Right;
    look.cells[7].text = "down";
    look.cells[7].isUnderlined = look.cells[7].isUnderlinedTwice = true;
    look.cells[7].rotation = 270;
    look.cells[7].down = CellLook::Down::Top;
    look.cells[8].text = "in";
    look.cells[8].indentPt = 9;
    look.cells[8].bar = {0.25, 0.5, 0x0000FF, 0x00FF00};
    look.cells[8].down = CellLook::Down::Middle;
    const Object shape = paste(look);
    EXPECT_EQ(shape.get("Name").toText(), "Table 2");
    shape.put("AlternativeText", "All looks");

    const std::vector<std::string> expected = {
        " rowSpan=2 gridSpan=2 |<a> & b algn=l marL=12700 anchor=b"
        " lnL=9525 sng solid lnR=9525 sng solid lnT=9525 sng solid lnB=9525 sng solid fill=EE0000",
        " rowSpan=2 hMerge=1 | marL=12700 anchor=b lnR=9525 sng solid lnT=9525 sng solid "
        "fill=EE0000",
        " |one algn=r | algn=r |two algn=r marL=0 anchor=b lnB=19050 dbl solid",
        " gridSpan=2 vMerge=1 | marL=12700 anchor=b lnL=9525 sng solid lnB=9525 sng solid "
        "fill=EE0000",
        " hMerge=1 vMerge=1 | marL=12700 anchor=b lnR=9525 sng solid lnB=9525 sng solid "
        "fill=EE0000",
        " | algn=ctr marL=0 anchor=b lnL=3175 sng sysDot lnBlToTr=9525 sng solid",
        " |up algn=l marL=12700 vert=vert270 anchor=b",
        " |down algn=l u=dbl marL=12700 vert=vert anchor=b",
        " |in algn=l marL=127000 anchor=ctr 0=FFFFFF 25000=FFFFFF 25000=FF0000 50000=00FF00"
        " 50000=FFFFFF 100000=FFFFFF",
    };
    std::vector<std::string> found;
    for (const pugi::xml_node row : saved().children("a:tr")) {
        for (const pugi::xml_node cell : row.children("a:tc")) found.push_back(describedCell(cell));
    }
    EXPECT_EQ(found, expected);
}

TEST_F(Table, HasRowsThatTheirTextsFitInto) {
    struct Row {
        double heightPt;
        const char* text;
        bool wraps;
        /// Of the lower margin, of the distance between lines, and of the characters.
        const char* expected;
    };
    const Row cases[] = {
        {30, "plenty", false, "12700  1000"},         {13, "just", false, "6350  1000"},
        {10, "low", false, "0 80000 1000"},           {5, "", false, "0  400"},
        {30, "two lines of 12", true, "12700  1000"}, {20, "two lines of 12", true, "0 80000 1000"},
    };
    std::vector<double> heights;
    for (const Row& each : cases) heights.push_back(each.heightPt);
    TableLook look = tableOf({52}, heights);
    for (std::size_t i = 0; i < heights.size(); ++i) {
        look.cells[i].text = cases[i].text;
        look.cells[i].wraps = cases[i].wraps;
        look.cells[i].fontSizePt = 10;
    }
    paste(look);
    auto row = saved().child("a:tr");
    for (const Row& each : cases) {
        const auto cell = row.child("a:tc");
        const auto paragraph = cell.child("a:txBody").child("a:p");
        const auto run = paragraph.child("a:r").child("a:rPr");
        EXPECT_EQ(
            fmt::format("{} {} {}", cell.child("a:tcPr").attribute("marB").value(),
                        paragraph.child("a:pPr")
                            .child("a:lnSpc")
                            .child("a:spcPct")
                            .attribute("val")
                            .value(),
                        (run ? run : paragraph.child("a:endParaRPr")).attribute("sz").value()),
            each.expected)
            << each.heightPt << each.text;
        row = row.next_sibling();
    }
}

TEST_F(Table, FitsItsSlideAndIsStretchedWithItsFrame) {
    TableLook look = tableOf({1000 / 3.0, 1000 / 3.0, 1000 / 3.0}, {20, 20});
    for (CellLook& cell : look.cells) {
        cell.fontSizePt = 20;
        cell.text = "text";
    }
    const Object shape = paste(look);
    const auto expectWhole = [&](double widthPt, double heightPt, int size) {
        const auto table = saved();
        double width = 0, height = 0;
        for (const auto column : table.child("a:tblGrid").children("a:gridCol"))
            width += column.attribute("w").as_double() / office::emuPerPoint;
        for (const auto row : table.children("a:tr"))
            height += row.attribute("h").as_double() / office::emuPerPoint;
        EXPECT_NEAR(width, widthPt, 0.001);
        EXPECT_NEAR(height, heightPt, 0.001);
        EXPECT_NEAR(shape.get("Width").toDouble(), widthPt, 0.001);
        EXPECT_NEAR(shape.get("Height").toDouble(), heightPt, 0.001);
        const auto characters = table.child("a:tr").child("a:tc").child("a:txBody").child("a:p");
        EXPECT_NEAR(characters.child("a:r").child("a:rPr").attribute("sz").as_int(), size, 1);
    };
    const double scale = shape.get("Width").toDouble() / 1000;
    EXPECT_LT(scale, 1);
    expectWhole(1000 * scale, 40 * scale, static_cast<int>(2000 * scale));
    shape.put("LockAspectRatio", true);
    shape.put("Width", 500);
    expectWhole(500, 20, 1000);
    shape.put("LockAspectRatio", false);
    shape.put("Height", 60);
    expectWhole(500, 60, 1000);
}

TEST_F(Table, RefusesALookThatWouldLieOverItsTexts) {
    const Object shape = paste(tableOf({40}, {15}));
    const auto shadow = shape.get("Shadow").toObject();
    EXPECT_EQ(support::failureOf([&] { shadow.put("Visible", true); }), 1004);
    EXPECT_EQ(support::failureOf([&] { shape.put("AutoShapeType", 5); }), 1004);
    EXPECT_EQ(std::string(saved().child("a:tblPr").first_child().name()), "a:tableStyleId");
}

}  // namespace
