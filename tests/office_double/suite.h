#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "office/suite.h"
#include "office_double/excel/application.h"
#include "office_double/powerpoint/application.h"
#include "office_double/word/application.h"

namespace office_double {

/// An office suite in memory. Nothing runs until a test builds it:
///
///     DoubleSuite suite;
///     auto& book = suite.excel().addWorkbook("Book1.xlsx");
///     book.sheet("Sales").chart("Chart 1").value("A1", 42.0).define("Local", "A1:B2");
///     book.chartSheet("Overview");
///     book.define("Total", "=Sales!$A$1");
///     suite.powerPoint().addPresentation("Deck.pptx").addSlides(3);
///     suite.word().addDocument("Report.docx").addText("Figures");
class DoubleSuite : public office::Suite {
public:
    DoubleSuite() : state_(std::make_shared<SuiteState>()) {}
    /// Handles that outlive the suite find it lost.
    ~DoubleSuite() override { kill(); }

    /// The application of the name; the first call makes it run.
    ExcelApplication& excel();
    PowerPointApplication& powerPoint();
    WordApplication& word();
    void quitExcel() { excel_.reset(); }
    void quitPowerPoint();
    void quitWord();
    /// All applications go away: every further call throws `SuiteLost`.
    void kill() { state_->failures.loseSuite(); }

    [[nodiscard]] support::CallLog& log() { return state_->log; }
    [[nodiscard]] support::FailurePlan& failures() { return state_->failures; }
    [[nodiscard]] int clipboardClears() const { return clipboardClears_; }
    [[nodiscard]] office::WindowHandle raisedWindow() const { return raised_; }
    [[nodiscard]] office::WindowHandle lockedWindow() const { return locked_; }
    /// How often drawing was frozen.
    [[nodiscard]] int locksTaken() const { return locksTaken_; }
    [[nodiscard]] int redraws() const { return redraws_; }
    void setPacing(office::Pacing pacing) { pacing_ = pacing; }

    Object attach(std::string_view className) override;
    /// `Failure` for all but Word: no part of the program under test starts another.
    Object start(std::string_view className) override;
    void clearClipboard() override;
    std::vector<std::uint8_t> clipboardPicture(office::Sharpness sharpness) override;
    office::ClipboardPtr clipboard() override { return state_->clipboard; }
    std::vector<office::ShownCells> shownCells(
        const std::vector<office::PasteItem>& items) override;
    /// What it says of the cells of an item.
    void show(const std::string& item, office::ShownCells cells) { shownCells_[item] = cells; }
    std::vector<std::string> remarksOn(std::string_view className, office::PasteAs as,
                                       const std::vector<office::PasteItem>& items) override;
    std::vector<std::string> remarksOnPage(const std::vector<office::PasteItem>&) override {
        return remarksOnPage_;
    }
    /// What the suite says of items that become tables of a page.
    void remarkOnPage(std::string remark) { remarksOnPage_ = {std::move(remark)}; }
    /// What the suite says of each item that is to be pasted in this form.
    void remarkOn(office::PasteAs as, std::string remark) { remarks_[as] = std::move(remark); }
    std::unique_ptr<office::HeldDocument> hold(std::string_view className,
                                               const std::string& fullName) override;
    /// Somebody closes the documents of that name, and waits.
    void close(const std::string& fullName) { closing_.insert(fullName); }
    /// Presentations have windows with captions such as "Deck.pptx - PowerPoint" and the class
    /// "PPTFrameClass".
    office::WindowHandle findWindow(std::string_view className, std::string_view caption) override;
    bool raiseWindow(office::WindowHandle window) override;
    bool lockDrawing(office::WindowHandle window) override;
    void unlockDrawing() override { locked_ = 0; }
    void redraw(office::WindowHandle) override { ++redraws_; }
    [[nodiscard]] office::Pacing pacing() const override { return pacing_; }

private:
    std::shared_ptr<SuiteState> state_;
    std::shared_ptr<ExcelApplication> excel_;
    std::shared_ptr<PowerPointApplication> powerPoint_;
    std::shared_ptr<WordApplication> word_;
    office::Pacing pacing_ = office::Pacing::FinishedOnReturn;
    int clipboardClears_ = 0;
    int locksTaken_ = 0;
    int redraws_ = 0;
    office::WindowHandle raised_ = 0;
    office::WindowHandle locked_ = 0;
    std::map<office::PasteAs, std::string> remarks_;
    std::vector<std::string> remarksOnPage_;
    std::map<std::string, office::ShownCells> shownCells_;
    std::set<std::string> closing_;
};

}  // namespace office_double
