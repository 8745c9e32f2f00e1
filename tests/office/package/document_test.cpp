#include "office/package/document_files.h"
#include "support/automation.h"

namespace {

using namespace document_files;

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
