#include <QtCore/QCoreApplication>
#include <QtGui/QHelpEvent>
#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QTreeView>

#include <ctime>

#include "desktop/fixture.h"
#include "desktop/list_view.h"

namespace {

class Lists : public OnTheDesktop {
protected:
    desktop::ListView& view() { return widgetOf<desktop::ListView>(form.listCharts); }

    QPoint textOf(int row) {
        return view().visualRect(view().model()->index(row, 0)).center() + QPoint(30, 0);
    }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mouseClick(view().viewport(), Qt::LeftButton, modifiers, textOf(row));
        desk.letEventsRun();
    }
    void clickBox(int row) { clickAt(*view().viewport(), view().checkBoxOf(row).center()); }
};

TEST_F(Lists, AClickChecksOnTheBoxSelectsOnTheTextAndNamesTheColumnOfAHeader) {
    clickBox(0);
    EXPECT_FALSE(form.rows.isChecked(0));
    EXPECT_EQ(form.happened, std::vector<std::string>{"check 0"});
    clickBox(0);
    EXPECT_TRUE(form.rows.isChecked(0));
    clickRow(3);
    EXPECT_EQ(form.rows.selected(), 3);
    EXPECT_TRUE(form.rows.isChecked(3));
    clickRow(3);
    EXPECT_EQ(times("row 3"), 2) << "a click on the selected row is a click too";
    form.listCharts.onItemCheck = [this](std::size_t row) {
        form.rows.setChecked(row, false);
        form.listCharts.rowsChanged();
    };
    clickBox(2);
    EXPECT_EQ(view().model()->index(2, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked)
        << "a check that the form takes back";
    QHeaderView& header = *view().header();
    clickAt(*header.viewport(), {header.sectionViewportPosition(3) + 10, 8});
    EXPECT_EQ(times("column 3"), 1);
}

TEST_F(Lists, ADoubleClickOnTheEdgeOfAColumnMakesItAsWideAsItsTexts) {
    form.rows.rows[2].cells[0] = "Revenue of all regions without the last quarter";
    form.listCharts.rowsChanged();
    desk.letEventsRun();
    QHeaderView& header = *view().header();
    const QPoint edge(header.sectionViewportPosition(0) + header.sectionSize(0) - 1, 8);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, edge);
    QTest::mouseDClick(header.viewport(), Qt::LeftButton, {}, edge);
    desk.letEventsRun();
    const int text =
        view().fontMetrics().horizontalAdvance("Revenue of all regions without the last quarter");
    EXPECT_GT(header.sectionSize(0), text + view().checkBoxOf(2).width());
    EXPECT_LT(header.sectionSize(0), text + 80);
}

TEST_F(Lists, ArrowKeysSelectAndSpaceChecksButTheFocusAloneSelectsNothing) {
    form.rows.selectedRow = -1;
    form.listCharts.rowsChanged();
    form.focus = &form.listCharts;
    desk.letEventsRun();
    EXPECT_EQ(form.rows.selected(), -1);
    for (const char* event : {"row 0", "row 1"}) {
        key(Qt::Key_Down);
        EXPECT_EQ(times(event), 1) << event;
    }
    key(Qt::Key_Space);
    EXPECT_FALSE(form.rows.isChecked(1));
    EXPECT_EQ(times("check 1"), 1);
    key(Qt::Key_End);
    EXPECT_EQ(form.rows.selected(), 11);
}

TEST_F(Lists, ShiftAndControlChooseSeveral) {
    const auto marked = [this] {
        std::string all;
        for (const auto& row : form.rows.rows) all += row.marked ? 'x' : '.';
        return all.substr(0, 6);
    };
    clickRow(1);
    clickRow(3, Qt::ShiftModifier);
    EXPECT_EQ(marked(), ".xxx..");
    clickRow(2, Qt::ControlModifier);
    EXPECT_EQ(marked(), ".x.x..");
    EXPECT_EQ(form.rows.selected(), 2);
    const QImage picture = view().viewport()->grab().toImage();
    const auto groundOf = [&](int row) { return picture.pixel(textOf(row) - QPoint(0, 9)); };
    EXPECT_NE(groundOf(2), groundOf(1)) << "the row that was taken out";
    clickRow(0, Qt::ShiftModifier);
    EXPECT_EQ(marked(), "xxx...") << "from the row that was chosen last";
    form.focus = &form.listCharts;
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(marked(), ".xx...") << "the other end stays";
    clickRow(1);
    EXPECT_EQ(marked(), ".x....") << "a click that was no drag";
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(marked(), "xxxxxx");
}

TEST_F(Lists, KeysMoveAndClearTheChosenRowsAndALetterJumpsToAName) {
    form.rows.rows[5].cells[0] = "Margin";
    clickRow(1);
    form.focus = &form.listCharts;
    key(Qt::Key_Up, Qt::ControlModifier);
    key(Qt::Key_Down, Qt::ControlModifier);
    key(Qt::Key_Delete);
    form.listCharts.onRowInsert = [this] { form.happened.emplace_back("insert"); };
    key(Qt::Key_Return, Qt::ControlModifier);
    key(Qt::Key_4, Qt::ControlModifier);
    for (const char* event : {"step -1", "step 1", "clear", "insert", "column 3"})
        EXPECT_EQ(times(event), 1) << event;
    EXPECT_EQ(form.rows.selected(), 1);
    type("ma");
    EXPECT_EQ(form.rows.selected(), 5);
}

TEST_F(Lists, CapitalsAndBlanksBelongToTheNameThatIsTyped) {
    form.rows.rows[5].cells[0] = "Margin";
    form.rows.rows[6].cells[0] = "Margin 2";
    clickRow(1);
    form.focus = &form.listCharts;
    key(Qt::Key_M, Qt::ShiftModifier);
    EXPECT_EQ(form.rows.selected(), 5);
    EXPECT_EQ(std::ranges::count_if(form.rows.rows, &sample::Rows::Row::marked), 1);
    type("argin 2");
    EXPECT_EQ(form.rows.selected(), 6);
    EXPECT_TRUE(form.rows.isChecked(5));
}

TEST_F(Lists, RowsAreDraggedToWhereTheLineShowsThem) {
    QWidget& area = *view().viewport();
    const auto drag = [&](int from, QPoint to) {
        QTest::mousePress(&area, Qt::LeftButton, {}, textOf(from));
        dragTo(area, textOf(from) + QPoint(0, 12));
        dragTo(area, to);
    };
    const auto drop = [&](QPoint at) {
        QTest::mouseRelease(&area, Qt::LeftButton, {}, at);
        desk.letEventsRun();
    };
    const QPoint lowerHalf = textOf(4) + QPoint(0, 8);
    drag(1, lowerHalf);
    drop(lowerHalf);
    EXPECT_EQ(times("move 5"), 1);
    const QPoint beyond(20, area.height() + 40);
    drag(2, beyond);
    QTest::keyClick(&view(), Qt::Key_Escape);
    drop(beyond);
    EXPECT_EQ(std::count_if(form.happened.begin(), form.happened.end(),
                            [](const std::string& event) { return event.starts_with("move"); }),
              1)
        << "given up";
    EXPECT_EQ(times("Cancel"), 0);
    // A box that the press brings up takes the release.
    QTest::mousePress(&area, Qt::LeftButton, {}, textOf(3));
    const QPoint onBox = view().checkBoxOf(1).center();
    QTest::mousePress(&area, Qt::LeftButton, {}, onBox);
    dragTo(area, onBox + QPoint(2, 1));
    drop(onBox);
    EXPECT_EQ(std::count_if(form.happened.begin(), form.happened.end(),
                            [](const std::string& event) { return event.starts_with("move"); }),
              1);
}

TEST_F(Lists, ColumnsAreAsWideAsTheFormSaysAndTheLastFillsTheList) {
    const auto isFilled = [this] {
        return view().header()->length() == view().viewport()->width();
    };
    EXPECT_TRUE(isFilled());
    EXPECT_EQ(form.listCharts.columns[4].width, 2350);
    EXPECT_TRUE(view().isColumnHidden(2));
    view().header()->resizeSection(0, 60);
    desk.letEventsRun();
    EXPECT_TRUE(isFilled());
    form.listCharts.columns[2].width = 720;
    form.listCharts.columns[0].width = 1;
    form.listCharts.columns[4].width = 9000;
    desk.letEventsRun();
    EXPECT_EQ(view().columnWidth(2), 48);
    EXPECT_TRUE(view().isColumnHidden(0)) << "a twip is less than a pixel";
    EXPECT_EQ(view().columnWidth(4), 600) << "wider than the list is wide";
}

TEST_F(Lists, ATipShowsTheWholeOfATextThatIsCut) {
    form.rows.rows[0].cells[0] = "Revenue <b>and</b> margin of all terminals";
    form.rows.rows[3].cells[0] = "Costs";
    form.listCharts.rowsChanged();
    const auto tipOf = [this](int row) {
        const QPoint at = textOf(row);
        QHelpEvent asks(QEvent::ToolTip, at, view().viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(view().viewport(), &asks);
        return QToolTip::text();
    };
    EXPECT_EQ(tipOf(3), QString());
    EXPECT_EQ(tipOf(0),
              QStringLiteral("<qt>Revenue &lt;b&gt;and&lt;/b&gt; margin of all terminals</qt>"));
}

TEST_F(Lists, EachRowHasTheColourOfItsText) {
    form.rows.rows[4].colour = forms::Colour::rgb(0xFF0000);
    form.rows.rows[4].cells[4] = "WWWWWWWW";
    form.listCharts.rowsChanged();
    const QRect cell = view().visualRect(view().model()->index(4, 4));
    const QImage picture = view().viewport()->grab(cell).toImage();
    int red = 0;
    for (int i = 0; i < picture.width() * picture.height(); ++i) {
        const QColor pixel = picture.pixelColor(i % picture.width(), i / picture.width());
        red += pixel.red() > 200 && pixel.green() < 60 ? 1 : 0;
    }
    EXPECT_GT(red, 40);
}

TEST_F(Lists, TheSelectedRowAndFewerRowsOrNoneAreShownAfterAChange) {
    form.rows.select(11);
    form.listCharts.rowsChanged();
    const QRect row = view().visualRect(view().model()->index(11, 0));
    EXPECT_TRUE(view().viewport()->rect().contains(row.center())) << "brought into view";
    form.rows.rows.resize(3);
    form.rows.selectedRow = -1;
    form.listCharts.rowsChanged();
    EXPECT_EQ(view().model()->rowCount(), 3);
    form.listCharts.rows = nullptr;
    form.listCharts.rowsChanged();
    EXPECT_EQ(view().model()->rowCount(), 0);
}

/// The processor's time, not the clock's: a busy machine shall not fail a test.
double usedMs() {
    return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

TEST(LongLists, TwoThousandRowsOpenAtOnceAndScrollAndChangeWithinAPictureOfTheScreen) {
    constexpr double pictureMs = 16;
    constexpr int steps = 100;
    desktop::QtDesktop desk;
    sample::SampleForm form(desk, 2000);
    const auto costOf = [&](const auto& step) {
        const double before = usedMs();
        for (int i = 0; i < steps; ++i) {
            step(i);
            desk.letEventsRun();
        }
        return (usedMs() - before) / steps;
    };
    const double before = usedMs();
    desk.show(form, forms::ShowMode::Modeless);
    desk.letEventsRun();
    EXPECT_LT(usedMs() - before, 200);
    auto& view = dynamic_cast<QTreeView&>(*desk.widgetOf(form.listCharts));
    EXPECT_LT(costOf([&](int i) { view.verticalScrollBar()->setValue(i * 400); }), pictureMs);
    EXPECT_LT(costOf([&](int i) {
                  const auto row = static_cast<std::size_t>(i);
                  form.listCharts.check(row, !form.rows.isChecked(row));
              }),
              pictureMs);
}

}  // namespace
