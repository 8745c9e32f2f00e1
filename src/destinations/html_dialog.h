#pragma once

#include <string>
#include <string_view>

#include "catalogue/export_list.h"
#include "destinations/html_page.h"
#include "panels/options_form.h"

namespace destinations {

/// The options dialog of the export to HTML.
class DialogHTML : public panels::OptionsForm {
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

private:
    void readFields();
    [[nodiscard]] HtmlOptions options();
    void runBatch(const HtmlOptions& wanted, bool asImages);

    catalogue::ExportList& list_;
    catalogue::ExportChoices choices_;
    std::int32_t taken_ = 0;
};

void StartHtmlExport(session::OfficeSession& session, forms::Desktop& desktop,
                     catalogue::ExportList& list, const catalogue::ExportChoices& choices);

}  // namespace destinations
