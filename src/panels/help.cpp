#include "panels/help.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

#include "office/failure_patterns.h"
#include "panels/help_form.h"
#include "panels/help_page.h"

namespace panels {

namespace {

constexpr std::string_view generalHelp = "help_general.html";
constexpr std::string_view itemsHelp = "help_items_table.html";
constexpr std::string_view captionsHelp = "help_captions.html";
constexpr std::string_view optionsHelp = "help_export_options.html";
constexpr std::string_view powerPointHelp = "help_powerpoint.html";
constexpr std::string_view slidesHelp = "help_predefined_slides.html";

struct Topic {
    std::string_view name;
    std::string_view file;
    /// The element of the page that it is about; empty: all of the page.
    std::string_view section = {};
};

/// The names that the form had in its first design stand first.
constexpr std::array<Topic, 24> controlTopics{{
    {"lstItems", itemsHelp},
    {"chkSelectAll", itemsHelp},
    {"cmdExport", optionsHelp},
    {"optPowerPoint", optionsHelp},
    {"optExcel", optionsHelp},
    {"txtCaption", captionsHelp},
    {"txtSlideNumber", captionsHelp},
    {"listCharts", itemsHelp},
    {"Check1", itemsHelp},
    {"imgChart", itemsHelp},
    {"Up", itemsHelp},
    {"Down", itemsHelp},
    {"AddCaption", captionsHelp},
    {"SlideTitle", captionsHelp},
    {"TextBox10", captionsHelp},
    {"Option1", optionsHelp},
    {"OptionFormat", optionsHelp},
    {"OptionNewSlides", slidesHelp},
    {"OptionPredefSlides", slidesHelp},
    {"PasteIT", optionsHelp},
    {"cmdItemsHelp", "help_popup_html101.html"},
    {"cmdPowerWhere", "help_popup_html102.html"},
    {"cmdExportHelp", "help_popup_html103.html"},
    {"cmdChartsNewSlides", "help_popup_html104.html"},
}};

/// The forms that are about one thing as a whole. An empty file: they have no help.
constexpr std::array<Topic, 10> formTopics{{
    {"Dialog", powerPointHelp},
    {"PredefinedStyles", powerPointHelp},
    {"LayoutForm", powerPointHelp},
    {"DialogWord", optionsHelp, "word"},
    {"DialogPDF", optionsHelp, "pdf"},
    {"DialogHTML", optionsHelp, "html"},
    {"DialogImageFiles", optionsHelp, "images"},
    {"Progress", {}},
    {"MurvaneLoad", {}},
    {"HepPopup", {}},
}};

template <std::size_t count>
const Topic* topicOf(const std::array<Topic, count>& topics, std::string_view name) {
    const auto* found = std::find_if(topics.begin(), topics.end(), [name](const Topic& topic) {
        return forms::sameFormName(topic.name, name);
    });
    return found == topics.end() ? nullptr : found;
}

}  // namespace

std::string_view helpFileOf(std::string_view controlName) {
    const Topic* topic = topicOf(controlTopics, controlName);
    return topic == nullptr ? std::string_view() : topic->file;
}

Help::Help(forms::Desktop& desktop, session::Host& host) : desktop_(desktop), host_(host) {
    desktop_.onHelp = [this](forms::Form& form) { ShowHelpFor(form); };
}

std::string Help::pathOf(std::string_view file) {
    return fmt::format("{}/{}", host_.helpFolder(), file);
}

bool Help::HelpFileExists(std::string_view file) {
    return host_.fileExists(pathOf(file));
}

void Help::ShowHelp(std::string_view file, std::string_view section) {
    if (!HelpFileExists(file)) {
        host_.messageBox(fmt::format("Help file not found: {}", file), "Error");
        return;
    }
    office::ContinueOnFailure scope;
    const std::string path = pathOf(file);
    ShowHelpPopup(scope.read([&] { return titleOfPage(host_.readFile(path)); }, std::string()),
                  path, std::string(section));
}

void Help::ShowHelpPopup(std::string title, std::string filePath, std::string section) {
    HepPopup popup(desktop_, host_);
    popup.PrepareHelpPopup(std::move(title), std::move(filePath), std::move(section));
    popup.ShowPreparedHelpPopup();
}

void Help::ShowContextHelp(const forms::Control& control) {
    const std::string_view file = helpFileOf(control.name());
    ShowHelp(file.empty() ? generalHelp : file);
}

void Help::ShowHelpFor(forms::Form& form) {
    if (form.Form_Help()) return;
    if (const Topic* topic = topicOf(formTopics, form.name())) {
        if (!topic->file.empty()) ShowHelp(topic->file, topic->section);
    } else if (form.focus != nullptr) {
        ShowContextHelp(*form.focus);
    } else {
        ShowHelp(generalHelp);
    }
}

}  // namespace panels
