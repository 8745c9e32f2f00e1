#include "destinations/image_dialog.h"

#include <fmt/format.h>

#include <algorithm>

#include "destinations/output_folder.h"
#include "destinations/row_walk.h"
#include "office/failure_patterns.h"
#include "office/text.h"
#include "panels/dialogs.h"
#include "panels/panel_page.h"

namespace destinations {

namespace {

using session::ImageFormat;

struct FormatChip {
    const char* key;
    const char* label;
    forms::OptionButton DialogImageFiles::*button;
    ImageFormat format;
};
constexpr std::array<FormatChip, 5> formats = {{
    {"png", "Png", &DialogImageFiles::Png, ImageFormat::Png},
    {"gif", "Gif", &DialogImageFiles::Gif, ImageFormat::Gif},
    {"jpeg", "Jpeg", &DialogImageFiles::Jpeg, ImageFormat::Jpeg},
    {"bmp", "Bmp", &DialogImageFiles::Bmp, ImageFormat::Bmp},
    {"tiff", "Tiff", &DialogImageFiles::Tiff, ImageFormat::Tiff},
}};

constexpr const char* formatGroup = "imgFormat";
constexpr const char* nameGroup = "fileName";

}  // namespace

DialogImageFiles::DialogImageFiles(forms::Desktop& theDesktop, session::OfficeSession& session,
                                   catalogue::ExportList& list,
                                   const catalogue::ExportChoices& choices)
    : ExportDialog(theDesktop, session, list, choices, "DialogImageFiles", "Images", "icon:images"),
      Frame1(*this, "Frame1", {}),
      Png(*this, "Png", {}, &Frame1),
      Gif(*this, "Gif", {}, &Frame1),
      Jpeg(*this, "Jpeg", {}, &Frame1),
      Bmp(*this, "Bmp", {}, &Frame1),
      Tiff(*this, "Tiff", {}, &Frame1),
      Frame3(*this, "Frame3", {}),
      Option3(*this, "Option3", {}, &Frame3),
      Option4(*this, "Option4", {}, &Frame3),
      Check2(*this, "Check2", {}),
      ImageOutputFolder(defaultImageFolder(session)) {
    for (const FormatChip& chip : formats) (this->*chip.button).caption = chip.label;
    Option3.caption = "Name+Sheet";
    Option4.caption = "Numerator";
    Check2.caption = "Open folder when done";
    Png.startWith(true);
    Option3.startWith(true);
    Check2.startWith(forms::CheckBox::State::Checked);
    for (forms::Control* hidden : std::initializer_list<forms::Control*>{&Frame1, &Frame3, &Check2})
        hidden->visible = false;
}

void DialogImageFiles::Form_Load() {
    beginForm();
    // The dialog for another folder begins there.
    office::ContinueOnFailure().attempt([&] { session().host.makeFolder(ImageOutputFolder); });
    announce(takenRowsOfFiles(session(), list_, choices_));
    showPanel();
}

std::string DialogImageFiles::announcement() {
    return fmt::format("{} object(s) will be inserted in {}", taken_, ImageOutputFolder);
}

std::string DialogImageFiles::BuildOptionsMarkup() const {
    std::string chips;
    for (const FormatChip& chip : formats) {
        chips += panels::ChoiceChipHtml(formatGroup, chip.key, chip.label,
                                        (this->*chip.button).value(), true);
    }
    const std::string names =
        panels::ChoiceChipHtml(nameGroup, "namesheet", Option3.caption, Option3.value(), true) +
        panels::ChoiceChipHtml(nameGroup, "numerator", Option4.caption, Option4.value(), true);
    return panels::ChoiceGroupHtml("Export as", chips) +
           panels::ChoiceGroupHtml("File names", names) +
           panels::OptionsBlockHtml({}, optionRow("openFolder", Check2));
}

std::string DialogImageFiles::BuildToolsMarkup() const {
    return panels::ToolBarHtml(panels::ToolButtonHtml("browseFolder", "Change folder",
                                                      "tool-icon-folder", "Choose save location"));
}

void DialogImageFiles::ToggleOption(std::string_view key) {
    if (office::lowerCase(key) == "openfolder") flip(Check2);
}

void DialogImageFiles::SelectChoice(std::string_view group, std::string_view key) {
    const std::string which = office::lowerCase(key);
    if (office::sameIgnoringCase(group, formatGroup)) {
        for (const FormatChip& chip : formats)
            if (which == chip.key) (this->*chip.button).setValue(true);
    } else if (office::sameIgnoringCase(group, nameGroup)) {
        if (which == "namesheet") Option3.setValue(true);
        if (which == "numerator") Option4.setValue(true);
    }
}

void DialogImageFiles::RunPanelAction(std::string_view key) {
    if (office::lowerCase(key) != "browsefolder") return;
    const auto chosen = session().host.chooseFolder("Please choose a folder", ImageOutputFolder);
    if (!chosen || chosen->empty()) return;
    ImageOutputFolder = *chosen;
    announce(taken_);
}

ImageFileOptions DialogImageFiles::options() const {
    ImageFileOptions wanted;
    for (const FormatChip& chip : formats)
        if ((this->*chip.button).value()) wanted.format = chip.format;
    wanted.names = Option3.value() ? FileNames::NameAndSheet : FileNames::Numerator;
    wanted.folder = ImageOutputFolder;
    return wanted;
}

/// Pictures that are made anew mostly take the place of the old ones; but another workbook may have
/// left files of the same names.
std::optional<bool> DialogImageFiles::mayReplace(const ImageFileOptions& wanted) {
    const auto files = plannedImageFiles(session(), list_, wanted);
    const auto there = std::count_if(files.begin(), files.end(), [this](const std::string& file) {
        return session().host.pathExists(file);
    });
    if (there == 0) return false;
    return session().host.ask(
        fmt::format("{} of the {} files are in the folder already.\n\nReplace them? With No, the "
                    "new ones get other names.",
                    there, files.size()),
        "Murvane");
}

void DialogImageFiles::ContinueOk_Click() {
    ImageFileOptions wanted = options();
    if (!takesOutput(session(), wanted.folder)) {
        SetPanelMessage(cantWriteTo(session(), wanted.folder), "warning");
        return;
    }
    const auto replaces = mayReplace(wanted);
    if (!replaces) return;
    wanted.replaces = *replaces;
    panels::RunExport(session(), *this, taken_, [&] { runBatch(wanted); });
}

void DialogImageFiles::runBatch(const ImageFileOptions& wanted) {
    catalogue::NeededDocuments needed(session());
    walkAndTell(session(), list_, needed,
                [&](RowBatch& batch) { return ExportRowsToImageFiles(batch, wanted); });
    if (Check2.isChecked()) openOrName(session(), wanted.folder);
}

void StartImageExport(session::OfficeSession& session, forms::Desktop& desktop,
                      catalogue::ExportList& list, const catalogue::ExportChoices& choices) {
    DialogImageFiles dialog(desktop, session, list, choices);
    panels::ShowToolForm(dialog);
}

}  // namespace destinations
