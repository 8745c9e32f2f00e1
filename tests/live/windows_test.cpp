// A LibreOffice with windows on a screen, as a user has it.

#include <com/sun/star/awt/XTopWindow.hpp>
#include <com/sun/star/frame/XController2.hpp>
#include <com/sun/star/frame/XDispatchHelper.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/sheet/FilterOperator.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XSheetCellRangeContainer.hpp>
#include <com/sun/star/sheet/XSheetFilterable.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>
#include <com/sun/star/sheet/XViewFreezable.hpp>
#include <com/sun/star/sheet/XViewPane.hpp>
#include <com/sun/star/text/XTextRange.hpp>
#include <com/sun/star/util/XMergeable.hpp>
#include <com/sun/star/util/XSearchable.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>
#include <fmt/format.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "office/libreoffice/connection.h"
#include "office/libreoffice/desk.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/installation.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/process.h"
#include "office/libreoffice/word/writer_document.h"
#include "support/automation.h"
#include "support/temporary_folder.h"

namespace live {

namespace {

using namespace libreoffice;
using namespace std::chrono_literals;
using office::arg;
using office::Value;

template <class Condition>
bool becomesTrue(const Condition& condition, std::chrono::seconds patience = 10s) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        std::this_thread::sleep_for(20ms);
    }
    return true;
}

/// The suite of all tests here.
class Screen : public testing::Environment {
public:
    void SetUp() override {
        // On a new profile the suite would try out its drawing for a second.
        const auto profile = folder.path() / "profile" / "user";
        std::filesystem::create_directories(profile);
        std::ostringstream quiet;
        quiet << std::ifstream(MURVANE_QUIET_SUITE).rdbuf();
        std::string settings = quiet.str();
        settings.insert(
            settings.rfind("</oor:items>"),
            fmt::format("<item oor:path=\"/org.openoffice.Setup/Office/Factories/"
                        "org.openoffice.Setup:Factory['com.sun.star.text.TextDocument']\"><prop "
                        "oor:name=\"ooSetupFactoryTemplateFile\" oor:op=\"fuse\"><value>{}"
                        "</value></prop></item>",
                        fromUno(fileUrl(textTemplate()))));
        std::ofstream(profile / "registrymodifications.xcu") << settings;
        const std::string pipe = "murvane-windows-" + std::to_string(getpid());
        process = std::make_unique<Process>(
            Process::start({programFolder() + "/soffice",
                            "-env:UserInstallation=file://" + folder.path().string() + "/profile",
                            "--accept=pipe,name=" + pipe + ";urp", "--norestore", "--nologo",
                            "--nodefault", "--nolockcheck"},
                           true));
        ASSERT_TRUE(
            becomesTrue([&] { return (connection = Connection::open(pipe)) != nullptr; }, 60s));
    }
    void TearDown() override {
        if (connection) static_cast<void>(connection->desktop()->terminate());
        connection.reset();
        process->waitFor(20s);
    }

    /// What new texts of this user begin with, once it is there.
    [[nodiscard]] std::string textTemplate() const { return folder.file("letter.ott"); }

    support::TemporaryFolder folder;
    std::unique_ptr<Process> process;
    std::shared_ptr<Connection> connection;
};

// The framework owns it.
auto* const screen =
    static_cast<Screen*>(testing::AddGlobalTestEnvironment(std::make_unique<Screen>().release()));

class Windows : public testing::Test {
protected:
    void TearDown() override {
        const auto desk = freshDesk();
        for (const auto& book : desk->open<excel::CalcDocument>()) book->close();
        for (const auto& deck : desk->open<powerpoint::ImpressDeck>()) deck->close();
    }

    /// What automation that was just started knows.
    [[nodiscard]] static DeskPtr freshDesk() {
        return std::make_shared<Desk>(screen->connection, false,
                                      std::make_shared<office::Clipboard>(),
                                      std::make_shared<office::drawing::DrawingRoom>());
    }
};

using Model = uno::Reference<css::frame::XModel>;

/// As a click on the document's window does, and another one where the window manager was busy.
void goTo(const Model& document) {
    const auto frame = document->getCurrentController()->getFrame();
    const auto window = frame->getContainerWindow();
    const auto click = [&] {
        as<css::awt::XTopWindow>(window)->toFront();
        frame->activate();
        window->setFocus();
        return becomesTrue(
            [&] {
                return tryAs<css::frame::XModel>(
                           screen->connection->desktop()->getCurrentComponent()) == document;
            },
            2s);
    };
    ASSERT_TRUE(click() || click() || click());
}

TEST_F(Windows, TheActiveDocumentOfAKindIsTheOneThatTheUserWasInLast) {
    const auto desk = freshDesk();
    std::vector<Model> documents;
    for (const char* kind : {"scalc", "scalc", "simpress", "simpress"})
        documents.push_back(desk->load("private:factory/" + toUno(kind), false));
    std::vector<std::size_t> order = {0, 1, 2, 3};
    do {
        for (const std::size_t each : order) goTo(documents[each]);
        const auto place = [&](std::size_t each) {
            return std::find(order.begin(), order.end(), each) - order.begin();
        };
        const auto last = [&](std::size_t one, std::size_t other) {
            return documents[place(one) > place(other) ? one : other];
        };
        std::string told;
        for (const std::size_t each : order) told += std::to_string(each);
        // The window system raises a window a moment after it is asked to.
        for (const bool anew : {true, false}) {
            EXPECT_TRUE(becomesTrue([&] {
                const DeskPtr asked = anew ? freshDesk() : desk;
                return asked->active<excel::CalcDocument>()->model() == last(0, 1) &&
                       asked->active<powerpoint::ImpressDeck>()->model() == last(2, 3);
            })) << told;
            if (HasFailure()) return;
        }
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(Windows, ATextThatNobodySeesHasNothingOfTheUsersLetterhead) {
    const Value texts = word::applicationObject(freshDesk()).get("Documents");
    const auto add = [&](bool isVisible) { return texts.call("Add", arg("Visible", isVisible)); };
    const Value letter = add(false);
    letter.get("ActiveWindow").get("Selection").call("TypeText", "Yours sincerely");
    const std::string file = screen->folder.file("letter.odt");
    letter.call("SaveCopyAs", file);
    std::filesystem::rename(file, screen->textTemplate());
    letter.call("Close", false);
    for (const bool isVisible : {true, false}) {
        const Value text = add(isVisible);
        EXPECT_EQ(text.get("Range").get("StoryLength").toLong() > 1, isVisible);
        text.call("Close", false);
    }
}

/// A new workbook in a window, with two sheets of numbers.
class WorkbookInAWindow : public Windows {
protected:
    WorkbookInAWindow() {
        sheets->insertNewByName("Two", 1);
        uno::Sequence<uno::Sequence<uno::Any>> rows(300);
        for (sal_Int32 row = 0; row < rows.getLength(); ++row) {
            const std::array values = {uno::Any(row), uno::Any(row % 2)};
            rows.getArray()[row] = {values.data(), values.size()};
        }
        for (const char* name : {"Sheet1", "Two"})
            as<css::sheet::XCellRangeData>(cells(name, "A1:B300"))->setDataArray(rows);
    }

    [[nodiscard]] uno::Reference<css::sheet::XSpreadsheet> sheet(const char* name) const {
        return uno::Reference<css::sheet::XSpreadsheet>(sheets->getByName(toUno(name)),
                                                        uno::UNO_QUERY_THROW);
    }
    [[nodiscard]] uno::Reference<css::table::XCellRange> cells(const char* name,
                                                               const char* address) const {
        return sheet(name)->getCellRangeByName(toUno(address));
    }
    void select(const uno::Reference<uno::XInterface>& what) const {
        static_cast<void>(as<css::view::XSelectionSupplier>(view)->select(uno::Any(what)));
    }
    void dispatch(const char* command) const {
        as<css::frame::XDispatchHelper>(
            screen->connection->create("com.sun.star.frame.DispatchHelper"))
            ->executeDispatch(
                as<css::frame::XDispatchProvider>(model->getCurrentController()->getFrame()),
                toUno(command), {}, 0, {});
    }
    /// "Sheet!$A$1:$B$2"
    [[nodiscard]] std::string selection() const {
        const auto selected = book->selection();
        return selected.sheet->knownName() + "!" + office::model::excel::addressOf(selected.blocks);
    }

    DeskPtr desk = freshDesk();
    Model model = desk->load("private:factory/scalc", false);
    std::shared_ptr<excel::CalcDocument> book = desk->record<excel::CalcDocument>(model);
    uno::Reference<css::sheet::XSpreadsheets> sheets =
        as<css::sheet::XSpreadsheetDocument>(model)->getSheets();
    uno::Reference<css::sheet::XSpreadsheetView> view =
        as<css::sheet::XSpreadsheetView>(model->getCurrentController());
};

TEST_F(WorkbookInAWindow, TellsWhatIsSelectedAsExcelDoes) {
    view->setActiveSheet(sheet("Two"));
    as<css::util::XMergeable>(cells("Two", "F2:H4"))->merge(true);
    const auto list = as<css::sheet::XSheetFilterable>(cells("Two", "A1:B300"));
    const auto filter = list->createFilterDescriptor(true);
    css::sheet::TableFilterField ones;
    ones.Field = 1;
    ones.IsNumeric = true;
    ones.NumericValue = 1;
    ones.Operator = css::sheet::FilterOperator_EQUAL;
    filter->setFilterFields({&ones, 1});
    list->filter(filter);

    select(cells("Two", "A2:B8"));
    EXPECT_EQ(selection(), "Two!$A$2:$B$8") << "in a filtered list";
    select(cells("Two", "F2"));
    EXPECT_EQ(selection(), "Two!$F$2:$H$4") << "a merged cell";
    const auto several = as<css::sheet::XSheetCellRangeContainer>(
        as<css::lang::XMultiServiceFactory>(model)->createInstance(
            "com.sun.star.sheet.SheetCellRanges"));
    for (const sal_Int32 row : {301, 303}) several->addRangeAddress({1, 0, row, 1, row}, false);
    select(several);
    EXPECT_EQ(selection(), "Two!$A$302:$B$302,$A$304:$B$304");
    dispatch(".uno:TableSelectAll");
    select(cells("Two", "D302:E303"));
    EXPECT_EQ(selection(), "Two!$D$302:$E$303") << "on two sheets";
}

TEST_F(WorkbookInAWindow, LooksTheSameAfterACopyOfCells) {
    const auto panes = as<css::container::XIndexAccess>(view);
    const std::function<void()> divisions[] = {
        [] {}, [&] { as<css::sheet::XViewFreezable>(view)->freezeAtPosition(1, 2); },
        [&] {
            as<css::sheet::XViewFreezable>(view)->freezeAtPosition(0, 0);
            select(cells("Two", "B5"));
            dispatch(".uno:SplitWindow");
        },
        [&] { dispatch(".uno:TableSelectAll"); }};
    const auto scroll = [&] {
        const uno::Reference<css::sheet::XViewPane> last(panes->getByIndex(panes->getCount() - 1),
                                                         uno::UNO_QUERY_THROW);
        last->setFirstVisibleRow(240);
        last->setFirstVisibleColumn(3);
    };
    const auto seen = [&] {
        std::string all =
            fromUno(model->getCurrentController()->getViewData().get<rtl::OUString>());
        // The room for the tabs of a window that is still coming up.
        all.replace(all.find("tw:"), all.find(';', all.find("tw:")) - all.find("tw:"), selection());
        for (sal_Int32 i = 0; i < panes->getCount(); ++i) {
            const uno::Reference<css::sheet::XViewPane> pane(panes->getByIndex(i), uno::UNO_QUERY);
            all += fmt::format(" {},{}", pane->getFirstVisibleColumn(), pane->getFirstVisibleRow());
        }
        return all;
    };
    office::CopySource asCells;
    asCells.kind = office::CopySource::Kind::Cells;
    view->setActiveSheet(sheet("Sheet1"));
    select(cells("Sheet1", "B250"));
    scroll();
    view->setActiveSheet(sheet("Two"));
    cells("Two", "A1")->getCellByPosition(0, 0)->setFormula("of Two");
    for (std::size_t division = 0; division < std::size(divisions); ++division) {
        divisions[division]();
        for (const char* selected : {"B5", "A5:B9", "A5:XFD5"}) {
            select(cells("Two", selected));
            scroll();
            book->setModified(false);
            const std::string before = seen();
            for (const auto& [name, first] : {std::pair("Sheet1", "0"), {"Two", "of Two"}}) {
                const auto copy = book->findSheet(name)->cells({0, 0, 1, 2})->copy(asCells);
                EXPECT_EQ(copy->table().at(0, 0).text, first) << division << selected;
                EXPECT_EQ(seen(), before) << division << selected << name;
                EXPECT_FALSE(book->isModified());
            }
        }
    }
}

TEST_F(WorkbookInAWindow, KeepsInItsCellWhatIsBeingTyped) {
    const auto press = [](const char* key) {
        Process::start({"/usr/bin/xdotool", "key", key}, true).waitFor(10s);
    };
    const auto typed = [&](const char* name) {
        const auto search = as<css::util::XSearchable>(sheet(name));
        const auto what = search->createSearchDescriptor();
        what->setSearchString("x");
        return tryAs<css::text::XTextRange>(search->findFirst(what));
    };
    using Kind = office::CopySource::Kind;
    struct Case {
        const char* selected;
        const char* copiedFrom;
        Kind kind;
    };
    as<css::util::XMergeable>(cells("Sheet1", "F2:H4"))->merge(true);
    for (const auto& [selected, copiedFrom, kind] :
         {Case{"D5", "Two", Kind::Picture}, Case{"D5", "Sheet1", Kind::Picture},
          Case{"D5", "Sheet1", Kind::Cells}, Case{"F2", "Two", Kind::Picture},
          Case{"E5,D5:D7", "Two", Kind::Picture}, Case{"5:5", "Two", Kind::Picture},
          Case{"1:1048576", "Two", Kind::Picture}}) {
        SCOPED_TRACE(fmt::format("{} {}", selected, copiedFrom));
        view->setActiveSheet(sheet("Sheet1"));
        book->findSheet("Sheet1")->select(*office::model::excel::blocksOf(selected));
        goTo(model);
        as<css::frame::XController2>(model->getCurrentController())
            ->getComponentWindow()
            ->setFocus();
        const std::string before = selection();
        press("x");
        std::this_thread::sleep_for(500ms);
        office::CopySource source;
        source.kind = kind;
        try {
            const auto copy = book->findSheet(copiedFrom)->cells({3, 4, 3, 4})->copy(source);
            if (kind == Kind::Cells) {
                EXPECT_EQ(copy->table().at(0, 0).text, "x");
            }
        } catch (const uno::Exception& failure) {
            ADD_FAILURE() << fromUno(failure.Message);
        }
        EXPECT_EQ(selection(), before);
        press("Return");
        EXPECT_TRUE(becomesTrue([&] { return typed("Sheet1").is(); }, 3s));
        EXPECT_FALSE(typed("Two").is());
        for (const char* name : {"Sheet1", "Two"}) {
            if (const auto cell = typed(name); cell.is()) cell->setString("");
        }
    }
}

TEST_F(WorkbookInAWindow, IsThereInItsPrintPreviewToo) {
    view->setActiveSheet(sheet("Two"));
    dispatch(".uno:PrintPreview");
    ASSERT_TRUE(becomesTrue([&] { return !book->view().is(); }));
    EXPECT_EQ(book->activeSheet()->knownName(), "Two");
    std::string why;
    support::failureOf([&] { book->activeSheet()->cells({0, 0, 1, 2})->copy({}); }, &why);
    EXPECT_NE(why.find("print preview"), std::string::npos) << why;
}

}  // namespace

}  // namespace live
