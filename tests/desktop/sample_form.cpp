#include "desktop/sample_form.h"

#include <fmt/format.h>

#include "furniture/theme.h"

namespace sample {

namespace {

constexpr std::string_view chartPicture =
    "<svg xmlns='http://www.w3.org/2000/svg' width='120' height='80'>"
    "<rect width='120' height='80' fill='white'/><rect x='15' y='40' width='20' height='30' "
    "fill='#2563eb'/><rect x='50' y='20' width='20' height='50' fill='#60a5fa'/>"
    "<rect x='85' y='30' width='20' height='40' fill='#d97706'/></svg>";

}  // namespace

Rows::Rows(std::size_t howMany) {
    constexpr std::string_view icons[] = {"icon:chart", "icon:range", "icon:chart-sheet",
                                          "icon:sheet-stem"};
    for (std::size_t i = 0; i < howMany; ++i) {
        Row row;
        row.checked = i % 3 != 2;
        row.colour = row.checked ? forms::Colour::rgb(0x1E293B) : forms::Colour::rgb(0x64748B);
        row.icon = icons[i % 4];
        row.cells = {fmt::format("Chart {}", i + 1), i % 2 == 0 ? "Sales" : "Fleet & costs", "",
                     row.checked ? std::to_string(i + 1) : "",
                     fmt::format("Turnover of quarter {}, in million euros", i % 4 + 1)};
        rows.push_back(std::move(row));
    }
}

SampleForm::SampleForm(forms::Desktop& desktop, std::size_t rowCount)
    : Form(desktop, "SampleForm", 12000, 7980),
      rows(rowCount) {
    fillCaptions();
    fillList();
    fillPictures();
    connectEvents();
}

void SampleForm::fillCaptions() {
    caption = "Murvane sample";
    TitelBar1.caption = " Murvane sample";
    Frame4.caption = "1. Select Items to Export";
    Check1.caption = "Select/Deselect all";
    Check1.startWith(forms::CheckBox::State::Grey);
    NbCharts.caption = "8 of 12 items selected";
    NbCharts.alignment = forms::Alignment::Right;
    Up.caption = "5";
    Down.caption = "6";
    SlideTitle.startWith("Turnover of quarter 1");
    Frame1.caption = " 2. Select destination";
    OptionPpt.caption = "PPT";
    OptionPpt.startWith(true);
    OptionPpt.font.bold = true;
    OptionWord.caption = "Word";
    OptionHtml.caption = "Html";
    DestinationFile.caption = "Active presentation: Board deck.pptx";
    Frame3.caption = "3. Output Format";
    Picture.caption = "Picture ";
    Picture.graphical = true;
    Picture.startWith(true);
    Picture.toolTip = "Charts and tables are copied as not editable enhanced pictures";
    Editable.caption = "Editable Office Shapes";
    Editable.graphical = true;
    WidthSlider.setValue(65);
    prbHorizontal.caption = "42%";
    prbHorizontal.setValue(42);
    btnCancel.caption = "Cancel";
    btnCancel.isCancel = true;
    ContinueOk.isDefault = true;
    ContinueOk.caption = "Continue  >";
}

void SampleForm::fillList() {
    using forms::Alignment;
    listCharts.rows = &rows;
    listCharts.checkBoxes = true;
    listCharts.gridLines = true;
    listCharts.horizontalScrollBar = false;
    listCharts.columns = {{"Name/Type", "STRING", "asc", 1875, Alignment::Left},
                          {"Sheet", "STRING", "asc", 1400, Alignment::Left},
                          {"Slide", "NUMBER", "", 0, Alignment::Centre},
                          {"Order", "NUMBER", "asc", 900, Alignment::Centre},
                          {"Caption", "STRING", "", 2350, Alignment::Left}};
    rows.selectedRow = rows.rows.size() > 1 ? 1 : -1;
}

void SampleForm::fillPictures() {
    Shape1.rounded = true;
    Image1.setPicture({{}, "icon:powerpoint"});
    Image2.setPicture({{}, "icon:word"});
    Image3.setPicture({{}, "icon:html"});
    imgChart.stretch = true;
    imgChart.setPicture({{chartPicture.begin(), chartPicture.end()}, ""});
}

void SampleForm::connectEvents() {
    Check1.onClick = [this] { name("Check1"); };
    listCharts.onItemCheck = [this](std::size_t row) { name(fmt::format("check {}", row)); };
    listCharts.onItemClick = [this](std::size_t row) { name(fmt::format("row {}", row)); };
    listCharts.onColumnClick = [this](std::size_t column) {
        name(fmt::format("column {}", column));
    };
    listCharts.onRowsMove = [this](std::size_t before) { name(fmt::format("move {}", before)); };
    listCharts.onRowsStep = [this](int step) { name(fmt::format("step {}", step)); };
    listCharts.onRowsClear = [this] { name("clear"); };
    Up.onClick = [this] { name("Up"); };
    SlideTitle.onChange = [this] { name("SlideTitle=" + SlideTitle.text()); };
    OptionPpt.onClick = [this] { name("OptionPpt"); };
    OptionWord.onClick = [this] { name("OptionWord"); };
    OptionHtml.onClick = [this] { name("OptionHtml"); };
    WidthSlider.onChange = [this] { name(fmt::format("WidthSlider={}", WidthSlider.value())); };
    imgChart.onDblClick = [this] { name("imgChart double"); };
    Image2.onClick = [this] { name("Image2"); };
    btnCancel.onClick = [this] { name("Cancel"); };
    ContinueOk.onClick = [this] { name("Continue"); };
    wbStatus.onBeforeNavigate = [this](std::string_view url) {
        name(std::string(url));
        return url.starts_with("murvane:");
    };
    wbStatus.onDocumentComplete = [this] { name("document"); };
}

void SampleForm::Form_Load() {
    shadow.Shadow(*this);
    furniture::ApplyTheme(*this);
    listCharts.rowsChanged();
}

}  // namespace sample
