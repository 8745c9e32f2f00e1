#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "office/package/document/document_file.h"
#include "office/package/document/file_documents.h"
#include "office/package/document/reading_order.h"
#include "support/automation.h"
#include "support/package_edit.h"
#include "support/png_file.h"
#include "support/temporary_folder.h"
#include "support/written_decks.h"

namespace {

using namespace office::package;
using office::CopySource;
using office::PasteAs;
using word::Anchoring;

constexpr const char* textPart = "/word/document.xml";

struct CopiedPicture : office::Copied {
    CopiedPicture(double width, double height)
        : Copied({CopySource::Kind::Picture, {}, {}, {}, {}}),
          size{width, height} {}
    double widthPt() const override { return size.width; }
    double heightPt() const override { return size.height; }
    std::string png() const override {
        const auto bytes = support::pngPictureOfPoints(size.width, size.height);
        return {bytes.begin(), bytes.end()};
    }
    office::TableLook table() const override { return {}; }
    word::ObjectSize size;
};

class DocumentFile : public testing::Test {
protected:
    void TearDown() override { support::keepDecks(folder.path(), {}); }

    /// A document with this content in its body, or a new one.
    FileDocumentPtr open(const std::string& body = "<w:p/>") {
        Package package = support::emptyDocument();
        support::edit(package, textPart, "<w:p/>", body);
        return documents->add(std::move(package), "", "Document");
    }
    /// What an export does for one picture.
    static void addPicture(FileDocument& document, const std::string& label, double width = 240,
                           double height = 150) {
        for (const bool breaks : {true, false}) {
            word::ParagraphChange change;
            change.breaksPageBefore = breaks;
            document.appendParagraph();
            document.changeLastParagraph(change);
        }
        document.selectEnd();
        document.typeParagraph();
        document.paste(CopiedPicture(width, height), PasteAs::Default, Anchoring::Inline);
        if (!label.empty()) document.insertCaption({label, ""});
    }
    FileDocumentPtr saved(FileDocument& document) {
        const std::string file = folder.file(std::to_string(++files_) + ".docx");
        document.saveCopy(file);
        return documents->add(Package::open(file), file, file);
    }
    /// Its paragraphs, each as its style and its text; a bar for a page break, a star for an
    /// object.
    static std::vector<std::string> read(FileDocument& document) {
        std::vector<std::string> all;
        for (const auto& paragraph : paragraphsIn(document.body())) {
            const auto properties = paragraph.child("w:pPr");
            const auto breaks = properties.child("w:pageBreakBefore");
            std::string text = breaks && breaks.attribute("w:val").as_bool(true) ? "|" : "";
            if (const auto style = properties.child("w:pStyle"))
                text += document.styles().nameOf(style.attribute("w:val").value()) + ":";
            visitInOrder(paragraph, [&](const auto& element) {
                const bool isObject = isTextObject(element);
                if (isObject) text += "*";
                return !isObject;
            });
            all.push_back(text + textOf(paragraph));
        }
        return all;
    }

    support::TemporaryFolder folder;
    std::shared_ptr<FileDocuments> documents =
        std::make_shared<FileDocuments>(std::make_shared<FileRules>());

private:
    int files_ = 0;
};

using Lines = std::vector<std::string>;

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
         {"", "|", "", "*", "caption:Figure 1", "|caption:", "caption:", "*",
          "caption:Sales 2026 1", "|caption:", "caption:", "*", "caption:Figure 2",
          "|caption:", "caption:", "*"}},
        // Counted on from what stands there.
        {sequence, {"Figure"}, {"Figure 1", "|", "", "*", "caption:Figure 2"}},
        // Labels that make one name count apart.
        {"<w:p/>",
         {"A b", "A_b", "A b", "a B"},
         {"", "|", "", "*", "caption:A b 1", "|caption:", "caption:", "*", "caption:A_b 1",
          "|caption:", "caption:", "*", "caption:A b 2", "|caption:", "caption:", "*",
          "caption:a B 3"}},
        {R"(<w:tbl><w:tblPr/><w:tblGrid><w:gridCol w:w="900"/></w:tblGrid><w:tr><w:tc><w:p/></w:tc>)"
         R"(</w:tr></w:tbl>)",
         {"\"x\""},
         {"", "", "|", "", "*", "caption:\"x\" 1"}},
        {R"(<w:sdt><w:sdtContent><w:p><w:r><w:t>in</w:t></w:r></w:p></w:sdtContent></w:sdt>)",
         {""},
         {"in", "", "|", "", "*"}},
        // A section that ends with the last paragraph goes on to end there.
        {R"(<w:p><w:pPr><w:jc w:val="center"/><w:sectPr/></w:pPr></w:p>)",
         {""},
         {"", "|", "", "*"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.body + testing::PrintToString(row.labels));
        const auto document = open(row.body);
        EXPECT_EQ(document->length() == 1, row.body.find("<w:t") == std::string::npos);
        for (const std::string& label : row.labels) addPicture(*document, label);
        EXPECT_EQ(read(*document), row.expected);
        const auto again = saved(*document);
        EXPECT_EQ(read(*again), row.expected);
        EXPECT_EQ(again->objectCount(Anchoring::Inline),
                  static_cast<std::int32_t>(row.labels.size()));
        EXPECT_STREQ(again->body().last_child().name(), "w:sectPr");
    }
}

}  // namespace
