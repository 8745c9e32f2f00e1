#pragma once

#include "apps/murvane_export/options.h"
#include "office/package/presentation/deck_file.h"
#include "office/suite.h"
#include "session/host.h"

namespace unattended {

/// A suite whose PowerPoint works on presentations as files. Excel and the clipboard are those of
/// the suite below; no window of either is looked for, since a run without a user shows none.
class DeckFileSuite : public office::Suite {
public:
    /// Suite and host have to outlive this one. The host measures texts; the options say what of a
    /// workbook goes into the presentation.
    DeckFileSuite(office::Suite& below, session::Host& host, const Options& options);

    office::Object attach(std::string_view className) override;
    office::Object start(std::string_view className) override;
    void clearClipboard() override { below_.clearClipboard(); }
    office::ClipboardPicture clipboardPicture(office::ClipboardPicture::Kind kind) override {
        return below_.clipboardPicture(kind);
    }
    office::ClipboardPtr clipboard() override { return below_.clipboard(); }
    std::vector<std::string> remarksOn(office::PasteAs as,
                                       const std::vector<office::PasteItem>& items) override;
    office::WindowHandle findWindow(std::string_view, std::string_view) override { return 0; }
    bool raiseWindow(office::WindowHandle, int) override { return false; }
    bool lockDrawing(office::WindowHandle) override { return false; }
    void unlockDrawing() override {}
    void redraw(office::WindowHandle) override {}
    [[nodiscard]] office::Pacing pacing() const override { return below_.pacing(); }

private:
    office::Suite& below_;
    office::package::FileRules rules_;
    office::Object powerPoint_;
};

}  // namespace unattended
