#include "catalogue/userform_obj.h"

#include <fmt/format.h>

#include <algorithm>

#include "catalogue/inventory.h"
#include "catalogue/item_preview.h"
#include "catalogue/list_columns.h"
#include "catalogue/list_rows.h"
#include "catalogue/number_entry.h"
#include "forms/desktop.h"
#include "furniture/theme.h"
#include "office/failure_patterns.h"
#include "office/text.h"
#include "panels/help.h"
#include "session/workbook_store.h"

namespace catalogue {

namespace {

constexpr forms::Twips previewStartWidth = 336;

forms::CheckBox::State stateOf(CheckAllState state) {
    switch (state) {
        case CheckAllState::All:
            return forms::CheckBox::State::Checked;
        case CheckAllState::Some:
            return forms::CheckBox::State::Grey;
        default:
            return forms::CheckBox::State::Unchecked;
    }
}

}  // namespace

ExportChoices UserformObj::choices() const {
    const auto chosenOf = [](const auto& options) {
        return std::find_if(options.begin(), options.end(),
                            [](const auto& option) { return option.value(); }) -
               options.begin();
    };
    return {static_cast<Destination>(chosenOf(Option1)),
            static_cast<ExportFormat>(chosenOf(OptionFormat)), OptionPredefSlides.value()};
}

void UserformObj::Form_Load() {
    topmost = true;
    giveWayToLowScreen();
    // A load that fails half-way leaves a form that can still be closed.
    office::ContinueOnFailure scope;
    bool isWanted = true;
    try {
        if (!scope.attempt([this] { loadForm(); })) {
            listCharts.placeholder = fmt::format("The items of the workbook could not be read.\n{}",
                                                 scope.lastFailure()->description());
        }
    } catch (const session::LoadingCancelled&) {
        isWanted = false;
    }
    scope.attempt([this] {
        session_.ActiveBook.get("Sheets").get("Item", session_.ActiveSheetName).call("Select");
    });
    session_.progress.unloadLoading();
    if (!isWanted) desktop().unload(*this);
}

void UserformObj::loadForm() {
    workbook_ = session_.ActiveBook;
    SlideNb.visible = false;
    session_.ExcelApp.put("ScreenUpdating", false);
    shadow_.emplace().Shadow(*this);
    furniture::ApplyTheme(*this);
    imgChart.place.width = 0;
    prepareList();
    runOnlyTimer(2);
    imgChart.setPicture(pictureOnClipboard(session_));
    SlideNb.place.width = 0;

    Check1.startWith(stateOf(LoadItemsToForm(session_, list_)));
    listChartsShowPreview();
    fillBoxes();
    session_.progress.unloadLoading();

    renumberRows();
    ShowPowerPointTarget();
    TitlesFrame.visible = false;
    if (workbook_) nameWorkbook();
    furniture::ApplyTheme(*this);
    resizeColumns();
    recolourRows();
    renumberRows();
    keptRows_ = list_.rows;
    focus = &listCharts;
}

void UserformObj::prepareList() {
    listCharts.rows = &listRows_;
    listCharts.checkBoxes = true;
    listCharts.gridLines = true;
    listCharts.columns.clear();
    for (const ListColumn& column : listColumns) {
        listCharts.columns.push_back(
            {std::string(column.Text),
             column.Icon.empty() ? std::string() : fmt::format("icon:{}", column.Icon),
             column.Width, column.alignment});
    }
}

void UserformObj::listChartsShowPreview() {
    const ExportItem* row = selectedRow();
    if (row == nullptr) return;
    office::ContinueOnFailure scope;
    scope.attempt([&] { copyForFirstPreview(session_, *row); });
    imgChart.setPicture(pictureOnClipboard(session_));
}

void UserformObj::Form_Unload() {
    const bool isLost = !keepList() && !isKept();
    office::ContinueOnFailure scope;
    scope.attempt([this] { session_.ExcelApp.put("ScreenUpdating", true); });
    session_.PowerPointApp.release();
    session_.ExcelApp.release();
    if (isLost) {
        session::ShowWarningNotice(
            session_.notices,
            "Your last changes to the list could not be written into the workbook:\r"
            "it has been closed, or takes no changes any more.\r"
            "The workbook holds the list as it was before them.");
    }
    desktop().unloadAll();
}

void UserformObj::Form_Entered() {
    if (!takesInput) return;
    nameTarget();
    office::ContinueOnFailure().attempt([this] { nameWorkbook(); });
}

void UserformObj::nameWorkbook() {
    ActiveWbk.setText(fmt::format("Active Workbook:{} ", workbook_.get("Name").toText()));
}

void UserformObj::Form_Left() {
    if (takesInput && !isKept()) keepList();
}

void UserformObj::ShowSmartHelp() const {
    if (!hooks_.ShowHelp) return;
    hooks_.ShowHelp(OptionPredefSlides.value() ? "help_predefined_slides.html"
                    : Option1[0].value()       ? "help_powerpoint.html"
                    : list_.rows.empty()       ? "help_no_items.html"
                                               : "help_items_table.html");
}

bool UserformObj::Form_Help() {
    const bool isAtTheList = focus == &listCharts || focus == &Check1;
    if (isAtTheList && list_.rows.empty() && hooks_.ShowHelp) {
        hooks_.ShowHelp("help_no_items.html");
    } else if (focus != nullptr && !panels::helpFileOf(focus->name()).empty() &&
               hooks_.ShowContextHelp) {
        hooks_.ShowContextHelp(*focus);
    } else {
        ShowSmartHelp();
    }
    return true;
}

void UserformObj::OptionFormat_Click(int index) {
    for (std::size_t i = 0; i < OptionFormat.size(); ++i) {
        OptionFormat.at(i).font.bold = static_cast<int>(i) == index;
    }
}

void UserformObj::OptionPredefSlides_Click() {
    SlideNb.visible = true;
    slidePanelMotion_ = SlidePanelMotion::Opening;
    runOnlyTimer(4);
    OptionPredefSlides.font.bold = true;
    OptionNewSlides.font.bold = false;
    resizeColumns();
    recolourRows();
}

void UserformObj::OptionNewSlides_Click() {
    SlideNb.visible = false;
    slidePanelMotion_ = SlidePanelMotion::Closing;
    SlideTitle.enabled = true;
    runOnlyTimer(4);
    OptionPredefSlides.font.bold = false;
    OptionNewSlides.font.bold = true;
    resizeColumns();
    recolourRows();
    // Of less than a pixel: the column of slide numbers stays one of the list's, and isn't seen.
    if (listCharts.columns.size() > 2) listCharts.columns[2].width = 1;
}

void UserformObj::AddCaption_Click() {
    TitlesFrame.place.width = 0;
    TitlesFrame.visible = !TitlesFrame.visible;
    focus = TitlesFrame.visible ? static_cast<forms::Control*>(&SlideTitle) : &listCharts;
    if (TitlesFrame.visible) SlideTitle.selectAll();
    for (int i = 1; i <= 5; ++i) timer(i).enabled = i == 5;
}

void UserformObj::listCharts_RowsStep(int step) {
    MoveChosenRows(list_, step);
    renumberRows();
}

void UserformObj::listCharts_RowsMove(std::size_t before) {
    MoveChosenRowsBefore(list_, before);
    renumberRows();
}

void UserformObj::listCharts_RowsClear() {
    for (const std::size_t row : ChosenRows(list_)) list_.rows[row].caption.clear();
    fillBoxes();
    listCharts.rowsChanged();
}

void UserformObj::listCharts_ColumnClick(std::size_t column) {
    const forms::Working working(desktop());
    SortByColumn(list_, column);
    renumberRows();
}

void UserformObj::Check1_Click() {
    if (list_.isLoaded) {
        const bool check = Check1.isChecked();
        for (ExportItem& row : list_.rows) row.checked = check && !row.hasSeveralAreas;
    }
    recolourRows();
    renumberRows();
}

void UserformObj::listCharts_ItemCheck(std::size_t row) {
    ExportItem& checked = list_.rows.at(row);
    if (checked.hasSeveralAreas) {
        desktop().messageBox("You can't check a multiple range", "Murvane");
        checked.checked = false;
        listCharts.rowsChanged();
        return;
    }
    if (checked.isMarked) {
        for (ExportItem& other : list_.rows) {
            if (other.isMarked && !other.hasSeveralAreas) other.checked = checked.checked;
        }
    }
    recolourRows();
    renumberRows();
}

void UserformObj::listCharts_ItemClick(std::size_t /*row*/) {
    runOnlyTimer(2);
    imgChart.setPicture({});
    imgChart.place.width = previewStartWidth;
    const ExportItem* row = selectedRow();
    if (row == nullptr) return;

    fillBoxes();
    if (showPreview(*row) == PreviewCopy::SeveralAreas) {
        desktop().messageBox(
            "Murvane does not support multiple selection. This item could not be pasted",
            "Murvane");
    }
}

PreviewCopy UserformObj::showPreview(const ExportItem& row) {
    const forms::Working working(desktop());
    office::ContinueOnFailure scope;
    const PreviewCopy copied =
        scope.read([&] { return copyForPreview(session_, row); }, PreviewCopy::Copied);
    if (copied == PreviewCopy::Copied && !scope.failed()) {
        imgChart.setPicture(pictureOnClipboard(session_));
    }
    return copied;
}

/// Whatever row is selected, the boxes show its texts: the first letter typed would else put those
/// of another row into it.
void UserformObj::fillBoxes() {
    const ExportItem* row = selectedRow();
    if (row == nullptr) return;
    // Copied first: writing to one box runs its change, which writes to the row.
    const std::string number = row->slideNumber;
    const std::string title = row->caption;
    TextBox10.setText(number);
    SlideTitle.setText(title);
}

void UserformObj::stepFromBox(forms::TextBox& box, int step) {
    const std::ptrdiff_t next = list_.selected + step;
    recolourRows();
    if (next >= 0 && next < static_cast<std::ptrdiff_t>(list_.rows.size())) {
        listCharts.click(static_cast<std::size_t>(next));
    }
    box.selectAll();
}

void UserformObj::imgChart_DblClick() {
    const ExportItem* row = selectedRow();
    // Of several areas the click on the row has said that they can't be inserted.
    if (row == nullptr || row->hasSeveralAreas || !hooks_.InsertOneItem) return;
    keepList();
    const bool inserted = [&] {
        // Inserting lets events run, and nothing may change the rows meanwhile.
        const forms::InputOff quiet(*this);
        const forms::Working working(desktop());
        return hooks_.InsertOneItem(*row, choices());
    }();
    if (inserted) desktop().messageBox("Done!", "Murvane");
}

/// Also ahead of each export, which may end the program by a failure.
bool UserformObj::keepList() {
    session_.ActiveBook = workbook_;
    if (!session::SaveListToStore(session_, list_)) return false;
    keptRows_ = list_.rows;
    return true;
}

bool UserformObj::isKept() const {
    return std::ranges::equal(list_.rows, keptRows_, {}, &ExportItem::decisions,
                              &ExportItem::decisions);
}

void UserformObj::SlideTitle_Change() {
    if (ExportItem* row = selectedRow()) {
        row->caption = SlideTitle.text();
        listCharts.rowsChanged();
    }
}

void UserformObj::TextBox10_Change() {
    // At once: each writing to the box would run this procedure within itself.
    std::string entry = TextBox10.text();
    for (std::string shorter = Validate_Number_Entry(entry); shorter != entry;
         shorter = Validate_Number_Entry(entry)) {
        entry = std::move(shorter);
    }
    TextBox10.setText(std::move(entry));
    if (ExportItem* row = selectedRow()) {
        row->slideNumber = TextBox10.text();
        listCharts.rowsChanged();
    }
    TextBox10.setText(std::string(office::trim(TextBox10.text())));
    if (!TextBox10.text().empty() && !isNumericEntry(TextBox10.text())) TextBox10.setText("");
}

ExportItem* UserformObj::selectedRow() {
    if (list_.selected < 0 || list_.selected >= static_cast<std::ptrdiff_t>(list_.rows.size())) {
        return nullptr;
    }
    return &list_.rows[static_cast<std::size_t>(list_.selected)];
}

void UserformObj::recolourRows() {
    ColorListRows(list_, OptionPredefSlides.value());
    listCharts.rowsChanged();
}

void UserformObj::renumberRows() {
    RenumberIncludedRows(list_);
    NbCharts.caption =
        fmt::format("{} of {} items selected", CountCheckedRows(list_), list_.rows.size());
    listCharts.rowsChanged();
}

void UserformObj::resizeColumns() {
    const auto widths = SizeListColumns(listCharts.place.width, OptionPredefSlides.value());
    for (std::size_t i = 0; i < listCharts.columns.size(); ++i) {
        listCharts.columns[i].width = widths.at(i);
    }
    listCharts.horizontalScrollBar = false;
}

}  // namespace catalogue
