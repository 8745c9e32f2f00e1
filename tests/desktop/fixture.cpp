#include "desktop/fixture.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QTimer>
#include <QtGui/QMouseEvent>
#include <QtTest/QTest>

#include "furniture/theme.h"

namespace sample {

Rows::Rows(std::size_t howMany) {
    for (std::size_t i = 0; i < howMany; ++i) {
        rows.push_back({{fmt::format("Chart {}", i + 1), "Fleet & costs", "", std::to_string(i + 1),
                         fmt::format("Turnover of quarter {}, in million euros", i % 4 + 1)}});
    }
}

SampleForm::SampleForm(forms::Desktop& desktop, std::size_t rowCount)
    : Form(desktop, "SampleForm", 12000, 7980),
      rows(rowCount) {
    caption = "Murvane sample";
    Check1.caption = "Select/Deselect all";
    Check1.startWith(forms::CheckBox::State::Grey);
    NbCharts.caption = "8 of 12 items selected";
    NbCharts.alignment = forms::Alignment::Right;
    OptionPpt.caption = "PPT";
    OptionPpt.startWith(true);
    DestinationFile.caption = "Active presentation: Board deck.pptx";
    Picture.startWith(true);
    WidthSlider.setValue(65);
    prbHorizontal.caption = "42%";
    prbHorizontal.setValue(42);
    btnCancel.isCancel = true;
    ContinueOk.isDefault = true;

    using forms::Alignment;
    listCharts.rows = &rows;
    listCharts.checkBoxes = true;
    listCharts.gridLines = true;
    listCharts.horizontalScrollBar = false;
    listCharts.columns = {{"Name/Type", "asc", 1875, Alignment::Left},
                          {"Sheet", "asc", 1400, Alignment::Left},
                          {"Slide", "", 0, Alignment::Centre},
                          {"Order", "asc", 900, Alignment::Centre},
                          {"Caption", "", 2350, Alignment::Left}};
    Image2.setPicture({{}, "icon:word"});
    constexpr std::string_view picture =
        "<svg xmlns='http://www.w3.org/2000/svg' width='120' height='80'>"
        "<rect width='120' height='80' fill='#d97706'/></svg>";
    imgChart.stretch = true;
    imgChart.setPicture({{picture.begin(), picture.end()}, ""});

    listCharts.onItemCheck = notesWith("check");
    listCharts.onItemClick = notesWith("row");
    listCharts.onColumnClick = notesWith("column");
    listCharts.onRowsMove = notesWith("move");
    listCharts.onRowsStep = notesWith("step");
    listCharts.onRowsClear = notes("clear");
    SlideTitle.onChange = [this] { happened.push_back("SlideTitle=" + SlideTitle.text()); };
    WidthSlider.onChange = [this] {
        happened.push_back(fmt::format("WidthSlider={}", WidthSlider.value()));
    };
    Check1.onClick = notes("Check1");
    Up.onClick = notes("Up");
    OptionPpt.onClick = notes("OptionPpt");
    OptionWord.onClick = notes("OptionWord");
    OptionHtml.onClick = notes("OptionHtml");
    imgChart.onClick = notes("imgChart");
    imgChart.onDblClick = notes("imgChart double");
    Image2.onClick = notes("Image2");
    btnCancel.onClick = notes("Cancel");
    ContinueOk.onClick = notes("Continue");
    wbStatus.onBeforeNavigate = [this](std::string_view url) {
        happened.emplace_back(url);
        return url.starts_with("murvane:");
    };
    wbStatus.onDocumentComplete = notes("document");
}

void SampleForm::Form_Load() {
    shadow.Shadow(*this);
    furniture::ApplyTheme(*this);
    listCharts.rowsChanged();
}

}  // namespace sample

QWidget& OnTheDesktop::keyboardOwner(const forms::Form& of) {
    desk.letEventsRun();
    QWidget* window = desk.plateOf(of)->window();
    return window->focusWidget() == nullptr ? *window : *window->focusWidget();
}

bool OnTheDesktop::waitUntil(const std::function<bool()>& holds,
                             std::chrono::milliseconds patience) {
    const QDeadlineTimer end(patience);
    while (!holds() && !end.hasExpired()) {
        // Wakes a desktop that nothing else would wake.
        QTimer::singleShot(20, [] {});
        desk.waitForEvents();
    }
    return holds();
}

void OnTheDesktop::click(const forms::Control& control) {
    auto& widget = widgetOf<QWidget>(control);
    clickAt(widget, widget.rect().center());
}

void OnTheDesktop::clickAt(QWidget& widget, QPoint at) {
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, at);
    desk.letEventsRun();
}

void OnTheDesktop::dragTo(QWidget& widget, QPoint at) {
    QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
}

void OnTheDesktop::keyTo(const forms::Form& of, Qt::Key which, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&keyboardOwner(of), which, modifiers);
    desk.letEventsRun();
}

void OnTheDesktop::type(const std::string& text) {
    QTest::keyClicks(&keyboardOwner(form), QString::fromStdString(text));
    desk.letEventsRun();
}
