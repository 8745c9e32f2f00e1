#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/text/XTextColumns.hpp>
#include <com/sun/star/text/XTextFrame.hpp>

#include <functional>

#include "live/word_live.h"
#include "office/failure.h"

namespace live {

namespace {

using namespace libreoffice;

TEST_F(WordLive, PastesWhereTheCaretIs) {
    selection().call("TypeText", "one two\nthree");
    const auto places = std::vector<std::pair<const char*, std::function<void()>>>{
        {"selected text",
         [&] {
             const auto cursor = body()->createTextCursor();
             cursor->gotoStart(false);
             cursor->goRight(3, false);
             cursor->goRight(4, true);
             select(uno::Any(uno::Reference<css::text::XTextRange>(cursor.get())));
         }},
        {"a cell",
         [&] {
             select(uno::Any(body()->getEnd()));
             copyCells();
             selection().call("PasteSpecial");
             select(uno::Any(cell("B2")->getEnd()));
         }},
        {"a frame",
         [&] {
             const auto frame = as<css::text::XTextFrame>(put("com.sun.star.text.TextFrame"));
             select(uno::Any(frame->getText()->getEnd()));
         }},
        {"an object", [&] { document.get("InlineShapes").get("Item", 1).call("Select"); }},
    };
    for (const auto& [name, goThere] : places) {
        SCOPED_TRACE(name);
        goThere();
        copyPicture();
        const auto pictures = [&] {
            return desk->active<word::WriterDocument>()->objectCount(
                office::model::word::Anchoring::Inline);
        };
        const std::int32_t before = pictures();
        EXPECT_EQ(failureOf([&] { selection().call("Paste"); }), 0) << lastWords;
        EXPECT_EQ(pictures(), before + (*name == 'a' && name[2] == 'f' ? 0 : 1))
            << "frames stand outside of the text";
        selection().call("TypeText", "X");
    }
    EXPECT_EQ(text().substr(0, 9), "oneXX\nthr") << "the text went, and the X came behind pictures";
    EXPECT_EQ(fromUno(cell("B2")->getString()), "10.5X");
}

TEST_F(WordLive, KnowsHowLongLinesAreWhereTheCaretIs) {
    const auto width = [&] {
        return selection().get("PageSetup").get("TextColumns").get("Width").toDouble();
    };
    const double ofPage = width();
    EXPECT_NEAR(ofPage, 482, 1);
    const auto frame = as<css::text::XTextFrame>(put("com.sun.star.text.TextFrame"));
    setProperty(frame, "Width", sal_Int32{5000});
    select(uno::Any(frame->getText()->getEnd()));
    EXPECT_NEAR(width(), 5000 * 72 / 2540.0, 10);
    select(uno::Any(body()->getEnd()));
    const auto grid = as<css::text::XTextTable>(
        desk->active<word::WriterDocument>()->createInstance("com.sun.star.text.TextTable"));
    grid->initialize(2, 4);
    body()->insertTextContent(body()->getEnd(), as<css::text::XTextContent>(grid), false);
    select(uno::Any(cell("C2")->getEnd()));
    EXPECT_NEAR(width(), ofPage / 4, 10);
    copyCells();
    selection().call("PasteSpecial");
    EXPECT_LT(property<sal_Int32>(table(1), "Width"), 17000 / 4);
    select(uno::Any(body()->getEnd()));
    EXPECT_NEAR(width(), ofPage, 1);
    const auto columns = as<css::text::XTextColumns>(
        desk->active<word::WriterDocument>()->createInstance("com.sun.star.text.TextColumns"));
    columns->setColumnCount(2);
    setProperty(put("com.sun.star.text.TextSection", true), "TextColumns", columns);
    select(uno::Any(body()->getStart()));
    EXPECT_NEAR(width(), ofPage / 2, 10);
}

TEST_F(WordLive, RefusesWhereNobodyMayWriteAndLeavesAllAsItWas) {
    selection().call("TypeText", "kept");
    const auto protectedSection = [&] {
        setProperty(put("com.sun.star.text.TextSection", true), "IsProtected", true);
        select(uno::Any(body()->getStart()));
    };
    const auto cells = [&] {
        copyCells();
        selection().call("PasteSpecial");
        select(uno::Any(as<css::table::XCellRange>(table())->getCellRangeByName("A1:B2")));
    };
    const auto readOnly = [&] {
        document.call("SaveCopyAs", file("locked.odt"));
        static_cast<void>(desk->load(fileUrl(file("locked.odt")), true, {}, true));
        for (const auto& each : desk->open<word::WriterDocument>()) {
            if (each->name() == "locked.odt") each->markActive();
        }
        document = app.get("ActiveDocument").toObject();
        EXPECT_TRUE(document.get("ReadOnly").toBool());
    };
    const auto anywhere = [] {};
    const auto paste = [&] { selection().call("PasteSpecial"); };
    const auto link = [&] { selection().call("PasteSpecial", arg("Link", true)); };
    const std::vector<std::tuple<const char*, std::function<void()>, std::function<void()>>> cases =
        {
            {"a link", anywhere, link},
            {"several cells", cells, paste},
            {"a protected section", protectedSection, paste},
            {"typing there", anywhere, [&] { selection().call("TypeText", "no"); }},
            {"a caption there", anywhere, [&] { caption("Figure"); }},
            {"only to be read", readOnly, paste},
            {"its end", anywhere, [&] { document.get("Range").call("InsertParagraphAfter"); }},
        };
    for (const auto& [name, goThere, act] : cases) {
        SCOPED_TRACE(name);
        goThere();
        copyChart();
        const std::string before = text();
        const std::int32_t objects = count("InlineShapes");
        EXPECT_EQ(failureOf(act), 1004);
        EXPECT_EQ(text(), before);
        EXPECT_EQ(count("InlineShapes"), objects);
        EXPECT_EQ(embedded().size(), 0U);
    }
}

TEST_F(WordLive, KeepsTheOrderOfReadingAndOneStepToTakeBack) {
    using office::model::word::Anchoring;
    selection().call("TypeText", "first\nsecond");
    const auto pasteAt = [&](const uno::Reference<css::text::XTextRange>& place,
                             const char* words) {
        select(uno::Any(place));
        copyChart();
        selection().call("PasteSpecial");
        const Value shapes = document.get("InlineShapes");
        for (std::int32_t i = 1; i <= count("InlineShapes"); ++i) {
            const Object shape = shapes.get("Item", i).toObject();
            if (shape.get("AlternativeText").toText().empty()) shape.put("AlternativeText", words);
        }
    };
    pasteAt(body()->getEnd(), "end");
    pasteAt(body()->getStart(), "start");
    select(uno::Any(body()->getEnd()));
    copyCells();
    selection().call("PasteSpecial");
    pasteAt(cell("B1")->getEnd(), "cell");
    pasteAt(body()->getEnd(), "behind");
    std::vector<std::string> order;
    for (std::int32_t i = 1; i <= count("InlineShapes"); ++i)
        order.push_back(
            document.get("InlineShapes").get("Item", i).get("AlternativeText").toText());
    EXPECT_EQ(order, (std::vector<std::string>{"start", "end", "cell", "behind"}));
    const auto steps = as<css::document::XUndoManagerSupplier>(model())->getUndoManager();
    steps->undo();  // its alternative text
    steps->undo();
    EXPECT_EQ(count("InlineShapes"), 3);
    EXPECT_TRUE(table().is());
}

TEST_F(WordLive, PassesOverObjectsThatAMacroHasLeftWithoutAPlace) {
    selection().call("TypeText", "Report");
    copyCells();
    selection().call("PasteSpecial", arg("DataType", 0), arg("Placement", 1));
    selection().call("PasteSpecial");
    EXPECT_EQ(count("Shapes"), 1);
    body()->setString("Other");
    copyCells();
    selection().call("PasteSpecial", arg("DataType", 0), arg("Placement", 1));
    EXPECT_EQ(count("Shapes"), 1) << "the one that has a place";
}

TEST_F(WordLive, WritesWhereTheCaretStandsInADocumentThatNobodySees) {
    document = app.get("Documents").call("Add", arg("Visible", false)).toObject();
    const auto item = [&](const std::string& name) {
        selection().call("TypeParagraph");
        selection().call("TypeText", name);
        selection().call("Paste");
        document.get("InlineShapes")
            .get("Item", count("InlineShapes"))
            .put("AlternativeText", name);
    };
    copyPicture();
    item("first");
    EXPECT_LT(callsOf([&] { item("second"); }), 12U);
    caption("Figure");
    item("third");
    EXPECT_EQ(text(), "\nfirst\nsecond\nFigure 1\nthird");
    selection().call("HomeKey", 5);
    selection().call("TypeText", "The ");
    EXPECT_EQ(text(), "\nfirst\nsecond\nFigure 1\nThe third");
    selection().call("Paste");
    EXPECT_EQ(document.get("InlineShapes").get("Item", 4).get("AlternativeText").toText(), "third");
}

}  // namespace

}  // namespace live
