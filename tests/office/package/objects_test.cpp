#include <fmt/format.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "office/failure.h"
#include "office/package/presentation/deck_file.h"
#include "office/package/small_workbook.h"
#include "support/copied_double.h"
#include "support/package_edit.h"
#include "support/temporary_folder.h"
#include "support/written_decks.h"

namespace {

using namespace office::package;
using office::CopySource;
using office::Object;
using office::Value;
using Kind = CopySource::Kind;

std::string part(const std::string& text, const std::string& before, const std::string& after) {
    const auto at = text.find(before);
    if (at == std::string::npos) return {};
    return text.substr(at + before.size(),
                       text.find(after, at + before.size()) - at - before.size());
}

class ObjectOnASlide : public testing::Test {
protected:
    ~ObjectOnASlide() override { support::keepDecks(folder.path(), {}); }

    Object openDeck(bool sheetAlone = false, const std::string& linkBase = {}) {
        app = powerPointOfFiles({.measure =
                                     [](const std::string&, const office::Font&, auto) {
                                         return office::Size{100, 20};
                                     },
                                 .clipboard = clipboard,
                                 .embedsSheetAlone = sheetAlone,
                                 .linkBase = linkBase});
        const std::string file = folder.file(std::to_string(++files_) + ".pptx");
        support::emptyDeck().save(file);
        Object deck = app.get("Presentations").call("Open", file).toObject();
        deck.get("Slides").call("Add", 1, powerpoint::layout::titleOnly);
        return deck;
    }
    Object paste(const Object& deck, const CopySource& source, bool isLink = false) {
        clipboard->copied = std::make_shared<support::CopiedDouble>(source, 240, 150);
        const Value shapes = deck.get("Slides").get("Item", 1).get("Shapes");
        static_cast<void>(isLink ? shapes.call("PasteSpecial", 0, false, "", 0, "", true)
                                 : shapes.call("PasteSpecial", 10));
        return shapes.get("Item", shapes.get("Count")).toObject();
    }
    Package saved(const Object& deck) {
        const std::string file = folder.file(std::to_string(++files_) + " saved.pptx");
        deck.call("SaveCopyAs", file);
        return Package::open(file);
    }
    std::string writeBook(const std::string& name,
                          const std::vector<zip_bytes::Item>& changes = {}) {
        return folder.write(name, small_workbook::bytes(changes));
    }

    support::TemporaryFolder folder;
    office::ClipboardPtr clipboard = std::make_shared<office::Clipboard>();
    Object app;

private:
    int files_ = 0;
};

TEST_F(ObjectOnASlide, ShowsTheSheetAndTheCellsOfWhatWasCopied) {
    const std::string book = writeBook("Book.xlsx");
    const std::string macros = writeBook(
        "Book.xlsm",
        {{"[Content_Types].xml", small_workbook::contentTypes("ms-excel.sheet.macroEnabled")},
         // What says that it is a signature leads to itself.
         {"_rels/.rels",
          zip_bytes::relationships(
              "<Relationship Id=\"rId1\" Type=\"http://schemas.openxmlformats.org/officeDocument/"
              "2006/relationships/officeDocument\" Target=\"xl/workbook.xml\"/><Relationship "
              "Id=\"rId2\" Type=\"http://schemas.openxmlformats.org/package/2006/relationships/"
              "digital-signature/origin\" Target=\"sign\"/>")},
         {"sign", ""},
         {"_rels/sign.rels",
          small_workbook::relationshipsTo({{"signature", "sign"}, {"signature", "sign"}})}});
    const std::string bare = writeBook(
        "Bare.xlsx",
        {{"xl/sheet2.xml",
          small_workbook::sheet("<dimension ref=\"A1\"/><sheetData><row r=\"2\"><c r=\"B2\"/></row>"
                                "<row r=\"7\"><c r=\"C7\"/></row></sheetData>")}});
    struct {
        CopySource source;
        std::string tab, cells, selected, ending;
    } const rows[] = {
        {{Kind::Cells, book, "Data", "", "$B$4:$D$20"}, "0", "B4:D20", "1", ".xlsx"},
        {{Kind::Cells, book, "other 'x'", "", "$C$2"}, "1", "C2", "2", ".xlsx"},
        {{Kind::Cells, book, "Data", "", "$B:$B"}, "0", "B1:B20", "1", ".xlsx"},
        {{Kind::Chart, book, "Data", "Sales", ""}, "0", "F2:M16", "1", ".xlsx"},
        {{Kind::Chart, book, "Plot", "", ""}, "2", "", "3", ".xlsx"},
        {{Kind::Cells, bare, "other 'x'", "", "$B:$B"}, "1", "B2:B7", "", ".xlsx"},
        {{Kind::Cells, macros, "data", "", "$A$1"}, "0", "A1", "1", ".xlsm"},
    };
    const Object deck = openDeck();
    for (const auto& row : rows) paste(deck, row.source);
    const Package package = saved(deck);
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        SCOPED_TRACE(i);
        const std::string number = rows[i].ending == ".xlsm" ? "1" : std::to_string(i + 1);
        const std::string name =
            "/ppt/embeddings/Microsoft_Excel_Worksheet" + number + rows[i].ending;
        const std::string bytes = package.read(name);
        const Package copy = Package::fromBytes(bytes);
        const std::string main = copy.read("/xl/workbook.xml");
        EXPECT_EQ(part(main, "activeTab=\"", "\""), rows[i].tab);
        EXPECT_EQ(part(main, "<calcPr/><oleSize ref=\"", "\""), rows[i].cells);
        EXPECT_EQ(main.find("state=") == std::string::npos, rows[i].tab == "1")
            << "what is active can't be hidden";
        for (const std::string sheet : {"1", "2", "3"}) {
            const std::string xml = copy.read("/xl/sheet" + sheet + ".xml");
            EXPECT_EQ(xml.find("tabSelected=\"1\"") != std::string::npos,
                      sheet == rows[i].selected);
        }
    }
    const std::string slide = package.read("/ppt/slides/slide1.xml");
    EXPECT_NE(slide.find("progId=\"Excel.SheetMacroEnabled.12\""), std::string::npos);
    EXPECT_FALSE(package.has("/ppt/media/image2.png")) << "equal previews are one part";
}

TEST_F(ObjectOnASlide, LinksToTheCellsByTheirNumbers) {
    const std::string book = writeBook("Größe 1.xlsx");
    const std::string here = folder.path().string();
    const std::pair<std::string, std::string> rows[] = {
        {"", fmt::format("file://{}/Größe%201.xlsx!Other%20%27x%27!R5C2:R8C7", here)},
        {here, "./Größe%201.xlsx!Other%20%27x%27!R5C2:R8C7"},
        {here + "/decks", "../Größe%201.xlsx!Other%20%27x%27!R5C2:R8C7"},
    };
    for (const auto& [base, address] : rows) {
        const Object deck = openDeck(false, base);
        paste(deck, {Kind::Cells, book, "Other 'x'", "", "$B$5:$G$8"}, true);
        const Package package = saved(deck);
        const std::string relationships = package.read("/ppt/slides/_rels/slide1.xml.rels");
        EXPECT_NE(relationships.find("Target=\"" + address + "\" TargetMode=\"External\""),
                  std::string::npos)
            << relationships;
    }
}

TEST_F(ObjectOnASlide, TakesItsPictureAlongWhenItIsMovedAndNamed) {
    const Object deck = openDeck();
    const Object shape = paste(deck, {Kind::Cells, writeBook("Book.xlsx"), "Data", "", "$A$1"});
    EXPECT_EQ(shape.get("Name").toText(), "Object 2");
    shape.put("Left", 10);
    shape.put("Width", 80);
    shape.put("AlternativeText", "sales & more");
    const std::string slide = saved(deck).read("/ppt/slides/slide1.xml");
    const std::string own = part(slide, "<p:graphicFrame>", "<a:graphic>");
    const std::string picture = part(slide, "<p:pic>", "</p:pic>");
    EXPECT_EQ(part(own, "<p:xfrm>", "</p:xfrm>"), part(picture, "<a:xfrm>", "</a:xfrm>"));
    EXPECT_NE(own.find("<a:off x=\"127000\""), std::string::npos);
    for (const std::string& holder : {own, picture})
        EXPECT_NE(holder.find("name=\"Object 2\" descr=\"sales &amp; more\""), std::string::npos);
}

TEST_F(ObjectOnASlide, IsRefusedWithAReasonWhereTheFileHoldsNoSuchSheet) {
    const std::string book = writeBook("Book.xlsx");
    const std::string old =
        folder.write("Old.xls", "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1" + std::string(600, ' '));
    const std::string open = writeBook("Open.ods", {{"[Content_Types].xml", ""}});
    const std::string hostile = writeBook("Hostile.xlsx", {{"xl/sheet2.xml", "?tabSelected"}});
    struct {
        CopySource source;
        bool isLink;
        std::string said;
    } const rows[] = {
        {{Kind::Cells, "", "Data", "", "$A$1"}, false, "not been saved"},
        {{Kind::Cells, old, "Data", "", "$A$1"}, false, "its workbook is no .xlsx or .xlsm file"},
        {{Kind::Cells, open, "Data", "", "$A$1"}, true, "It can't be linked"},
        {{Kind::Cells, book, "New", "", "$A$1"}, true, "does not hold its sheet"},
        {{Kind::Cells, book + "x", "Data", "", "$A$1"}, false, "can't be read"},
        {{Kind::Cells, hostile, "Data", "", "$A$1"}, false, "/xl/sheet2.xml is no XML"},
    };
    const Object deck = openDeck();
    for (const auto& row : rows) {
        try {
            paste(deck, row.source, row.isLink);
            ADD_FAILURE() << row.said;
        } catch (const office::Failure& failure) {
            EXPECT_TRUE(failure.is(office::FailureNumber::ApplicationDefined));
            EXPECT_NE(failure.description().find(row.said), std::string::npos)
                << failure.description();
        }
    }
    EXPECT_EQ(deck.get("Slides").get("Item", 1).get("Shapes").get("Count").toLong(), 1);
}

}  // namespace
