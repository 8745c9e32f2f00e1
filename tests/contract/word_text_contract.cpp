#include "contract/contract_test.h"
#include "office/package/document/paragraph.h"
#include "office/package/document/reading_order.h"
#include "office/package/package.h"
#include "office/package/xml.h"

namespace contract {

namespace {

/// The paragraphs of a file, each with a bar ahead for a page break and a star for an object.
std::vector<std::string> paragraphsOf(const std::string& file) {
    namespace package = office::package;
    const std::string part = "/word/document.xml";
    const package::Xml text(package::Package::open(file).read(part), part);
    std::vector<std::string> all;
    bool breaksNext = false;
    for (const auto& paragraph : package::paragraphsIn(text.root())) {
        std::string line = breaksNext || package::breaksPage(paragraph) ? "|" : "";
        breaksNext = false;
        package::visitInOrder(paragraph, [&](const auto& element) {
            const bool isObject = package::isTextObject(element);
            if (isObject) line += "*";
            // At the end of the one before, as some programs write it.
            if (package::isPageBreak(element)) breaksNext = true;
            return !isObject;
        });
        all.push_back(line + package::textOf(paragraph));
    }
    return all;
}

using Lines = std::vector<std::string>;

TEST_F(WordContract, TypesAtTheCaretAndMovesByLines) {
    const Object caret = selection();
    EXPECT_EQ(document.get("Range").get("StoryLength").toLong(), 1);
    EXPECT_LE(caret.get("Text").toText().size(), 1U);
    caret.call("TypeText", "first");
    caret.call("TypeParagraph");
    caret.call("TypeText", "second ä");
    EXPECT_EQ(document.get("Range").get("StoryLength").toLong(), 15);
    caret.call("HomeKey");
    caret.call("TypeText", "the ");
    caret.call("TypeParagraph");
    caret.call("MoveDown", arg("Count", 3));
    caret.call("TypeText", ".\r\nthird\vand more");
    EXPECT_EQ(paragraphsOf(saved("typed.docx")),
              (Lines{"first", "the ", "second ä.", "third\nand more"}));
}

TEST_F(WordContract, AppendsPagesBehindAllText) {
    selection().call("TypeText", "as it was");
    for (int i = 0; i < 2; ++i) {
        goToNewPage();
        copyItem("picture");
        selection().call("TypeParagraph");
        selection().call("Paste");
    }
    EXPECT_EQ(paragraphsOf(saved("pages.docx")), (Lines{"as it was", "|", "", "*", "|", "", "*"}));
}

TEST_F(WordContract, KnowsWhetherTheLastPageIsEmpty) {
    const auto isFree = [&] { return document.get("Bookmarks", "\\page").get("Empty").toBool(); };
    EXPECT_TRUE(isFree());
    for (const char* const item : {"cells", "text", "picture"}) {
        SCOPED_TRACE(item);
        if (std::string_view(item) == "text") {
            selection().call("TypeText", "as it was");
        } else {
            copyItem(item);
            selection().call("PasteSpecial");
        }
        EXPECT_FALSE(isFree());
        selection().call("TypeParagraph");
        EXPECT_FALSE(isFree());
        goToNewPage();
        EXPECT_TRUE(isFree());
    }
}

TEST_F(WordContract, TakesEmptyParagraphsAndLettersOutAgain) {
    const Object caret = selection();
    caret.call("TypeText", "as it was");
    caret.put("Style", -63);
    goToNewPage();
    caret.put("Style", -1);
    caret.call("TypeText", "ä\v言😀");
    for (int i = 0; i < 6; ++i) caret.call("TypeBackspace");
    copyItem("picture");
    caret.call("PasteSpecial");
    EXPECT_EQ(failureOf([&] { caret.call("TypeBackspace"); }), refused);
    caret.call("TypeText", "!");
    const std::string file = saved("as it was.docx");
    EXPECT_EQ(paragraphsOf(file), Lines{"*as it was!"});
    const std::string part = "/word/document.xml";
    EXPECT_NE(office::package::Package::open(file).read(part).find("\"Title\""), std::string::npos);
}

/// Each label counts for itself, over what stood in the file before, too.
TEST_F(WordContract, NumbersCaptionsByTheirLabels) {
    const Value labels = word.get("CaptionLabels");
    // Shown in one line.
    const char* const regions = "North\n&\tSouth";
    labels.call("Add", regions);
    EXPECT_EQ(failureOf([&] { labels.call("Add", regions); }), refused);
    const auto caption = [&](const char* label) {
        goToNewPage();
        selection().call("InsertCaption", arg("Label", label), arg("Title", ""));
    };
    EXPECT_EQ(failureOf([&] { caption("Unheard of"); }), refused);
    for (const char* const label : {"Figure", regions, "Figure"}) caption(label);
    const std::string file = saved("captions.docx");
    document.call("Close", false);
    document = word.get("Documents").call("Open", file).toObject();
    for (const char* const label : {regions, "Figure"}) caption(label);
    Lines captions = paragraphsOf(saved("more captions.docx"));
    std::erase_if(captions, [](const std::string& line) { return line.size() < 2; });
    EXPECT_EQ(captions,
              (Lines{"Figure 1", "North & South 1", "Figure 2", "North & South 2", "Figure 3"}));
}

TEST_F(WordContract, MeasuresThePageAndTurnsIt) {
    const Value page = selection().get("PageSetup");
    const double width = page.get("PageWidth").toDouble();
    EXPECT_LT(width, page.get("PageHeight").toDouble());
    page.put("LeftMargin", 50);
    page.put("RightMargin", 40);
    page.put("Orientation", 1);
    EXPECT_NEAR(page.get("PageHeight").toDouble(), width, 0.1);
    expectMembers(page, {{"LeftMargin", 50.0}, {"RightMargin", 40.0}, {"Orientation", 1}});
    EXPECT_EQ(failureOf([&] { page.put("TopMargin", -1); }), 5);
}

TEST_F(WordContract, KnowsItsDocuments) {
    const Value documents = word.get("Documents");
    const std::int32_t before = documents.get("Count").toLong();
    const std::string file = saved("named.docx");
    const Object opened = documents.call("Open", file).toObject();
    EXPECT_EQ(documents.get("Count").toLong(), before + 1);
    static_cast<void>(documents.call("Open", file));
    EXPECT_EQ(documents.get("Count").toLong(), before + 1);
    EXPECT_EQ(word.get("ActiveDocument").get("Name").toText(), "named.docx");
    EXPECT_EQ(opened.get("FullName").toText(), file);
    document.call("Activate");
    EXPECT_EQ(word.get("ActiveDocument").get("Name").toText(), document.get("Name").toText());
    opened.get("BuiltInDocumentProperties", "Title").put("Value", "Zahlen & mehr");
    EXPECT_EQ(opened.get("BuiltInDocumentProperties", "Title").get("Value").toText(),
              "Zahlen & mehr");
    opened.call("Close", false);
    EXPECT_EQ(failureOf([&] { static_cast<void>(opened.get("Name")); }),
              static_cast<std::int32_t>(FailureNumber::Disconnected));
    const std::string tooLong = "/" + std::string(300, 'x');
    for (const std::string& nowhere : {std::string("/nowhere.docx"), tooLong + ".docx"})
        EXPECT_EQ(failureOf([&] { static_cast<void>(documents.call("Open", nowhere)); }), refused);
    EXPECT_NE(failureOf([&] { document.call("SaveCopyAs", tooLong + "/copy.docx"); }), 0);
    EXPECT_EQ(failureOf([&] { document.call("SaveCopyAs", "/tmp/no.such"); }), 5);
}

}  // namespace

}  // namespace contract
