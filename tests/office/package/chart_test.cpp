#include <fmt/format.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <vector>

#include "office/failure.h"
#include "office/package/presentation/deck_file.h"
#include "office/package/presentation/file_deck.h"
#include "office/package/workbook/paste_remarks.h"
#include "office/package/zip_bytes.h"
#include "office/text.h"
#include "support/copied_double.h"
#include "support/temporary_folder.h"

namespace {

using namespace office::package;
using office::CopySource;
using office::Object;
using office::PasteAs;
using WorkbookParts = std::map<std::string, std::string>;

std::string pngBytes() {
    const auto bytes = support::pngPictureOfPoints(24, 15);
    return {bytes.begin(), bytes.end()};
}

std::string relsOf(const std::vector<std::array<std::string, 3>>& all) {
    std::string xml =
        R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)";
    for (const auto& [id, type, target] : all)
        xml +=
            fmt::format(R"(<Relationship Id="{}" Type="{}{}" Target="{}"{}/>)", id,
                        type.starts_with("http") ? "" : std::string(ns::relationships) + "/", type,
                        target, target.starts_with("http") ? R"( TargetMode="External")" : "");
    return xml + "</Relationships>";
}

std::string chartFrame(const std::string& name, const std::string& id) {
    return fmt::format(
        R"(<xdr:graphicFrame><xdr:nvGraphicFramePr><xdr:cNvPr id="2" name="{}"/></xdr:nvGraphicFramePr>)"
        R"(<a:graphic><a:graphicData><c:chart r:id="{}"/></a:graphicData></a:graphic></xdr:graphicFrame>)",
        name, id);
}

/// A line chart that leaves all flags out.
constexpr const char* chartSpace =
    R"(<c:chartSpace xmlns:c="http://schemas.openxmlformats.org/drawingml/2006/chart")"
    R"( xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" xmlns:r=)"
    R"("http://schemas.openxmlformats.org/officeDocument/2006/relationships"><c:lang val="en"/>)"
    R"(<c:chart><c:plotArea><c:layout/><c:lineChart><c:grouping val="standard"/><c:ser>)"
    R"(<c:idx val="0"/><c:order val="0"/><c:spPr><a:blipFill><a:blip r:embed="rId9"/></a:blipFill>)"
    R"(</c:spPr><c:dLbls><c:dLbl><c:idx val="1"/></c:dLbl><c:showVal val="1"/></c:dLbls><c:val>)"
    R"(<c:numRef><c:f>Data!$B$2:$B$3</c:f><c:numCache><c:formatCode>0.0</c:formatCode><c:ptCount val="1"/>)"
    R"(<c:pt idx="0"><c:v>4</c:v></c:pt></c:numCache></c:numRef></c:val></c:ser><c:axId val="1"/><c:axId val="2"/>)"
    R"(</c:lineChart><c:catAx><c:axId val="1"/><c:scaling/><c:axPos val="b"/><c:crossAx val="2"/>)"
    R"(</c:catAx><c:valAx><c:axId val="2"/><c:scaling/><c:axPos val="l"/>)"
    R"(<c:numFmt formatCode="General" sourceLinked="1"/><c:crossAx val="1"/>)"
    R"(</c:valAx></c:plotArea><c:legend/></c:chart><c:printSettings/>)"
    R"(<c:userShapes r:id="rId7"/></c:chartSpace>)";

/// A workbook with a chart in a group on "Data" and one of a newer kind; "Trend" is a chart sheet.
WorkbookParts chartWorkbook() {
    const std::string main = "application/vnd.openxmlformats-officedocument.";
    return {
        {"[Content_Types].xml",
         R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types"><Default Extension="xml" ContentType="text/xml"/>)"
         R"(<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/><Default Extension="png" ContentType="image/png"/>)"
         R"(<Override PartName="/xl/media/plain" ContentType="image/png"/>)"
         R"(<Override PartName="/xl/workbook.xml" ContentType=")" +
             main + R"(spreadsheetml.sheet.main+xml"/></Types>)"},
        {"_rels/.rels", relsOf({{"rId1", "officeDocument", "xl/workbook.xml"},
                                {"rId2", "extended-properties", "docProps/app.xml"}})},
        {"docProps/app.xml",
         R"(<Properties xmlns="http://schemas.openxmlformats.org/officeDocument/2006/extended-properties"><Application>Microsoft Excel</Application><AppVersion>16.0300</AppVersion></Properties>)"},
        {"xl/workbook.xml",
         R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
         R"(<sheets><sheet name="Data" sheetId="1" r:id="rId1"/><sheet name="Trend" sheetId="2" r:id="rId2"/></sheets></workbook>)"},
        {"xl/_rels/workbook.xml.rels", relsOf({{"rId1", "worksheet", "worksheets/sheet1.xml"},
                                               {"rId2", "chartsheet", "chartsheets/sheet1.xml"},
                                               {"rId3", "theme", "theme/theme1.xml"}})},
        {"xl/worksheets/sheet1.xml", "<worksheet/>"},
        {"xl/chartsheets/sheet1.xml", "<chartsheet/>"},
        {"xl/worksheets/_rels/sheet1.xml.rels",
         relsOf({{"rId1", "drawing", "../drawings/drawing1.xml"}})},
        {"xl/chartsheets/_rels/sheet1.xml.rels",
         relsOf({{"rId1", "drawing", "../drawings/drawing2.xml"}})},
        {"xl/drawings/drawing1.xml",
         R"(<xdr:wsDr xmlns:xdr="http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing" xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main")"
         R"( xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships" xmlns:c="http://schemas.openxmlformats.org/drawingml/2006/chart">)"
         R"(<xdr:twoCellAnchor><xdr:grpSp>)" +
             chartFrame("Chart 1", "rId1") +
             R"(</xdr:grpSp></xdr:twoCellAnchor>)"
             R"(<mc:AlternateContent xmlns:mc="http://schemas.openxmlformats.org/markup-compatibility/2006"><mc:Choice>)" +
             std::regex_replace(
                 chartFrame("Falls", "rId2"), std::regex("c:chart "),
                 R"(cx:chart xmlns:cx="http://schemas.microsoft.com/office/drawing/2014/chartex" )") +
             R"(</mc:Choice></mc:AlternateContent></xdr:wsDr>)"},
        {"xl/drawings/drawing2.xml",
         R"(<d:wsDr xmlns:d="http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing"><d:graphicFrame><graphic xmlns="http://schemas.openxmlformats.org/drawingml/2006/main"><graphicData>)"
         R"(<chart xmlns="http://schemas.openxmlformats.org/drawingml/2006/chart" q:id="rId1" xmlns:q="http://schemas.openxmlformats.org/officeDocument/2006/relationships"/></graphicData></graphic></d:graphicFrame></d:wsDr>)"},
        {"xl/drawings/_rels/drawing1.xml.rels",
         relsOf({{"rId1", "chart", "../charts/chart1.xml"}})},
        {"xl/drawings/_rels/drawing2.xml.rels",
         relsOf({{"rId1", "chart", "../charts/chart1.xml"}})},
        {"xl/charts/chart1.xml", chartSpace},
        {"xl/charts/_rels/chart1.xml.rels",
         relsOf({{"rId7", "chartUserShapes", "../drawings/shapes.xml"},
                 {"rId8", "http://schemas.microsoft.com/office/2011/relationships/chartStyle",
                  "style1.xml"},
                 {"rId9", "image", "../media/image1.png"}})},
        {"xl/charts/style1.xml", "<style/>"},
        {"xl/media/image1.png", pngBytes()},
        {"xl/media/plain", pngBytes()},
        {"xl/drawings/shapes.xml",
         R"(<shapes xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships"><blip r:embed="rId1"/><link r:id="rId2"/></shapes>)"},
        {"xl/drawings/_rels/shapes.xml.rels",
         relsOf({{"rId1", "image", "../media/image1.png"},
                 {"rId2", "hyperlink", "https://example.org"}})},
        {"xl/theme/theme1.xml",
         R"(<t:theme xmlns:t="http://schemas.openxmlformats.org/drawingml/2006/main"><t:themeElements><t:clrScheme name="own"/><t:fmtScheme><t:lnStyleLst>)"
         R"(<t:ln w="9525"><t:solidFill><t:schemeClr val="phClr"><t:shade val="95000"/></t:schemeClr></t:solidFill></t:ln></t:lnStyleLst></t:fmtScheme></t:themeElements></t:theme>)"},
    };
}

class Chart : public testing::Test {
protected:
    CopySource sourceIn(const WorkbookParts& parts, const std::string& sheet = "data",
                        const std::string& chart = "CHART 1") {
        std::vector<zip_bytes::Item> items;
        for (const auto& [name, bytes] : parts) items.push_back({name, bytes});
        const std::string zip = zip_bytes::zipOf(items);
        const std::string file = folder.file(fmt::format("Bücher's {}.xlsx", ++count_));
        support::writeBytes(file, {zip.begin(), zip.end()});
        return {CopySource::Kind::Chart, file, sheet, chart, {}};
    }
    Object paste(const CopySource& source, bool isLink = false) {
        clipboard->copied = std::make_shared<support::CopiedDouble>(source, 360, 216);
        const Object shapes = slide.get("Shapes").toObject();
        shapes.call("PasteSpecial", 0, 0, "", 0, "", isLink);
        return shapes.get("Item", shapes.get("Count")).toObject();
    }
    Package saved() {
        const std::string file = folder.file("charts.pptx");
        deck.call("SaveCopyAs", file);
        return Package::open(file);
    }

    support::TemporaryFolder folder;
    office::ClipboardPtr clipboard = std::make_shared<office::Clipboard>();
    Object app = powerPointOfFiles({.measure = {}, .clipboard = clipboard});
    Object deck = app.get("Presentations").call("Add").toObject();
    Object slide = deck.get("Slides").call("Add", 1, powerpoint::layout::titleOnly).toObject();

private:
    int count_ = 0;
};

TEST_F(Chart, TakesAlongWhatItNeedsOutsideOfItsWorkbook) {
    const Object shape = paste(sourceIn(chartWorkbook()));
    shape.put("AlternativeText", "Sales by quarter");
    shape.get("Shadow").put("Visible", true);
    EXPECT_THROW(shape.put("AutoShapeType", 5), office::Failure);
    paste(clipboard->copied->source());
    paste(sourceIn(chartWorkbook(), "Trend", ""), true);
    EXPECT_EQ(shape.get("Name").toText(), "Chart 2");
    EXPECT_EQ(shape.get("Width").toDouble(), 360);
    Package package = saved();
    const auto targetOf = [&](const std::string& part, std::string_view type) {
        const Relationships& all = package.relationshipsOf(part);
        const Relationship* const found = all.ofType(type);
        if (found == nullptr) return std::string("none");
        return found->isExternal ? found->target : all.partOf(*found);
    };
    const std::string first = "/ppt/charts/chart1.xml";
    const std::string shapes = targetOf(first, "chartUserShapes");
    EXPECT_EQ(targetOf(first, "image"), "/ppt/media/image1.png");
    EXPECT_EQ(targetOf(shapes, "image"), "/ppt/media/image1.png");
    EXPECT_EQ(targetOf(shapes, "hyperlink"), "https://example.org");
    EXPECT_NE(package.read(targetOf(first, "themeOverride")).find(R"(clrScheme name="own")"),
              std::string::npos);
    EXPECT_TRUE(package.has("/ppt/charts/style1.xml"));
    const std::string data = targetOf(first, "package");
    const std::string second = targetOf("/ppt/charts/chart2.xml", "package");
    EXPECT_NE(data, second) << "a workbook for each";
    const std::string book = package.read(data);
    EXPECT_EQ(book, package.read(second));
    EXPECT_EQ(package.contentTypeOf(data), package.contentTypeOf(second));
    EXPECT_TRUE(Package::fromBytes(book).has("/xl/workbook.xml"));
    const std::string link = targetOf("/ppt/charts/chart3.xml", "oleObject");
    EXPECT_TRUE(link.starts_with("file:///") && link.ends_with("/Bücher%27s%202.xlsx")) << link;
    for (const char* part : {"/ppt/charts/chart1.xml", "/ppt/charts/chart3.xml", shapes.c_str()}) {
        const Xml xml(package.read(part), part);
        for (const auto& id : relationshipIdsIn(xml))
            EXPECT_NE(package.relationshipsOf(part).withId(id.value()), nullptr)
                << part << id.value();
    }
    EXPECT_EQ(package.read(first).find("printSettings"), std::string::npos);
    EXPECT_NE(package.read(first).find("<a:effectLst><a:outerShdw "), std::string::npos);
}

TEST_F(Chart, WritesOutWhatItsWorkbooksReaderTakesForGranted) {
    // {0} is the flag, {1} what stands for a blank cell, {2} the label of a point.
    const char* const expected[] = {
        R"(</c:val><c:smooth val="{0}"/></c:ser>)",
        R"(</c:ser><c:marker val="{0}"/><c:axId)",
        R"(<c:numFmt formatCode="0.0" sourceLinked="1"/>)",
        R"(<a:ln w="28575"><a:solidFill><a:schemeClr val="accent1"><a:shade val="95000"/></a:schemeClr>)"
        R"(</a:solidFill></a:ln></c:spPr>)",
        R"(<c:lang val="en"/><c:roundedCorners val="{0}"/><c:clrMapOvr)",
        R"(<c:chart><c:autoTitleDeleted val="{0}"/><c:plotArea>)",
        R"(<c:scaling/><c:delete val="0"/><c:axPos val="b"/>)",
        R"(<c:legend><c:overlay val="0"/></c:legend><c:plotVisOnly val="{0}"/><c:dispBlanksAs val="{1}"/>)",
        R"(<c:varyColors val="0"/><c:ser>)",
        R"(<c:dLbl><c:idx val="1"/><c:showLegendKey val="{0}"/><c:showVal val="1"/><c:showCatName val="{0}"/>)"
        R"(<c:showSerName val="{0}"/><c:showPercent val="{0}"/><c:showBubbleSize val="{0}"/></c:dLbl>)"
        R"(<c:showLegendKey val="{0}"/><c:showVal val="1"/>)"};
    const std::vector<std::array<const char*, 3>> versions = {{"16.0300", "1", "zero"},
                                                              {"12.0000", "0", "gap"}};
    for (const auto& version : versions) {
        WorkbookParts parts = chartWorkbook();
        std::string& properties = parts["docProps/app.xml"];
        properties = office::replaceAll(properties, "16.0300", version[0]);
        properties = office::replaceAll(properties, "</", "</ap:");
        properties = std::regex_replace(properties, std::regex("<(\\w)"), "<ap:$1");
        properties = office::replaceAll(properties, "xmlns=", "xmlns:ap=");
        paste(sourceIn(parts));
        std::string& chart = parts["xl/charts/chart1.xml"];
        chart = office::replaceAll(chart, "lineChart", "scatterChart");
        paste(sourceIn(parts));
    }
    const Package package = saved();
    for (std::size_t i = 0; i < 2 * versions.size(); ++i) {
        const std::string xml = package.read(fmt::format("/ppt/charts/chart{}.xml", i + 1));
        const bool isScatter = xml.find("scatterChart") != std::string::npos;
        EXPECT_EQ(isScatter, i % 2 == 1);
        const auto& version = versions[i / 2];
        for (const char* const one : expected) {
            const std::string_view text = one;
            const bool isOfLines = text.find("<c:marker") != std::string_view::npos ||
                                   text.find("numFmt") != std::string_view::npos;
            if (isScatter && isOfLines) continue;
            const std::string wanted = fmt::format(fmt::runtime(one), version[1], version[2]);
            EXPECT_NE(xml.find(wanted), std::string::npos) << wanted << "\n" << xml;
        }
    }
}

TEST_F(Chart, LeavesNothingBehindIfWhatGoesWithItCantBeRead) {
    for (const char* const damaged : {"<style/>", "IHDR"}) {
        const std::vector<std::string> before = saved().parts();
        const CopySource source = sourceIn(chartWorkbook());
        {
            std::fstream file(source.file, std::ios::in | std::ios::out | std::ios::binary);
            const std::string bytes(std::istreambuf_iterator<char>(file), {});
            const auto at = bytes.find(damaged);
            ASSERT_NE(at, std::string::npos);
            file.seekp(static_cast<std::streamoff>(at)).put('#');
        }
        EXPECT_THROW(paste(source), office::Failure) << damaged;
        EXPECT_EQ(saved().parts(), before) << damaged;
        paste(sourceIn(chartWorkbook()));
    }
}

TEST_F(Chart, GoesAsAPictureWhereItCantBeOneAndSaysWhy) {
    struct Case {
        const char* reason;
        const char* part;
        std::string from, to;
    };
    const std::string chart = "xl/charts/chart1.xml";
    const Case cases[] = {
        {"its data is a pivot table", chart.c_str(), "<c:chart>", "<c:pivotSource/><c:chart>"},
        {"its data is in another workbook", chart.c_str(), "Data!$B", "'[1]Data'!$B"},
        {"", chart.c_str(), "Data!$B$2:$B$3", "[0]!Sales"},
        {"", chart.c_str(), "<c:printSettings/>",
         R"(<c:printSettings><c:legacyDrawingHF r:id="rId5"/></c:printSettings>)"},
        {"its values are not stored in the workbook's file", chart.c_str(), "numCache", "other"},
        {"it holds something that can't leave its workbook", "xl/charts/_rels/chart1.xml.rels",
         "/image\"", "/printer\""},
        {"it holds something that can't leave its workbook", "xl/charts/_rels/chart1.xml.rels",
         "image1.png", "gone.png"},
        {"it holds something that can't leave its workbook", "xl/charts/_rels/chart1.xml.rels",
         "image1.png", "plain"},
        {"it holds something that can't leave its workbook", "xl/drawings/_rels/shapes.xml.rels",
         "/image\"", "/chartUserShapes\""},
        {"its workbook's file can't be used (its part /xl/drawings/shapes.xml is no XML (Start-end "
         "tags mismatch))",
         "xl/drawings/shapes.xml", "</shapes>", "</other>"},
        {"its workbook's file can't be used (its part /xl/theme/theme1.xml is no XML (Start-end "
         "tags mismatch))",
         "xl/theme/theme1.xml", "</t:theme>", "</other>"},
        {"the workbook's file does not hold it", "xl/drawings/drawing1.xml", "Chart 1", "Chart 2"},
        {"it is of a kind that only Excel draws", "xl/drawings/drawing1.xml", "Falls", "chart 1"},
        {"it is missing in the workbook's file", "xl/drawings/_rels/drawing1.xml.rels",
         "chart1.xml", "chart9.xml"},
        {"its workbook is a template", "[Content_Types].xml", "sheet.main", "template.main"},
        {"its workbook's file can't be used (it is a strict Open XML workbook)", "xl/workbook.xml",
         "http://schemas.openxmlformats.org/spreadsheetml/2006/main",
         "http://purl.oclc.org/ooxml/spreadsheetml/main"},
        {"its workbook's file can't be used (it is no Open XML workbook)", "[Content_Types].xml",
         "spreadsheetml.sheet", "wordprocessingml.document"},
    };
    for (const Case& one : cases) {
        WorkbookParts parts = chartWorkbook();
        if (one.reason == std::string_view("it is of a kind that only Excel draws"))
            parts["xl/drawings/drawing1.xml"] =
                office::replaceAll(parts["xl/drawings/drawing1.xml"], "Chart 1", "Other");
        std::string& text = parts[one.part];
        ASSERT_NE(text.find(one.from), std::string::npos) << one.part << one.from;
        text = office::replaceAll(text, one.from, one.to);
        const CopySource source = sourceIn(parts);
        WorkbookFiles files;
        EXPECT_EQ(findChart(source, files).obstacle, one.reason);
        const bool isChart = one.reason == std::string_view();
        EXPECT_TRUE(paste(source).get("Name").toText().starts_with(isChart ? "Chart" : "Picture"))
            << one.reason;
        if (!isChart) {
            EXPECT_THROW(paste(source, true), office::Failure) << one.reason;
        }
    }
    const CopySource zip = sourceIn({{"content.xml", "<office/>"}});
    const std::string renamed = folder.file("Book.ods");
    std::filesystem::copy_file(zip.file, renamed);
    for (const auto& [file, reason] :
         {std::pair(zip.file,
                    "its workbook's file can't be used (it is a ZIP file without content "
                    "types)"),
          {renamed, "its workbook is no .xlsx or .xlsm file"}}) {
        WorkbookFiles others;
        EXPECT_EQ(
            findChart({CopySource::Kind::Chart, file, "Data", "Chart 1", {}}, others).obstacle,
            reason);
    }
    // Nothing is opened again for being damaged, but for having changed.
    WorkbookParts damaged = chartWorkbook();
    damaged["xl/workbook.xml"] += "<";
    const CopySource mended = sourceIn(damaged);
    WorkbookFiles files;
    const auto written = std::filesystem::last_write_time(mended.file);
    for (const auto& [age, isFound] :
         {std::pair(0, false), std::pair(0, false), std::pair(1, true)}) {
        std::filesystem::last_write_time(mended.file, written + std::chrono::seconds(age));
        EXPECT_EQ(findChart(mended, files).obstacle.empty(), isFound) << age;
        std::filesystem::copy_file(sourceIn(chartWorkbook()).file, mended.file,
                                   std::filesystem::copy_options::overwrite_existing);
    }
    const CopySource unsaved{CopySource::Kind::Chart, "", "Data", "Chart 1", {}};
    EXPECT_EQ(
        pasteRemarks(PasteAs::Linked, {{"Chart 1", unsaved}}, files),
        std::vector<std::string>{
            R"("Chart 1" on sheet "Data" can't be linked: its workbook has not been saved yet.)"});
    EXPECT_EQ(
        pasteRemarks(
            PasteAs::Default,
            {{"Chart 1", unsaved}, {"Chart 2", sourceIn(chartWorkbook())}, {"Chart 3", unsaved}},
            files),
        std::vector<std::string>{
            R"(Each of "Chart 1" on sheet "Data" and "Chart 3" on sheet "Data" will be a picture: its workbook has not been saved yet.)"});
}

}  // namespace
