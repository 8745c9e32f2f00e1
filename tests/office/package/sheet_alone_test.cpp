#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "office/package/small_workbook.h"
#include "office/package/workbook/embedded_workbook.h"
#include "office/package/workbook/formula_reach.h"
#include "office/package/workbook/object_source.h"
#include "support/temporary_folder.h"

namespace {

using namespace office::package;
using office::CopySource;
using small_workbook::relationshipsTo;
using small_workbook::sheet;

TEST(AFormula, LeavesItsSheetForOtherSheetsNamesTablesAndTexts) {
    FormulaReach reach("My 'own' data");
    for (const char* name : {"Rates", "Orders"}) reach.add(name);
    for (const char* name : {"Rates", "Double"}) reach.addCallable(name);
    reach.addMacros();
    const std::pair<std::string, bool> rows[] = {
        {"SUM(A1:$B$20,C:C,2:3)*1.5E+3", false},
        {"'my ''own'' data'!A1+Rates", false},
        {"IF(A1=\"Other!B2\",TRUE,#N/A)", false},
        {"Orders[[#This Row],[Net ']x]]*LET(_xlpm.a,1,_xlpm.a)", false},
        {"_xlfn.XLOOKUP(A1,{\"x\";\"y\"},B1:B2)", false},
        {"#REF!$A$1", false},
        {"Other!A1", true},
        {"'my own data'!A1", true},
        {"SUM(Übersicht!$A$1)", true},
        {"SUM(Jan:'My ''own'' data'!A1)", true},
        {"[1]Sheet1!A1", true},
        {"Secret", true},
        {"1+Costs[Net]", true},
        {"INDIRECT(A1)", true},
        {"RATES(1)+_xlfn._xlws.SORT(A1:A3)", false},
        {"DOUBLE(1)", true},
        {"SUM(_xlfn.ANCHORARRAY(A1))", true},
        {"netOf(A1)", true},
        {"getpivotdata(\"x\",A1)", true},
        {"CUBEKPIMEMBER(\"x\",\"y\",1)", true},
        {"HYPERLINK(\"#'Costs 2026'!A1\",\"Costs\")", true},
        {"HYPERLINK(\"#Secret\")", true},
        {"HYPERLINK(\"[Book.xlsx]Costs!A1\")", true},
        {"HYPERLINK(\"#'My ''own'' data'!A1\",\"Costs!A1\")", false},
        {"HYPERLINK(\"https://example.org/#Costs!A1\")", false},
        {"IF(A1=\"#Costs!A1\",1)", false},
    };
    for (const auto& [formula, leaves] : rows)
        EXPECT_EQ(reach.leavesSheet(formula), leaves) << formula;
}

/// Some text of the other sheet, however it is written, begins with this.
const std::string secret = "Zebra";

std::string chart() {
    // Some in the same element as others, which goes with the first of them.
    const std::string laterMarks =
        "<c:extLst><c:ext><c15:fullRef><c15:sqref>Zebra!$B:$B</c15:sqref></c15:fullRef></c:ext>"
        "</c:extLst>";
    const std::string hidden =
        "<c:f>Zebra!A1</c:f><c:extLst><c:ext><c15:filteredBarSeries><c15:ser><c:tx><c:strRef>"
        "<c:extLst><c:ext><c15:formulaRef><c15:sqref>Zebra!$C$1</c15:sqref></c15:formulaRef>"
        "</c:ext></c:extLst><c:strCache><c:pt idx=\"0\"><c:v>Zebra three</c:v></c:pt></c:strCache>"
        "</c:strRef></c:tx></c15:ser></c15:filteredBarSeries></c:ext></c:extLst>";
    const auto series = [&](const std::string& sheet) {
        return "<c:ser><c:tx><c:strRef><c:f>" + sheet +
               "!$A$1</c:f><c:strCache><c:pt idx=\"0\"><c:v>Shown</c:v></c:pt></c:strCache>"
               "</c:strRef></c:tx><c:val><c:numRef><c:f>" +
               sheet +
               "!$B$1</c:f><c:numCache><c:ptCount val=\"1\"/><c:pt idx=\"0\"><c:v>7</c:v></c:pt>"
               "</c:numCache>" +
               laterMarks + "</c:numRef></c:val></c:ser>";
    };
    // No program writes several into one element, or one elsewhere.
    const std::string bare =
        "<a14:imgProps xmlns:a14=\"http://schemas.microsoft.com/office/drawing/2010/main\"/>";
    return "<c:chartSpace xmlns:c=\"http://schemas.openxmlformats.org/drawingml/2006/chart\" "
           "xmlns:c15=\"http://schemas.microsoft.com/office/drawing/2012/chart\">"
           "<c:pivotSource><c:name>Zebra</c:name></c:pivotSource>" +
           series("Data") + series("Zebra") + hidden +
           "<c:spPr><a:blip "
           "xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\"><a:extLst>"
           "<a:ext><a14:imgProps "
           "xmlns:a14=\"http://schemas.microsoft.com/office/drawing/2010/main\"><a14:imgLayer "
           "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\" "
           "r:embed=\"rId1\"/></a14:imgProps><a:ext>" +
           bare + "</a:ext>" + bare + "</a:ext></a:extLst></a:blip></c:spPr>" + bare +
           "</c:chartSpace>";
}

TEST(ASheetAlone, IsRefusedWithoutTheValuesThatItWouldHaveToKeep) {
    const support::TemporaryFolder folder;
    struct Stored {
        std::string about;
        zip_bytes::Item part;
        bool isFine;
    };
    const auto cell = [](const char* one, bool isFine) {
        return Stored{one,
                      {"xl/sheet1.xml",
                       sheet("<sheetData><row r=\"1\">" + std::string(one) + "</row></sheetData>")},
                      isFine};
    };
    const auto values = [](const char* reference, bool isFine) {
        return Stored{
            reference,
            {"xl/chart1.xml",
             "<c:chartSpace "
             "xmlns:c=\"http://schemas.openxmlformats.org/drawingml/2006/chart\"><c:val>" +
                 std::string(reference) + "</c:val></c:chartSpace>"},
            isFine};
    };
    // Joined into one, their texts would take 30 MB.
    std::string manyLevels = "<c:multiLvlStrRef><c:f>Plot!A1</c:f><c:multiLvlStrCache><c:lvl>";
    for (int i = 0; i < 3000; ++i)
        manyLevels += "<c:pt idx=\"" + std::to_string(i) + "\"><c:v>x</c:v></c:pt>";
    for (int i = 0; i < 100; ++i)
        manyLevels += "</c:lvl><c:lvl><c:pt idx=\"0\"><c:v>x</c:v></c:pt>";
    manyLevels += "</c:lvl></c:multiLvlStrCache></c:multiLvlStrRef>";
    const Stored contents[] = {
        cell("<c r=\"A1\"><f>Plot!A1</f><v/></c>", false),
        cell("<c r=\"A1\"><f>Plot!A1</f></c>", false),
        cell("<c r=\"A1\"><f>B1*2</f></c>", true),
        cell("<c r=\"A1\" t=\"str\"><f>Plot!A1</f><v></v></c>", true),
        cell("<c r=\"A1\"><f>Plot!A1</f><v>0</v></c>", true),
        values("<c:numRef><c:f>Data!A1</c:f></c:numRef>", true),
        values("<c:numRef><c:f>Plot!A1</c:f></c:numRef>", false),
        values("<c:strRef><c:f>Plot!A1</c:f><c:strCache><c:ptCount val=\"0\"/></c:strCache>"
               "</c:strRef>",
               false),
        values("<c:strRef><c:f>Plot!A1</c:f><c:strCache><c:ptCount val=\"1\"/></c:strCache>"
               "</c:strRef>"
               "<c:numRef><c:f>Plot!A1</c:f><c:numCache><c:ptCount val=\"0\"/></c:numCache>"
               "</c:numRef>",
               true),
        values("<c:numRef><c:f>Plot!A1</c:f><c:numCache><c:ptCount val=\"1\"/></c:numCache>"
               "</c:numRef>",
               true),
        values(manyLevels.c_str(), false)};
    for (const Stored& one : contents) {
        const std::string file = folder.write(
            "Book.xlsx", small_workbook::bytes({one.part,
                                                {"xl/_rels/drawing1.xml.rels",
                                                 relationshipsTo({{"chart", "chart1.xml"}})}}));
        WorkbookFiles workbooks;
        const auto obstacle =
            objectObstacle(office::PasteAs::Embedded,
                           {CopySource::Kind::Cells, file, "Data", "", "$A$1"}, workbooks, true);
        EXPECT_EQ(obstacle.empty(), one.isFine) << one.about << obstacle;
    }
}

std::string noteBox(const char* row) {
    return "<v:shape id=\"s" + std::string(row) + "\"><x:ClientData ObjectType=\"Note\"><x:Row>" +
           row + "</x:Row><x:Column>1</x:Column></x:ClientData></v:shape>";
}

TEST(ASheetAlone, HandsOnNoConversations) {
    const support::TemporaryFolder folder;
    const auto note = [](const char* cell, const char* author, const char* text) {
        return "<comment ref=\"" + std::string(cell) + "\" authorId=\"" + author + "\"><text><t>" +
               text + "</t></text></comment>";
    };
    for (const bool hasNote : {true, false}) {
        const std::string file = folder.write(
            "Book.xlsx",
            small_workbook::bytes(
                {{"xl/sheet1.xml", sheet("<sheetData/><legacyDrawing r:id=\"rId2\"/>")},
                 {"xl/_rels/sheet1.xml.rels",
                  relationshipsTo({{"comments", "comments1.xml"}, {"vmlDrawing", "notes.vml"}})},
                 {"xl/comments1.xml",
                  sheet("<authors><author>Zebra</author><author>tc={1}</author><author>Ann"
                        "</author></authors><commentList>" +
                            note("B2", "1", "[Threaded comment] Zebra") +
                            (hasNote ? note("B3", "2", "a note") : "") + "</commentList>",
                        "comments")},
                 {"xl/notes.vml", "<xml>" + noteBox("1") + noteBox("2") + "<br></xml>"}}));
        WorkbookFile workbook{std::filesystem::path(file)};
        const EmbeddedWorkbook made =
            embeddedWorkbook(workbook, {CopySource::Kind::Cells, file, "Data", "", "$A$1"}, true);
        const Package copy = Package::fromBytes(made.bytes);
        EXPECT_EQ(copy.has("/xl/comments1.xml") && copy.has("/xl/notes.vml"), hasNote);
        EXPECT_EQ(copy.read("/xl/sheet1.xml").find("legacyDrawing") != std::string::npos, hasNote);
        if (!hasNote) continue;
        const std::string notes = copy.read("/xl/comments1.xml");
        for (const char* gone : {"Zebra", "tc=", "B2"})
            EXPECT_EQ(notes.find(gone), std::string::npos) << gone << notes;
        EXPECT_NE(notes.find("<author>Ann</author>"), std::string::npos) << notes;
        EXPECT_EQ(copy.read("/xl/notes.vml"), "<xml>" + noteBox("2") + "<br></xml>");
    }
}

TEST(ASheetAlone, HandsOnNothingOfTheOthers) {
    const support::TemporaryFolder folder;
    const std::string cells =
        "<row r=\"1\"><c r=\"A1\" t=\"s\"><v>1</v></c><c r=\"B1\" "
        "s=\"1\"><f>Zebra!A1</f><v>5</v></c>"
        "<c r=\"C1\"><f>B1*2</f><v>10</v></c><c r=\"D1\"><f>ZebraTotal</f><v>6</v></c></row>"
        "<row r=\"2\"><c r=\"A2\" t=\"s\"><v>2</v></c>"
        "<c r=\"B2\"><f t=\"shared\" ref=\"B2:B3\" si=\"0\">Zebra!A2</f><v>8</v></c></row>"
        "<row r=\"3\"><c r=\"B3\"><f t=\"shared\" si=\"0\"/><v>9</v></c></row>";
    const std::string rules =
        "<conditionalFormatting sqref=\"A1\"><cfRule type=\"expression\" priority=\"1\">"
        "<formula>Zebra!A1&gt;1</formula></cfRule></conditionalFormatting>"
        "<conditionalFormatting sqref=\"B1\"><cfRule type=\"expression\" priority=\"2\">"
        "<formula>B1&gt;1</formula></cfRule></conditionalFormatting>"
        "<dataValidations count=\"2\"><dataValidation sqref=\"A1\"><formula1>Zebra!A1:A3</formula1>"
        "</dataValidation><dataValidation sqref=\"B1\"><formula1>C1:C3</formula1></dataValidation>"
        "</dataValidations><hyperlinks>\n<hyperlink ref=\"A1\" "
        "location=\"'Zebra'!A1\"/></hyperlinks>"
        "<extLst><ext "
        "uri=\"{05C60535-1F16-4fd2-B633-F4F36F0B64E0}\"><sparklineGroups><sparklineGroup>"
        "<sparklines><sparkline><f>Zebra!A1</f></sparkline></sparklines><f>Zebra!A2</f>"
        "</sparklineGroup></sparklineGroups></ext></extLst>";
    std::vector<zip_bytes::Item> parts = {
        {"xl/workbook.xml",
         sheet("<fileSharing userName=\"Zebra\"/><workbookPr/><sheets>"
               "<sheet name=\"Zebra\" sheetId=\"2\" r:id=\"rId2\"/>"
               "<sheet name=\"Data\" sheetId=\"1\" r:id=\"rId1\"/></sheets><definedNames>"
               "<definedName name=\"Own\">Data!$A$1</definedName>"
               "<definedName name=\"Half\">Data!$A$1+ZebraTotal</definedName>"
               "<definedName name=\"Local\" localSheetId=\"1\">Data!$B$1</definedName>"
               "<definedName name=\"Local\" localSheetId=\"0\">Zebra!$B$1</definedName>"
               "<definedName name=\"ZebraTotal\">\"Zebra\"</definedName></definedNames><calcPr/>",
               "workbook")},
        {"xl/_rels/workbook.xml.rels", relationshipsTo({{"worksheet", "sheet1.xml"},
                                                        {"worksheet", "sheet2.xml"},
                                                        {"sharedStrings", "strings.xml"},
                                                        {"styles", "styles.xml"},
                                                        {"connections", "connections.xml"},
                                                        {"calcChain", "calcChain.xml"}})},
        {"xl/strings.xml",
         sheet("<si><t>Zebra one</t></si><si><t>mine</t></si><si><t>too</t></si>", "sst")},
        {"xl/styles.xml",
         sheet("<numFmts count=\"2\"><numFmt numFmtId=\"170\" formatCode=\"0 "
               "&quot;Zebra&quot;\"/>"
               "<numFmt numFmtId=\"171\" formatCode=\"0 &quot;t&quot;\"/></numFmts><cellXfs>"
               "<xf numFmtId=\"0\"/><xf numFmtId=\"171\"/><xf numFmtId=\"170\"/></cellXfs>"
               "<cellStyles>\n<cellStyle name=\"Normal\" builtinId=\"0\"/>\n<cellStyle "
               "name=\"Zebra\" "
               "xfId=\"1\"/>\n</cellStyles><dxfs><dxf><numFmt "
               "numFmtId=\"170\" formatCode=\"&quot;Zebra&quot;\"/></dxf></dxfs>",

               "styleSheet")},
        {"xl/connections.xml", sheet("Zebra", "connections")},
        {"xl/calcChain.xml", sheet("", "calcChain")},
        {"docProps/core.xml", "<Zebra/>"},
        {"xl/sheet1.xml",
         sheet("<sheetData>" + cells + "</sheetData>" + rules +
               "<drawing r:id=\"rId1\"/><oleObjects><oleObject r:id=\"rId9\"><objectPr "
               "r:id=\"rId2\"/></oleObject></oleObjects>")},
        {"xl/_rels/sheet1.xml.rels",
         relationshipsTo({{"drawing", "drawing1.xml"}, {"image", "look.emf"}})},
        {"xl/look.emf", "Zebra"},
        {"xl/sheet2.xml", sheet("<sheetData><row r=\"1\"><c r=\"A1\" t=\"inlineStr\"><is><t>Zebra"
                                "</t></is></c></row></sheetData>")},
        {"xl/_rels/drawing1.xml.rels", relationshipsTo({{"chart", "chart1.xml"}})},
        {"xl/chart1.xml", chart()},
        {"xl/_rels/chart1.xml.rels", relationshipsTo({{"hdphoto", "layer.wdp"}})},
        {"xl/layer.wdp", "Zebra"},
    };
    const std::string text = folder.write("Book.xlsx", small_workbook::bytes(parts));
    WorkbookFile workbook{std::filesystem::path(text)};
    const EmbeddedWorkbook made =
        embeddedWorkbook(workbook, {CopySource::Kind::Cells, text, "Data", "", "$A$1:$D$3"}, true);
    const Package copy = Package::fromBytes(made.bytes);
    for (const std::string& part : copy.parts()) {
        EXPECT_EQ(part.find(secret), std::string::npos) << part;
        EXPECT_EQ(copy.read(part).find(secret), std::string::npos) << part << copy.read(part);
    }
    const std::string main = copy.read("/xl/workbook.xml");
    EXPECT_NE(main.find("<definedNames><definedName name=\"Own\">Data!$A$1</definedName>"
                        "<definedName name=\"Local\" localSheetId=\"0\">Data!$B$1</definedName>"
                        "</definedNames>"),
              std::string::npos)
        << main;
    EXPECT_NE(main.find("activeTab=\"0\""), std::string::npos);
    const std::string left = copy.read("/xl/sheet1.xml");
    for (const char* kept :
         {"<c r=\"A1\" t=\"s\"><v>0</v></c><c r=\"B1\" s=\"1\"><v>5</v></c><c r=\"C1\"><f>B1*2</f>",
          "<c r=\"D1\"><v>6</v>", "<c r=\"A2\" t=\"s\"><v>1</v>", "<c r=\"B2\"><v>8</v>",
          "<c r=\"B3\"><v>9</v>", "<formula>B1&gt;1</formula>", "<dataValidations count=\"1\">"})
        EXPECT_NE(left.find(kept), std::string::npos) << kept << " in " << left;
    for (const char* gone : {"sqref=\"A1\"", "hyperlinks", "oleObject", "sparkline"})
        EXPECT_EQ(left.find(gone), std::string::npos) << gone;
    EXPECT_NE(copy.read("/xl/styles.xml").find("<cellStyles count=\"1\">"), std::string::npos);
    EXPECT_NE(copy.read("/xl/strings.xml").find("<si><t>mine</t></si><si><t>too</t></si>"),
              std::string::npos);
    const std::string values = copy.read("/xl/chart1.xml");
    EXPECT_NE(values.find("<c:f>Data!$B$1</c:f>"), std::string::npos);
    EXPECT_NE(values.find("<c:tx><c:v>Shown</c:v></c:tx><c:val><c:numLit><c:ptCount val=\"1\"/>"
                          "<c:pt idx=\"0\"><c:v>7</c:v></c:pt></c:numLit></c:val>"),
              std::string::npos)
        << values;
    EXPECT_NE(values.find("<a:extLst/>"), std::string::npos) << values;
    EXPECT_FALSE(copy.has("/docProps/core.xml"));
}

}  // namespace
