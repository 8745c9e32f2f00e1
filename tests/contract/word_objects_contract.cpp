#include "contract/contract_test.h"
#include "support/package_edit.h"
#include "support/png_file.h"
#include "support/vector_file.h"

namespace contract {

namespace {

TEST_F(WordContract, IsNotEmptyWithATableAlone) {
    copyItem("cells");
    selection().call("PasteSpecial");
    EXPECT_GT(document.get("Range").get("StoryLength").toLong(), 1);
}

/// A picture has nothing behind it that could be embedded or linked. For charts and cells a suite
/// may refuse that; then nothing is put there.
TEST_F(WordContract, PutsWhatWasCopiedAtTheCaretInEachForm) {
    constexpr std::int32_t overText = 1;
    struct {
        bool isObject, isLink;
        std::int32_t placement;
        const char* collection;
    } const forms[] = {{false, false, 0, "InlineShapes"},
                       {true, false, 0, "InlineShapes"},
                       {true, false, overText, "Shapes"},
                       {true, true, overText, "Shapes"}};
    for (const char* what : {"chart", "cells", "picture"}) {
        for (const auto& form : forms) {
            SCOPED_TRACE(std::string(what) + (form.isObject ? " object" : "") +
                         (form.isLink ? " linked " : " ") + form.collection);
            const bool isTable = *what == 'c' && what[1] == 'e' && !form.isObject;
            const Value all = shapes(form.collection);
            const std::int32_t before = all.get("Count").toLong();
            goToNewPage();
            const std::int32_t length = document.get("Range").get("StoryLength").toLong();
            copyItem(what);
            const std::int32_t failure = failureOf([&] {
                if (form.isObject)
                    selection().call("PasteSpecial", arg("Link", form.isLink), arg("DataType", 0),
                                     arg("Placement", form.placement), arg("DisplayAsIcon", false));
                else
                    selection().call("PasteSpecial");
            });
            if (!form.isObject || *what == 'p')
                EXPECT_EQ(failure, form.isObject ? refused : 0);
            else
                EXPECT_TRUE(failure == 0 || failure == refused) << failure;
            const bool isThere = failure == 0;
            if (isTable) {
                EXPECT_GT(document.get("Range").get("StoryLength").toLong(), length);
            }
            ASSERT_EQ(all.get("Count").toLong(), before + (isThere && !isTable ? 1 : 0));
            if (!isThere || isTable) continue;
            const Value made = all.get("Item", before + 1);
            EXPECT_GT(made.get("Width").toDouble(), 100);
            made.put("Width", 200);
            made.put("Height", 90);
            made.put("AlternativeText", "Figures");
            expectMembers(made,
                          {{"Width", 200.0}, {"Height", 90.0}, {"AlternativeText", "Figures"}});
        }
    }
}

TEST_F(WordContract, TakesThePictureOfAFileInItsOwnSize) {
    using office::PictureKind;
    std::int32_t count = 0;
    for (const auto kind : {PictureKind::Png, PictureKind::Svg, PictureKind::Emf}) {
        const std::string file =
            environment().temporaryFile(std::string("picture") + office::endingOf(kind));
        support::writeBytes(file, support::pictureOfPoints(kind, 200, 90));
        goToNewPage();
        const Value made = selection().get("InlineShapes").call("AddPicture", file, false, true);
        EXPECT_NEAR(made.get("Width").toDouble(), 200, 0.3) << file;
        EXPECT_NEAR(made.get("Height").toDouble(), 90, 0.3) << file;
        EXPECT_EQ(shapes("InlineShapes").get("Count").toLong(), ++count);
    }
    for (const std::string& file : {std::string("/no.svg"), "/" + std::string(300, 'x')})
        EXPECT_EQ(failureOf([&] { selection().get("InlineShapes").call("AddPicture", file); }), 53);
    EXPECT_EQ(shapes("InlineShapes").get("Count").toLong(), count);
}

TEST_F(WordContract, PutsAPictureOverTheText) {
    copyItem("picture");
    selection().call("PasteSpecial", arg("Placement", 1));
    ASSERT_EQ(shapes("Shapes").get("Count").toLong(), 1);
    EXPECT_EQ(shapes("InlineShapes").get("Count").toLong(), 0);
    shapes("Shapes").get("Item", 1).put("Left", Value());
}

/// Word shows no more of a picture than is as high as such a line.
TEST_F(WordContract, LetsLinesOfAnExactHeightGrowWithWhatStandsInThem) {
    for (const std::int32_t placement : {0, 1}) {
        office::package::Package letter = support::emptyDocument();
        // As all text is set.
        support::edit(letter, "/word/styles.xml", R"(w:line="259" w:lineRule="auto")",
                      R"(w:line="280" w:lineRule="exact")");
        const std::string file =
            environment().temporaryFile("letter" + std::to_string(placement) + ".docx");
        letter.save(file);
        document.call("Close", false);
        document = word.get("Documents").call("Open", file).toObject();
        copyItem("picture");
        selection().call("PasteSpecial", arg("Placement", placement));
        const std::string text =
            office::package::Package::open(saved("grown.docx")).read("/word/document.xml");
        EXPECT_EQ(text.find("lineRule=\"auto\"") != std::string::npos, placement == 0) << text;
    }
}

TEST_F(WordContract, CountsObjectsInTheOrderOfReading) {
    const Value all = shapes("InlineShapes");
    EXPECT_EQ(failureOf([&] { static_cast<void>(all.get("Item", 1)); }), subscriptOutOfRange);
    copyItem("picture");
    selection().call("Paste");
    all.get("Item", 1).put("Width", 50);
    // Ahead of the one that is there.
    selection().call("HomeKey");
    copyItem("picture");
    selection().call("Paste");
    ASSERT_EQ(all.get("Count").toLong(), 2);
    EXPECT_NEAR(all.get("Item", 2).get("Width").toDouble(), 50, 0.5);
    EXPECT_GT(all.get("Item", 1).get("Width").toDouble(), 100);
    EXPECT_EQ(failureOf([&] { all.get("Item", 1).put("Width", 0); }), 5);
}

TEST_F(WordContract, GivesAPictureAShadow) {
    copyItem("picture");
    selection().call("Paste");
    const Value shadow = shapes("InlineShapes").get("Item", 1).get("Shadow");
    shadow.put("Type", 21);
    shadow.put("Size", 100);
    shadow.put("Blur", 15);
    expectMembers(shadow, {{"Size", 100.0}, {"Blur", 15.0}});
}

TEST_F(WordContract, RefusesToPasteNothing) {
    EXPECT_EQ(failureOf([&] { selection().call("Paste"); }), refused);
    EXPECT_EQ(failureOf([&] { selection().call("PasteExcelTable", false, false, false); }),
              refused);
    EXPECT_EQ(failureOf([&] { static_cast<void>(selection().get("ShapeRange")); }), refused);
}

}  // namespace

}  // namespace contract
