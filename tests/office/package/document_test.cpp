#include <algorithm>
#include <filesystem>

#include "office/package/document/document_file.h"
#include "office/package/document_files.h"
#include "support/automation.h"

namespace {

using namespace document_files;

using Lines = std::vector<std::string>;

TEST_F(DocumentFile, KnowsWhetherItsLastPageIsEmpty) {
    const std::string empty = "<w:p/>";
    const std::string cover = "<w:p><w:r><w:t>Cover</w:t></w:r></w:p>";
    const std::string breaking = R"(<w:p><w:r><w:br w:type="page"/></w:r></w:p>)";
    const auto section = [](const char* type) {
        return fmt::format(R"(<w:p><w:pPr><w:sectPr><w:type w:val="{}"/></w:sectPr></w:pPr></w:p>)",
                           type);
    };
    const std::string ahead = "<w:p><w:pPr><w:pageBreakBefore/></w:pPr></w:p>";
    const std::string drawing =
        R"(<w:p><w:r><w:pict><v:shape xmlns:v="urn:schemas-microsoft-com:vml"/></w:pict></w:r></w:p>)";
    const std::string table = "<w:tbl><w:tr><w:tc>" + breaking + "</w:tc></w:tr></w:tbl>";
    const auto inBlock = [](const std::string& text) {
        return "<w:sdt><w:sdtContent>" + text + "</w:sdtContent></w:sdt>";
    };
    const struct {
        std::string body;
        bool isEmpty;
    } rows[] = {
        {empty, true},
        {empty + empty, true},
        {cover, false},
        {cover + empty, false},
        {cover + breaking, true},
        {cover + breaking + empty, true},
        {inBlock(cover + breaking) + empty, true},
        {R"(<w:p><w:r><w:t>Cover</w:t><w:br w:type="page"/></w:r></w:p>)", true},
        {R"(<w:p><w:r><w:br w:type="page"/><w:t>Cover</w:t></w:r></w:p>)", false},
        {cover + ahead, true},
        {cover + section("nextPage") + empty, true},
        {cover + section("nextPage") + drawing, false},
        {"<w:p><w:pPr><w:sectPr/></w:pPr><w:r><w:t>Cover</w:t></w:r></w:p>" + empty, true},
        // The kind of a section is how that one begins.
        {cover + section("continuous") + empty, true},
        {cover + section("nextPage") + section("continuous"), false},
        {cover + section("nextPage") + empty + section("continuous"), false},
        {table + empty, false},
        {cover + breaking + "<w:altChunk/>", false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(open(row.body)->isLastPageEmpty(), row.isEmpty) << row.body;
}

/// Whatever a document ends with, the export goes behind it, each picture on a page of its own.
TEST_F(DocumentFile, TakesPicturesWithNumberedCaptions) {
    const std::string sequence =
        R"(<w:p><w:r><w:t>Figure </w:t></w:r><w:r><w:fldChar w:fldCharType="begin"/></w:r><w:r>)"
        R"(<w:instrText> SEQ Figure </w:instrText></w:r><w:r><w:fldChar w:fldCharType="separate"/>)"
        R"(</w:r><w:r><w:t>1</w:t></w:r><w:r><w:fldChar w:fldCharType="end"/></w:r></w:p>)";
    struct {
        std::string body;
        Lines labels;
        Lines expected;
    } const rows[] = {
        {"<w:p/>",
         {"Figure", "Sales 2026", "Figure", ""},
         {"", "|", "", "*", "Caption:Figure 1", "|Caption:", "Caption:", "*",
          "Caption:Sales 2026 1", "|Caption:", "Caption:", "*", "Caption:Figure 2",
          "|Caption:", "Caption:", "*"}},
        // Counted on from what stands there.
        {sequence, {"Figure"}, {"Figure 1", "|", "", "*", "Caption:Figure 2"}},
        // Labels that make one name count apart.
        {"<w:p/>",
         {"A b", "A_b", "A b", "a B"},
         {"", "|", "", "*", "Caption:A b 1", "|Caption:", "Caption:", "*", "Caption:A_b 1",
          "|Caption:", "Caption:", "*", "Caption:A b 2", "|Caption:", "Caption:", "*",
          "Caption:a B 3"}},
        {R"(<w:tbl><w:tblPr/><w:tblGrid><w:gridCol w:w="900"/></w:tblGrid><w:tr><w:tc><w:p/></w:tc>)"
         R"(</w:tr></w:tbl>)",
         {"\"x\""},
         {"", "", "|", "", "*", "Caption:\"x\" 1"}},
        {R"(<w:sdt><w:sdtContent><w:p><w:r><w:t>in</w:t></w:r></w:p></w:sdtContent></w:sdt>)",
         {""},
         {"in", "", "|", "", "*"}},
        {R"(<w:altChunk/>)", {""}, {"", "|", "", "*"}},
        {R"(<w:p><w:r><w:t>ahead</w:t></w:r></w:p><w:altChunk/>)",
         {""},
         {"ahead", "", "|", "", "*"}},
        // A section that ends with the last paragraph goes on to end there.
        {R"(<w:p><w:pPr><w:jc w:val="center"/><w:sectPr/></w:pPr></w:p>)",
         {""},
         {"", "|", "", "*"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.body + testing::PrintToString(row.labels));
        const auto document = open(row.body);
        EXPECT_EQ(document->length() == 1, row.body.find("<w:t") == std::string::npos &&
                                               row.body.find("<w:alt") == std::string::npos);
        for (const std::string& label : row.labels) addPicture(*document, label);
        EXPECT_EQ(read(*document), row.expected);
        const auto again = saved(*document);
        EXPECT_EQ(read(*again), row.expected);
        EXPECT_EQ(again->objectCount(Anchoring::Inline),
                  static_cast<std::int32_t>(row.labels.size()));
        EXPECT_STREQ(again->body().last_child().name(), "w:sectPr");
        EXPECT_STREQ(again->body().last_child().previous_sibling().name(), "w:p");
    }
}

std::string repeated(const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i) all += text;
    return all;
}

/// What is wrong says so in words; what is only odd is worked with.
TEST_F(DocumentFile, RefusesOrBearsHostileDocuments) {
    const std::string sequence = R"(<w:fldSimple w:instr="SEQ Figure )";
    struct {
        const char* part;
        std::string from, to;
        /// Empty for what is borne.
        std::string why;
    } const rows[] = {
        {textPart, "<w:body>", "<w:corpse>", "is no XML"},
        {textPart, "w:body", "w:corpse", "no text"},
        {textPart, "w:document", "w:paper", "no document"},
        {textPart, "2006/main\"", "2006/other\"", "no document"},
        {textPart, "<w:p/>", repeated("<w:p>", 300) + repeated("</w:p>", 300), "nested"},
        {"/word/styles.xml", "w:styles", "w:stiles", "styles"},
        {"/word/styles.xml", "</w:styles>", "", "is no XML"},
        {textPart, "<w:p/>", "", ""},
        {textPart, "<w:p/>", "<w:sectPr/><w:sectPr/><w:bookmarkEnd w:id=\"1\"/>", ""},
        {textPart, "w:w=\"11906\"", "w:w=\"1e999\"", ""},
        {textPart, "w:left=\"1440\"", "w:left=\"-x\"", ""},
        {textPart, "<w:p/>",
         repeated("<w:p><w:r><w:fldChar w:fldCharType=\"begin\"/></w:r></w:p>", 500), ""},
        {textPart, "<w:p/>", "<w:p><w:r><w:fldChar w:fldCharType=\"end\"/></w:r></w:p>", ""},
        {textPart, "<w:p/>",
         "<w:p>" + sequence + "\\r 99999999999999\"/>" + sequence + "\\s\"/></w:p>", ""},
        {textPart, "<w:p/>", "<w:p><w:r><w:object/><w:pict><x/></w:pict></w:r></w:p>", ""},
        {textPart, "<w:p/>",
         "<w:p><w:r><w:drawing><wp:inline xmlns:wp=\"http://schemas.openxmlformats.org/drawingml/"
         "2006/wordprocessingDrawing\"><wp:docPr id=\"-4294967295\"/></wp:inline></w:drawing></w:r>"
         "</w:p>",
         ""},
        {"/word/styles.xml", "w:styleId=\"Normal\"", "w:styleId=\"&quot;&gt;&amp;\"", ""},
        {"/word/styles.xml", "\"caption\"", "\"heading 2\"", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.to.substr(0, 120));
        Package package = support::emptyDocument();
        support::edit(package, row.part, row.from, row.to);
        const std::string file = folder.file("hostile.docx");
        std::filesystem::remove(file);
        package.save(file);
        std::string why;
        try {
            static_cast<void>(documentFactsOf(file));
            const auto document =
                std::dynamic_pointer_cast<FileDocument>(documents->load(file, false));
            word::Page page = document->page();
            EXPECT_GT(page.width - page.leftMargin - page.rightMargin, 0);
            document->setPage(page);
            addPicture(*document, "Figure");
            document->typeText("a\tb\nc");
            document->moveDown(1);
            for (const Anchoring anchoring : {Anchoring::Inline, Anchoring::Floating}) {
                for (int i = document->objectCount(anchoring); i > 0; --i)
                    EXPECT_GE(document->objectAt(anchoring, i)->size().width, 0);
            }
            // Of the style that the file calls so, or of a new one.
            const std::string style = row.from == "\"caption\"" ? "Caption2" : "Caption";
            const auto lines = read(*document);
            EXPECT_NE(std::find_if(
                          lines.begin(), lines.end(),
                          [&](const auto& line) { return line.starts_with(style + ":Figure "); }),
                      lines.end());
            document->saveCopy(file);
            document->close();
        } catch (const PackageError& error) {
            why = error.what();
        }
        EXPECT_EQ(why.empty(), row.why.empty()) << why;
        EXPECT_NE(why.find(row.why), std::string::npos) << why;
    }
    // What nobody can validate stays here.
    std::filesystem::remove(folder.file("hostile.docx"));
}

TEST_F(DocumentFile, KnowsHowWideItsColumnsAre) {
    const struct {
        const char* columns;
        double width;
    } rows[] = {
        {"", 451.3},
        {R"(<w:cols w:num="1" w:space="720"/>)", 451.3},
        {R"(<w:cols w:num="2" w:space="720"/>)", 207.65},
        {R"(<w:cols w:num="2"/>)", 207.65},
        {R"(<w:cols w:num="2" w:equalWidth="0"><w:col w:w="6000"/><w:col w:w="2000"/></w:cols>)",
         100}};
    for (const auto& row : rows) {
        const auto document =
            open(std::string("<w:p><w:pPr><w:sectPr>") + R"(<w:pgSz w:w="11906" w:h="16838"/>)" +
                 row.columns + "</w:sectPr></w:pPr></w:p><w:p/>");
        EXPECT_NEAR(document->lineWidth(), row.width, 0.1) << row.columns;
    }
}

TEST_F(DocumentFile, TellsWhetherItIsProtectedAndRecordsChanges) {
    const struct {
        const char* settings;
        bool isProtected, recordsChanges;
    } rows[] = {{"", false, false},
                {R"(<w:documentProtection w:edit="readOnly"/>)", false, false},
                {R"(<w:documentProtection w:edit="forms" w:enforcement="1"/>)", true, false},
                {"<w:trackRevisions/>", false, true},
                {R"(<w:trackRevisions w:val="0"/>)", false, false}};
    for (const auto& row : rows) {
        Package package = support::emptyDocument();
        const std::string part = package.partOfType(textPart, "settings");
        const std::string settings = package.read(part);
        const auto start = settings.find('>', settings.find("<w:settings")) + 1;
        package.replace(part, std::string(settings).insert(start, row.settings));
        const std::string file = folder.file("settings.docx");
        std::filesystem::remove(file);
        package.save(file);
        const FileFacts facts = documentFactsOf(file);
        EXPECT_EQ(facts.isProtected, row.isProtected) << row.settings;
        EXPECT_EQ(facts.recordsChanges, row.recordsChanges) << row.settings;
    }
    // The order of settings is another matter.
    std::filesystem::remove(folder.file("settings.docx"));
}

/// Whatever else a package holds is written as it was, and what it is changes with its name.
TEST_F(DocumentFile, KeepsTheRestAndDropsMacrosWhereTheNameSays) {
    Package package = support::emptyDocument();
    package.add("/word/vbaProject.bin", "application/vnd.ms-office.vbaProject", "macros");
    package.relationshipsOf(textPart).add(macroProject, "/word/vbaProject.bin");
    package.add("/customXml/item1.xml", "application/xml", "<?odd?><a  b='1'/>");
    package.setContentType(textPart,
                           "application/vnd.ms-word.template.macroEnabledTemplate.main+xml");
    const std::string file = folder.file("template.dotm");
    package.save(file);
    const FileFacts facts = documentFactsOf(file);
    EXPECT_TRUE(facts.hasMacros && !facts.isSigned && !facts.isStrict);
    const auto document = std::dynamic_pointer_cast<FileDocument>(documents->load(file, false));
    document->setTitle("Zahlen <2026>");
    document->typeText("typed");
    for (const char* const name : {"out.docm", "out.docx"}) {
        document->saveCopy(folder.file(name));
        Package out = Package::open(folder.file(name));
        const bool keeps = std::string(name).ends_with("m");
        EXPECT_EQ(out.has("/word/vbaProject.bin"), keeps);
        EXPECT_EQ(out.contentTypeOf(textPart),
                  keeps ? "application/vnd.ms-word.document.macroEnabled.main+xml"
                        : "application/vnd.openxmlformats-officedocument.wordprocessingml."
                          "document.main+xml");
        for (const std::string& part : package.parts()) {
            const bool isOurs = part == textPart || part == "/docProps/core.xml" ||
                                part == "/word/vbaProject.bin" ||
                                part.ends_with("document.xml.rels");
            if (!isOurs) {
                EXPECT_EQ(out.read(part), package.read(part)) << part;
            }
        }
        EXPECT_EQ(documents->add(std::move(out), "", "")->title(), "Zahlen <2026>");
    }
    EXPECT_EQ(support::failureOf([&] { document->saveCopy(folder.file("out.odt")); }), 5);
    EXPECT_EQ(support::failureOf([&] { document->exportPdf(folder.file("a.pdf"), {}); }), 1004);
}

}  // namespace
