#include "destinations/html_dialog.h"
#include "destinations/image_dialog.h"
#include "files_stage.h"
#include "forms_double/user.h"
#include "forms_double/windowless_desktop.h"
#include "panels/dialogs.h"

namespace {

using destinations::DialogHTML;
using destinations::DialogImageFiles;
using stage::FilesStage;
using stage::Names;

class FilesDialogs : public FilesStage {
protected:
    FilesDialogs() {
        addChart("A", "S", "First");
        addChart("B", "S");
    }

    /// Opens the dialog; the user gets it with its page loaded.
    template <class Dialog>
    void open(const char* name, const std::function<void(Dialog&)>& user) {
        session.ExcelApp = suite.attach("Excel.Application");
        session.ActiveBook = book.handle();
        Dialog dialog(desktop, session, list, choices);
        desktop.answer(name, [&](forms::Form& form) {
            desktop.letEventsRun();
            user(dialog);
            if (desktop.isLoaded(form)) desktop.unload(form);
        });
        panels::ShowToolForm(dialog);
    }
    void html(const std::function<void(DialogHTML&)>& user) { open("DialogHTML", user); }
    void images(const std::function<void(DialogImageFiles&)>& user) {
        open("DialogImageFiles", user);
    }

    [[nodiscard]] std::string pageOf(forms::Form& dialog) {
        desktop.letEventsRun();
        return desktop.browser(dialog)->page();
    }
    static bool has(const std::string& text, const std::string& what) {
        return text.find(what) != std::string::npos;
    }

    forms_double::WindowlessDesktop desktop;
    catalogue::ExportChoices choices;
};

TEST_F(FilesDialogs, SayHowManyGoWhereAndLeadNowhereWithNothingToExport) {
    html([&](DialogHTML& dialog) {
        EXPECT_TRUE(dialog.ContinueOk.enabled);
        EXPECT_TRUE(std::filesystem::is_directory(host.home.file("MurvaneHTML")));
    });
    for (auto& row : list.rows) row.checked = false;
    html([&](DialogHTML& dialog) { EXPECT_FALSE(dialog.ContinueOk.enabled); });
    list.rows.front().checked = true;
    choices.predefinedSlides = true;
    images([&](DialogImageFiles& dialog) { EXPECT_FALSE(dialog.ContinueOk.enabled); });
}

TEST_F(FilesDialogs, PublishUnlessOneWidthIsWantedAndOpenThePage) {
    html([&](DialogHTML& dialog) {
        EXPECT_FALSE(dialog.txtAmount.enabled);
        dialog.ToggleOption("SAMEWIDTH");
        EXPECT_TRUE(dialog.txtAmount.enabled);
        dialog.ToggleOption("useTitles");
        EXPECT_FALSE(dialog.Check3.isChecked());
        dialog.TextBox10.setText("2x9");
        EXPECT_EQ(dialog.TextBox10.text(), "2");
        dialog.TextBox10.setText("2.7");
        dialog.txtAmount.setText("500");
        dialog.ContinueOk_Click();
    });
    EXPECT_EQ(notices.messages(), Names{"Some max-min-error message"});
    const std::string text = host.home.read("MurvaneHTML/MurvaneHTML101.html");
    EXPECT_TRUE(has(text, "width:1000px") && has(text, "<br><br>") && !has(text, "<br><br><br>"));
    EXPECT_FALSE(has(text, "First"));
    host.opensFiles = false;
    html([](DialogHTML& dialog) { dialog.ContinueOk_Click(); });
    EXPECT_TRUE(has(host.home.read("MurvaneHTML/MurvaneHTML102.html"), "<h2>First</h2>"));
    const std::string folder = host.home.file("MurvaneHTML");
    EXPECT_EQ(host.opened,
              (Names{folder + "/MurvaneHTML101.html", folder + "/MurvaneHTML102.html"}));
    EXPECT_TRUE(has(notices.messages().back(), "MurvaneHTML102.html"));
}

TEST_F(FilesDialogs, OfferFormatsAndNamesOfWhichOneIsChosen) {
    images([&](DialogImageFiles& dialog) {
        dialog.wbStatus_BeforeNavigate2("murvane://select/imgFormat/TIFF");
        EXPECT_TRUE(dialog.Tiff.value() && !dialog.Png.value());
        dialog.wbStatus_BeforeNavigate2("murvane://select/imgFormat/none");
        EXPECT_TRUE(dialog.Tiff.value()) << "nothing else was chosen";
        dialog.SelectChoice("imgformat", "gif");
        dialog.SelectChoice("fileName", "numerator");
        dialog.SelectChoice("other", "png");
        EXPECT_TRUE(dialog.Gif.value() && dialog.Option4.value() && !dialog.Option3.value());
        dialog.RunPanelAction("browseFolder");
        EXPECT_EQ(dialog.ImageOutputFolder, host.home.file("MurvaneImages")) << "cancelled";
        host.chosenFolder = host.home.file("mine");
        dialog.wbStatus_BeforeNavigate2("murvane://action/browseFolder");
        dialog.ContinueOk_Click();
    });
    EXPECT_EQ(filesIn("mine"), (Names{"1.gif", "2.gif"}));
    EXPECT_EQ(host.opened, Names{host.home.file("mine")});
}

TEST_F(FilesDialogs, AskBeforeFilesAreReplacedAndStayOpenWhereNothingCanBeWritten) {
    const auto exportOnce = [&] {
        images([&](DialogImageFiles& dialog) {
            dialog.ToggleOption("openFolder");
            dialog.ContinueOk_Click();
        });
    };
    exportOnce();
    EXPECT_TRUE(host.boxes.empty());
    exportOnce();
    host.saysYes = true;
    exportOnce();
    EXPECT_EQ(host.boxes.size(), 2U);
    EXPECT_EQ(filesIn("MurvaneImages").size(), 4U);
    host.saysYes = std::nullopt;
    images([&](DialogImageFiles& dialog) {
        dialog.ContinueOk_Click();
        EXPECT_TRUE(desktop.isLoaded(dialog)) << "as it was before the click";
    });
    EXPECT_EQ(host.boxes.size(), 3U);
    EXPECT_EQ(filesIn("MurvaneImages").size(), 4U);
    EXPECT_TRUE(host.opened.empty());
    host.chosenFolder = host.home.write("file", "x");
    images([&](DialogImageFiles& dialog) {
        dialog.RunPanelAction("browseFolder");
        dialog.ContinueOk_Click();
        EXPECT_TRUE(desktop.isLoaded(dialog));
        EXPECT_TRUE(has(dialog.ContinueOk.accessibleDescription, "/file is a file"));
    });
}

}  // namespace
