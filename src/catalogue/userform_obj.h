#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "catalogue/export_choices.h"
#include "catalogue/export_list_view.h"
#include "catalogue/item_preview.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "forms/list_view.h"
#include "furniture/shadow.h"
#include "furniture/title_bar.h"
#include "session/office_session.h"

namespace catalogue {

/// What the main form starts that lives in higher layers.
struct MainFormHooks {
    /// Starts the export to the chosen destination, which opens its options dialog.
    std::function<void(ExportList& list, const ExportChoices& choices)> StartExport;
    /// Puts one row on the slide in view, whether it is checked or not. False if it has not been
    /// put there and the user knows.
    std::function<bool(const ExportItem& row, const ExportChoices& choices)> InsertOneItem;
    /// Opens a page of help by the name of its file.
    std::function<void(std::string_view file)> ShowHelp;
    /// Opens the page that belongs to a control.
    std::function<void(const forms::Control& control)> ShowContextHelp;
};

/// The main form: the list of what can be exported, and the four numbered frames that the user goes
/// down. It owns the rows; every export reads them here.
class UserformObj : public forms::Form {
public:
    UserformObj(forms::Desktop& desktop, session::OfficeSession& session, MainFormHooks hooks);
    ~UserformObj() override;

    [[nodiscard]] ExportList& list() { return list_; }
    /// What is chosen now.
    [[nodiscard]] ExportChoices choices() const;

    void Form_Load() override;
    void Form_Unload() override;
    /// Another presentation may be the active one by now, and the workbook have another name.
    void Form_Entered() override;
    /// What was changed is written into the workbook, which the user may be about to save.
    void Form_Left() override;
    /// The list and the preview share what the form has gained.
    void Form_Resize() override;
    bool Form_Help() override;

    // Events.
    void Option1_Click(int index);
    void OptionFormat_Click(int index);
    void OptionNewSlides_Click();
    void OptionPredefSlides_Click();
    void AddCaption_Click();
    void Timer1_Timer(int index);
    void Check1_Click();
    void listCharts_ItemCheck(std::size_t row);
    void listCharts_ItemClick(std::size_t row);
    /// Columns count from 1.
    void listCharts_ColumnClick(std::size_t column);
    /// The chosen rows go one row up (-1) or down (1), or before the row that is at this index.
    void listCharts_RowsStep(int step);
    void listCharts_RowsMove(std::size_t before);
    /// Their captions are wiped out.
    void listCharts_RowsClear();
    void imgChart_DblClick();
    void SlideTitle_Change();
    void TextBox10_Change();
    void PasteIT_Click();
    /// Opens the page of help that fits what is chosen.
    void ShowSmartHelp() const;

    // The controls, from the top of the form to its foot.
    furniture::TitleBar TitelBar1;
    forms::TextBox ActiveWbk;
    forms::Frame Frame4;
    forms::CheckBox Check1;
    forms::Label NbCharts;
    forms::CommandButton cmdItemsHelp;
    forms::ListView listCharts;
    forms::Image imgChart;
    forms::CommandButton Up;
    forms::CommandButton Down;
    forms::CommandButton AddCaption;
    forms::Frame TitlesFrame;
    forms::TextBox SlideTitle;
    forms::Label PasteExpress;
    forms::Frame SlideNb;
    forms::Label Label1;
    forms::TextBox TextBox10;
    forms::Frame Frame1;
    std::array<forms::Shape, 5> Shape1;
    std::array<forms::Image, 4> Image1;
    std::array<forms::OptionButton, 5> Option1;
    forms::Label DestinationFile;
    forms::CommandButton cmdPowerWhere;
    forms::Frame Frame3;
    std::array<forms::OptionButton, 4> OptionFormat;
    forms::CommandButton cmdExportHelp;
    forms::Frame Frame2;
    forms::OptionButton OptionNewSlides;
    forms::OptionButton OptionPredefSlides;
    forms::CommandButton cmdChartsNewSlides;
    forms::CommandButton PasteIT;

private:
    enum class SlidePanelMotion { None = 0, Opening = 1, Closing = 2 };

    // Laying out (userform_obj_layout.cpp).
    void setCaptionsAndTips();
    void setFirstState();
    void wireEvents();
    void wireHelp(forms::CommandButton& button);
    void prepareToGrow();
    /// On a screen lower than the form the list does, so that "Continue" is in reach.
    void giveWayToLowScreen();

    // Loading.
    void loadForm();
    void prepareList();
    void listChartsShowPreview();
    void fillBoxes();
    PreviewCopy showPreview(const ExportItem& row);
    /// Goes on to the row above (-1) or below (1) and to typing in the same box.
    void stepFromBox(forms::TextBox& box, int step);

    // Destinations (userform_obj_targets.cpp).
    struct Target {
        std::string_view newSlidesCaption;
        bool allFormats = false;
        bool predefinedSlides = false;
        bool pasteExpress = false;
    };
    void ShowPowerPointTarget();
    void ShowWordTarget();
    void ShowPdfTarget();
    void ShowHtmlTarget();
    void ShowImageTarget();
    void showTarget(const Target& target);
    void nameWorkbook();
    /// Only says anew where things go; what is chosen stays as it is.
    void nameTarget();
    bool namePresentation();
    bool nameDocument();

    // The list.
    [[nodiscard]] ExportItem* selectedRow();
    void recolourRows();
    void renumberRows();
    void resizeColumns();
    void activateWorkbook();
    /// Whether it is in the workbook now.
    bool keepList();
    [[nodiscard]] bool isKept() const;

    // Panels.
    [[nodiscard]] forms::Timer& timer(int index) {
        return *timers_.at(static_cast<std::size_t>(index - 1));
    }
    void runOnlyTimer(int index);
    void growPreview();
    void moveSlidePanel();
    void growCaptionPanel();

    session::OfficeSession& session_;
    MainFormHooks hooks_;
    ExportList list_;
    ExportListView listRows_;
    /// The rows as they came up or were written last.
    std::vector<ExportItem> keptRows_;
    /// The workbook that the rows are of, whichever the user looks at meanwhile.
    office::Object workbook_;
    std::array<std::unique_ptr<forms::Timer>, 5> timers_;
    SlidePanelMotion slidePanelMotion_ = SlidePanelMotion::None;
    std::optional<furniture::clsShadow> shadow_;
    /// What each control takes of the room that the form gains.
    struct Gain;
    std::vector<Gain> gains_;
    /// Of the preview, once it has grown.
    forms::Twips previewWidth_;
};

}  // namespace catalogue
