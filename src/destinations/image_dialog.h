#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "catalogue/export_dialog.h"
#include "destinations/image_files.h"

namespace destinations {

/// The options dialog of the export to image files. Format and names are option buttons, each in a
/// group of its own.
class DialogImageFiles : public catalogue::ExportDialog {
public:
    DialogImageFiles(forms::Desktop& desktop, session::OfficeSession& session,
                     catalogue::ExportList& list, const catalogue::ExportChoices& choices);

    void Form_Load() override;
    /// Asks before files are replaced, runs the export, opens the folder if that is wanted, and
    /// ends the session. A failure goes to the caller.
    void ContinueOk_Click() override;
    void ToggleOption(std::string_view key) override;
    void SelectChoice(std::string_view group, std::string_view key) override;
    /// Lets the user choose the folder.
    void RunPanelAction(std::string_view key) override;

    forms::Frame Frame1;
    forms::OptionButton Png;
    forms::OptionButton Gif;
    forms::OptionButton Jpeg;
    forms::OptionButton Bmp;
    forms::OptionButton Tiff;
    forms::Frame Frame3;
    forms::OptionButton Option3;
    forms::OptionButton Option4;
    forms::CheckBox Check2;

    /// Where the files go.
    std::string ImageOutputFolder;

protected:
    [[nodiscard]] std::string BuildOptionsMarkup() const override;
    [[nodiscard]] std::string BuildToolsMarkup() const override;
    [[nodiscard]] std::string announcement() override;

private:
    [[nodiscard]] ImageFileOptions options() const;
    /// Nothing if the user was asked and has not answered.
    [[nodiscard]] std::optional<bool> mayReplace(const ImageFileOptions& wanted);
    void runBatch(const ImageFileOptions& wanted);
};

void StartImageExport(session::OfficeSession& session, forms::Desktop& desktop,
                      catalogue::ExportList& list, const catalogue::ExportChoices& choices);

}  // namespace destinations
