#pragma once

#include <string>
#include <string_view>

#include "catalogue/export_dialog.h"
#include "destinations/html_page.h"

namespace destinations {

/// The options dialog of the export to HTML.
class DialogHTML : public catalogue::ExportDialog {
public:
    DialogHTML(forms::Desktop& desktop, session::OfficeSession& session,
               catalogue::ExportList& list, const catalogue::ExportChoices& choices);

    void Form_Load() override;
    /// Runs the export, opens the page and ends the session. A failure goes to the caller.
    void ContinueOk_Click() override;
    void ToggleOption(std::string_view key) override;

    forms::CheckBox Check3;
    forms::CheckBox SameWidthHTNL;
    forms::TextBox txtAmount;
    forms::TextBox TextBox10;
    forms::Label Label2;
    forms::Label Label5;

protected:
    [[nodiscard]] std::string BuildOptionsMarkup() const override;
    [[nodiscard]] std::string announcement() override;

private:
    void readFields();
    [[nodiscard]] HtmlOptions options();
    void runBatch(const HtmlOptions& wanted, bool asImages);
};

void StartHtmlExport(session::OfficeSession& session, forms::Desktop& desktop,
                     catalogue::ExportList& list, const catalogue::ExportChoices& choices);

}  // namespace destinations
