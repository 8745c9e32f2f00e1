#pragma once

#include "apps/murvane_export/options.h"
#include "office/package/workbook/workbook_file.h"
#include "office/suite.h"
#include "session/host.h"

namespace unattended {

/// Which applications work on files.
struct AsFiles {
    bool decks = false;
    bool documents = false;
};

/// A suite whose PowerPoint works on presentations as files, or whose Word on documents as files,
/// or both. Excel and the clipboard are those of the suite below; no window of what works on files
/// is looked for, since a run without a user shows none.
class FileSuite : public office::Suite {
public:
    /// Suite and host have to outlive this one. The host measures texts; the options say what of a
    /// workbook goes into a file.
    FileSuite(office::Suite& below, session::Host& host, const Options& options, AsFiles asFiles);

    office::Object attach(std::string_view className) override;
    office::Object start(std::string_view className) override;
    void clearClipboard() override { below_.clearClipboard(); }
    std::vector<std::uint8_t> clipboardPicture(office::Sharpness sharpness) override {
        return below_.clipboardPicture(sharpness);
    }
    office::ClipboardPtr clipboard() override { return below_.clipboard(); }
    office::PictureFilesPtr pictureFiles() override { return below_.pictureFiles(); }
    std::vector<office::ShownCells> shownCells(
        const std::vector<office::PasteItem>& items) override {
        return below_.shownCells(items);
    }
    std::vector<std::string> remarksOnPage(const std::vector<office::PasteItem>& items) override {
        return below_.remarksOnPage(items);
    }
    std::vector<std::string> remarksOn(std::string_view className, office::PasteAs as,
                                       const std::vector<office::PasteItem>& items) override;
    std::unique_ptr<office::HeldDocument> hold(std::string_view className,
                                               const std::string& fullName) override {
        return below_.hold(className, fullName);
    }
    office::WindowHandle findWindow(std::string_view className, std::string_view caption) override;
    bool raiseWindow(office::WindowHandle window) override;
    bool lockDrawing(office::WindowHandle window) override;
    void unlockDrawing() override { below_.unlockDrawing(); }
    void redraw(office::WindowHandle window) override { below_.redraw(window); }
    [[nodiscard]] office::Pacing pacing() const override { return below_.pacing(); }

private:
    [[nodiscard]] office::Object fileApplication(std::string_view className) const;

    office::Suite& below_;
    office::Object powerPoint_;
    office::Object word_;
    bool embedsSheetAlone_;
    office::package::WorkbookFilesPtr workbooks_;
};

}  // namespace unattended
