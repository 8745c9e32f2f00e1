#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "office/package/document_files.h"
#include "office/package/small_workbook.h"
#include "support/automation.h"

namespace {

using namespace document_files;
using office::CellLine;
using office::CellLook;
using office::TableLook;
using Kind = CopySource::Kind;

constexpr const char* barChart =
    R"(<c:chartSpace xmlns:c="http://schemas.openxmlformats.org/drawingml/2006/chart" )"
    R"(xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main"><c:chart><c:plotArea>)"
    R"(<c:layout/><c:barChart><c:barDir val="col"/><c:grouping val="clustered"/><c:ser>)"
    R"(<c:idx val="0"/><c:order val="0"/><c:val><c:numRef><c:f>Data!$B$2:$B$4</c:f><c:numCache>)"
    R"(<c:formatCode>General</c:formatCode><c:ptCount val="3"/><c:pt idx="0"><c:v>4</c:v></c:pt>)"
    R"(<c:pt idx="1"><c:v>7</c:v></c:pt><c:pt idx="2"><c:v>5</c:v></c:pt></c:numCache></c:numRef>)"
    R"(</c:val></c:ser><c:axId val="1"/><c:axId val="2"/></c:barChart><c:catAx><c:axId val="1"/>)"
    R"(<c:scaling/><c:delete val="0"/><c:axPos val="b"/><c:crossAx val="2"/></c:catAx><c:valAx>)"
    R"(<c:axId val="2"/><c:scaling/><c:delete val="0"/><c:axPos val="l"/><c:crossAx val="1"/>)"
    R"(</c:valAx></c:plotArea></c:chart></c:chartSpace>)";

TableLook tableOf(std::vector<double> widthsPt, std::vector<double> heightsPt,
                  const std::vector<std::string>& texts) {
    TableLook table{std::move(widthsPt), std::move(heightsPt), {}};
    for (const std::string& text : texts) {
        CellLook cell;
        cell.text = text;
        cell.fontName = "Calibri";
        table.cells.push_back(cell);
    }
    return table;
}

class DocumentPaste : public DocumentFile {
protected:
    std::string writeBook() {
        const auto chart = zip_bytes::relationships(
            R"(<Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/)"
            R"(relationships/chart" Target="chart1.xml"/>)");
        return folder.write(
            "Book 1.xlsx",
            small_workbook::bytes(
                {{"xl/_rels/drawing1.xml.rels", chart},
                 {"xl/chart1.xml", barChart},
                 {"[Content_Types].xml",
                  office::replaceAll(small_workbook::contentTypes(), "</Types>",
                                     R"(<Override PartName="/xl/chart1.xml" ContentType=")"
                                     R"(application/vnd.openxmlformats-officedocument.)"
                                     R"(drawingml.chart+xml"/></Types>)")}}));
    }
    /// What the paste of something makes: the names of the elements that tell its form.
    static std::string formOf(FileDocument& document) {
        std::string form;
        visitInOrder(document.body(), [&](pugi::xml_node element) {
            const std::string_view name = localName(element);
            for (const char* const told : {"tbl", "anchor", "inline", "object", "chart", "pic"}) {
                if (name == told) form += fmt::format("{} ", name);
            }
            if (name == "OLEObject")
                form += fmt::format("{} {}", element.attribute("Type").value(),
                                    element.attribute("ProgID").value());
            if (name == "shape" &&
                std::string(element.attribute("style").value()).find("position:absolute") !=
                    std::string::npos)
                form += "over ";
            return true;
        });
        return form;
    }
};

TEST_F(DocumentPaste, MakesWhatTheFormSaysOfWhatWasCopied) {
    const std::string book = writeBook();
    const CopySource chart{Kind::Chart, book, "Data", "Sales", ""};
    const CopySource cells{Kind::Cells, book, "Other 'x'", "", "$A$1:$B$2"};
    const CopySource picture{Kind::Picture, book, "Data", "", ""};
    const CopySource unsaved{Kind::Chart, "", "Data", "Sales", ""};
    const TableLook look = tableOf({60, 60}, {15, 15}, {"a", "b", "c", "d"});
    struct {
        CopySource source;
        PasteAs as;
        Anchoring anchoring;
        /// Of what is refused, a word of why.
        std::string form;
        std::vector<std::string> targets = {};
    } const rows[] = {
        {chart, PasteAs::Default, Anchoring::Inline, "inline chart ", {"charts/chart1.xml"}},
        {chart, PasteAs::Linked, Anchoring::Floating, "anchor chart ", {"charts/chart1.xml"}},
        {chart, PasteAs::Metafile, Anchoring::Inline, "inline pic ", {"media/image1.png"}},
        {chart,
         PasteAs::Embedded,
         Anchoring::Floating,
         "object over Embed Excel.Sheet.12",
         {"media/image1.png", "embeddings/Microsoft_Excel_Worksheet1.xlsx"}},
        {cells, PasteAs::Default, Anchoring::Inline, "tbl "},
        {cells,
         PasteAs::Embedded,
         Anchoring::Inline,
         "object Embed Excel.Sheet.12",
         {"media/image1.png", "embeddings/Microsoft_Excel_Worksheet1.xlsx"}},
        {cells,
         PasteAs::Linked,
         Anchoring::Floating,
         "object over Link Excel.Sheet.12",
         {"media/image1.png", "Book%201.xlsx!Other%20%27x%27!R1C1:R2C2"}},
        {picture, PasteAs::Default, Anchoring::Floating, "anchor pic ", {"media/image1.png"}},
        {picture, PasteAs::Linked, Anchoring::Inline, "no file"},
        {unsaved, PasteAs::Default, Anchoring::Inline, "inline pic ", {"media/image1.png"}},
        {unsaved, PasteAs::Linked, Anchoring::Inline, "saved"},
        {unsaved, PasteAs::Embedded, Anchoring::Inline, "saved"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(fmt::format("{} {} {}", static_cast<int>(row.source.kind),
                                 static_cast<int>(row.as), row.form));
        const auto document = open();
        const std::string before = document->package().read(textPart);
        std::string why;
        const std::int32_t failure = support::failureOf(
            [&] {
                document->paste(CopiedDouble(row.source, 240, 150, look), row.as, row.anchoring);
            },
            &why);
        const auto again = saved(*document);
        if (failure != 0) {
            EXPECT_NE(why.find(row.form), std::string::npos) << why;
            EXPECT_EQ(again->package().read(textPart), before);
            continue;
        }
        EXPECT_EQ(formOf(*again), row.form);
        std::string targets;
        for (const Relationship& one : again->package().relationshipsOf(textPart).all())
            targets += one.target + "\n";
        for (const std::string& target : row.targets)
            EXPECT_NE(targets.find(target), std::string::npos) << target << " not in " << targets;
        if (row.form == "tbl ") continue;
        // All of them are sized and told about in the same way.
        ASSERT_EQ(again->objectCount(row.anchoring), 1);
        const auto object = again->objectAt(row.anchoring, 1);
        EXPECT_NEAR(object->size().width, 240, 0.1);
        object->resize({120, 75});
        object->setAlternativeText("Umsatz \"2026\" <b>");
        object->select();
        EXPECT_EQ(again->selectedObject() == object, row.anchoring == Anchoring::Floating);
        if (row.anchoring == Anchoring::Floating) object->setLeft(36);
        const auto changed = saved(*again)->objectAt(row.anchoring, 1);
        EXPECT_NEAR(changed->size().height, 75, 0.1);
        EXPECT_EQ(changed->alternativeText(), "Umsatz \"2026\" <b>");
    }
}

/// What each of them brings along is there once, and their numbers differ after reloading, too.
TEST_F(DocumentPaste, TakesManyObjectsOfOneWorkbook) {
    const CopySource cells{Kind::Cells, writeBook(), "Data", "", "$A$1:$B$2"};
    auto document = open();
    for (int round = 0; round < 2; ++round) {
        for (const PasteAs as : {PasteAs::Embedded, PasteAs::Linked, PasteAs::Png})
            document->paste(CopiedDouble(cells, 240, 150), as, Anchoring::Inline);
        document = saved(*document);
    }
    EXPECT_EQ(document->objectCount(Anchoring::Inline), 6);
    int types = 0;
    std::set<std::string> ids;
    visitInOrder(document->body(), [&](pugi::xml_node element) {
        if (localName(element) == "shapetype") ++types;
        for (const char* const name : {"shape", "docPr"}) {
            if (localName(element) == name) {
                EXPECT_TRUE(ids.insert(element.attribute("id").value()).second) << name;
            }
        }
        return true;
    });
    EXPECT_EQ(types, 1);
    const auto parts = document->package().parts();
    EXPECT_EQ(std::count_if(parts.begin(), parts.end(),
                            [](const auto& part) { return part.starts_with("/word/media/"); }),
              2);
}

/// By how its lines are reckoned where it says so itself, in its style, in what that is based on,
/// or in what all styles have in common.
TEST_F(DocumentPaste, IsNoLineHighWhereLinesHaveAnExactHeight) {
    const auto lines = [](const std::string& rule) {
        return R"(<w:spacing w:after="60" w:line="280")" +
               (rule.empty() ? "" : " w:lineRule=\"" + rule + "\"") + "/>";
    };
    const std::string exact = lines("exact");
    struct {
        std::string own, style, base, common;
        Anchoring anchoring;
        bool grows;
    } const rows[] = {
        {exact, "", "", "", Anchoring::Inline, true},
        {"", exact, "", "", Anchoring::Inline, true},
        {"", "", exact, "", Anchoring::Inline, true},
        {"", "", "", exact, Anchoring::Inline, true},
        {lines("atLeast"), exact, "", "", Anchoring::Inline, false},
        {"", lines(""), exact, "", Anchoring::Inline, false},
        {"", "<w:keepNext/>", lines("auto"), exact, Anchoring::Inline, false},
        {exact, "", "", "", Anchoring::Floating, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.own + "|" + row.style + "|" + row.base + "|" + row.common);
        const auto properties = [](const std::string& more) {
            return "<w:pPr>" + more + "</w:pPr>";
        };
        Package package = support::emptyDocument();
        support::edit(
            package, textPart, "<w:p/>",
            "<w:p>" +
                properties(R"(<w:pStyle w:val="Letter"/>)" + row.own + R"(<w:jc w:val="left"/>)") +
                "</w:p>");
        std::string styles = package.read("/word/styles.xml");
        const auto start = styles.find("<w:pPrDefault>");
        ASSERT_NE(start, std::string::npos);
        const std::string end = "</w:pPrDefault>";
        styles.replace(start, styles.find(end) - start, "<w:pPrDefault>" + properties(row.common));
        const auto style = [&](const std::string& id, const std::string& base,
                               const std::string& looks) {
            return fmt::format(
                R"(<w:style w:type="paragraph" w:styleId="{0}"><w:name w:val="{0}"/>)"
                R"(<w:basedOn w:val="{1}"/>{2}</w:style>)",
                id, base, properties(looks));
        };
        package.replace("/word/styles.xml",
                        office::replaceAll(styles, "</w:styles>",
                                           style("Letter", "Base", row.style) +
                                               style("Base", "Base", row.base) + "</w:styles>"));
        const auto document = documents->add(std::move(package), "", "Document");
        document->paste(CopiedDouble({Kind::Picture, "", "", "", ""}, 240, 150), PasteAs::Default,
                        row.anchoring);
        const auto again = saved(*document);
        const auto spacing = again->body().child("w:p").child("w:pPr").child("w:spacing");
        EXPECT_EQ(spacing.attribute("w:line").value() == std::string("240"), row.grows);
        EXPECT_EQ(spacing.attribute("w:lineRule").value() == std::string("auto"), row.grows);
    }
}

TEST_F(DocumentPaste, LeavesNothingWhereTheStylesCantBeRead) {
    Package package = support::emptyDocument();
    package.replace("/word/styles.xml", "<w:styles");
    const auto parts = package.parts();
    const auto document = documents->add(std::move(package), "", "Document");
    EXPECT_THROW(document->paste(CopiedDouble({Kind::Picture, "", "", "", ""}, 240, 150),
                                 PasteAs::Default, Anchoring::Inline),
                 PackageError);
    EXPECT_EQ(document->objectCount(Anchoring::Inline), 0);
    EXPECT_EQ(document->package().parts(), parts);
}

/// Neither a list of styles nor a paragraph behind the table is needed before somebody uses it.
TEST_F(DocumentPaste, AddsNothingBesideThePicture) {
    Package package = support::emptyDocument();
    support::edit(package, textPart, "<w:p/>",
                  "<w:p/><w:tbl><w:tblPr/><w:tblGrid><w:gridCol w:w=\"900\"/></w:tblGrid>"
                  "<w:tr><w:tc><w:p/></w:tc></w:tr></w:tbl>");
    Relationships& relationships = package.relationshipsOf(textPart);
    relationships.remove(relationships.ofType("styles")->id);
    package.remove("/word/styles.xml");
    const auto document = documents->add(std::move(package), "", "Document");
    document->paste(CopiedDouble({Kind::Picture, "", "", "", ""}, 240, 150), PasteAs::Default,
                    Anchoring::Inline);
    EXPECT_EQ(read(*document), (std::vector<std::string>{"*", ""}));
    EXPECT_EQ(document->package().partOfType(textPart, "styles"), "");
    document->insertCaption({"Figure", ""});
    EXPECT_NE(document->package().partOfType(textPart, "styles"), "");
    EXPECT_EQ(read(*saved(*document)), (std::vector<std::string>{"*", "Caption:Figure 1", ""}));
}

TEST_F(DocumentPaste, GivesPicturesAndChartsAShadow) {
    const std::string book = writeBook();
    for (const Kind kind : {Kind::Picture, Kind::Chart}) {
        const auto document = open();
        document->paste(CopiedDouble({kind, book, "Data", "Sales", ""}, 240, 150), PasteAs::Default,
                        Anchoring::Inline);
        const auto object = document->objectAt(Anchoring::Inline, 1);
        EXPECT_EQ(object->shadow(), word::ObjectShadow());
        const word::ObjectShadow shadow{.isShown = true, .size = 102, .blur = 15};
        object->setShadow(shadow);
        object->setShadow(shadow);
        const auto again = saved(*document)->objectAt(Anchoring::Inline, 1);
        EXPECT_EQ(again->shadow(), shadow);
        again->setShadow({});
        EXPECT_EQ(again->shadow(), word::ObjectShadow());
    }
}

/// What is particular to the cells of a table, a line for each row.
std::string described(pugi::xml_node table) {
    std::string all;
    for (const pugi::xml_node row : table.children("w:tr")) {
        for (const pugi::xml_node cell : row.children("w:tc")) {
            const auto properties = cell.child("w:tcPr");
            all += "[" + textOf(cell.child("w:p"));
            for (const char* const name :
                 {"w:gridSpan", "w:vMerge", "w:textDirection", "w:vAlign"}) {
                if (const auto value = properties.child(name))
                    all += fmt::format(" {}", value.attribute("w:val").value());
            }
            for (const pugi::xml_node line : properties.child("w:tcBorders").children()) {
                const std::string kind = line.attribute("w:val").value();
                if (kind != "nil")
                    all += fmt::format(" {}={} {} {}", line.name() + 2, kind,
                                       line.attribute("w:sz").value(),
                                       line.attribute("w:color").value());
            }
            if (const auto fill = properties.child("w:shd"))
                all += fmt::format(" fill={}", fill.attribute("w:fill").value());
            const auto paragraph = cell.child("w:p").child("w:pPr");
            all += fmt::format(" {} {}]", paragraph.child("w:jc").attribute("w:val").value(),
                               paragraph.child("w:rPr").child("w:sz").attribute("w:val").value());
        }
        all += "\n";
    }
    return all;
}

TEST_F(DocumentPaste, MakesTablesThatLookAsTheirCellsDo) {
    // Twice as wide as the page has room.
    TableLook look =
        tableOf({500, 200, 202.6}, {15, 15, 60}, {"a", "", "c", "d", "", "f", "g", "h\ni", "j\n"});
    look.cells[0].columns = 2;
    look.cells[0].rows = 2;
    for (const std::size_t covered : {1U, 3U, 4U}) look.cells[covered].isCovered = true;
    look.cells[0].fill = 0x336699;
    look.cells[0].bottom = {1.5, 0x0000FF, CellLine::Style::Double};
    look.cells[2].across = CellLook::Across::Right;
    look.cells[2].top = {0.5, 0, CellLine::Style::Dotted};
    look.cells[2].falling = {0.5, 0, CellLine::Style::Solid};
    look.cells[6].rotation = 90;
    look.cells[6].down = CellLook::Down::Middle;
    look.cells[8].down = CellLook::Down::Top;
    // Which can't be drawn there.
    look.cells[8].bar = {0, 0.5, 0, 0, true};
    const auto document = open();
    document->paste(CopiedDouble({Kind::Cells, {}, {}, {}, {}}, 902.6, 90, look), PasteAs::Default,
                    Anchoring::Inline);
    const auto again = saved(*document);
    const auto table = again->body().child("w:tbl");
    const auto paragraph = table.child("w:tr").child("w:tc").child("w:p").child("w:pPr");
    EXPECT_STREQ(paragraph.first_child().name(), "w:bidi") << "whatever the plain style says";
    for (const char* const ahead : {"beforeAutospacing", "afterLines"})
        EXPECT_TRUE(paragraph.child("w:spacing").attribute(fmt::format("w:{}", ahead).c_str()));
    EXPECT_TRUE(paragraph.child("w:ind").attribute("w:firstLineChars"));
    EXPECT_EQ(described(table),
              "[a 2 restart bottom fill=996633 left 11][c bottom top=dotted 4 000000 tl2br=single "
              "4 000000 right 11]\n"
              "[ 2 continue bottom bottom=double 4 FF0000 fill=996633 left 11][f bottom left 11]\n"
              "[g btLr top center 11][h\ni bottom left 11][j\n top left 11]\n");
    long long width = 0;
    for (const pugi::xml_node column : table.child("w:tblGrid").children())
        width += column.attribute("w:w").as_llong();
    EXPECT_EQ(width, 11906 - 2 * 1440);
    EXPECT_STREQ(table.next_sibling().name(), "w:p");
}

}  // namespace
