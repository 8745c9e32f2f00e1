#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "office/suite.h"

namespace office::drawing {
class DrawingRoom;
}

namespace libreoffice {

class Connection;
class Desk;
class PrivateInstance;

namespace powerpoint {
class ImpressDeck;
}

/// The applications of LibreOffice behind the names of Excel, PowerPoint and Word.
class LibreOfficeSuite : public office::Suite {
public:
    /// The suite that the user is running, also one that was started without a listening pipe: the
    /// suite's own launcher hands it the wish for one. Never starts a suite and never ends it.
    /// `attach` connects to it when it is first called: with no suite running it gives nothing, and
    /// it throws `office::Failure` once if one runs and does not answer.
    static std::unique_ptr<LibreOfficeSuite> attachToRunning();

    /// A suite of our own without a window, with a profile of Murvane's that is kept for the next
    /// start. It ends with this object, and with this process, however that ends. `office::Failure`
    /// if it can't be started in `patience`, or as soon as `isUnwanted` says so.
    static std::unique_ptr<LibreOfficeSuite> startPrivate(
        std::chrono::milliseconds patience = std::chrono::seconds(60),
        const std::function<bool()>& isUnwanted = {});

    /// The same over an instance that has been started, and that others may have a way to.
    static std::unique_ptr<LibreOfficeSuite> on(std::unique_ptr<PrivateInstance> instance);

    ~LibreOfficeSuite() override;

    /// Breaks off at once: a call that waits ends with `office::SuiteLost`, and a private suite is
    /// killed. For another thread, on an interrupt.
    void interrupt();
    /// Calls answered by the suite so far.
    [[nodiscard]] std::uint64_t remoteCalls() const;
    /// The process of a private suite, else 0.
    [[nodiscard]] int processId() const;

    office::Object attach(std::string_view className) override;
    office::Object start(std::string_view className) override;
    void clearClipboard() override;
    std::vector<std::uint8_t> clipboardPicture(office::Sharpness sharpness) override;
    office::ClipboardPtr clipboard() override { return clipboard_; }
    office::PictureFilesPtr pictureFiles() override;
    std::vector<office::ShownCells> shownCells(
        const std::vector<office::PasteItem>& items) override;
    std::vector<std::string> remarksOnPage(const std::vector<office::PasteItem>& items) override;
    std::vector<std::string> remarksOn(std::string_view className, office::PasteAs as,
                                       const std::vector<office::PasteItem>& items) override;
    std::unique_ptr<office::HeldDocument> hold(std::string_view className,
                                               const std::string& fullName) override;
    office::WindowHandle findWindow(std::string_view className, std::string_view caption) override;
    bool raiseWindow(office::WindowHandle window) override;
    /// Remembered, and nothing is locked: the user would sit in front of a frozen presentation if
    /// this process died.
    bool lockDrawing(office::WindowHandle window) override;
    void unlockDrawing() override;
    void redraw(office::WindowHandle window) override;
    [[nodiscard]] office::Pacing pacing() const override {
        return office::Pacing::FinishedOnReturn;
    }
    /// Binds a private suite to the processor of this thread: to wake one another across processors
    /// takes longer than most calls.
    void expectTurns() override;

private:
    LibreOfficeSuite(std::unique_ptr<PrivateInstance> instance,
                     std::shared_ptr<Connection> connection);

    void connect(std::shared_ptr<Connection> connection);
    [[nodiscard]] bool damagesWorkbooks(std::size_t more);
    [[nodiscard]] bool forgetsViews();

    /// Window handles are positions in `windows_`, counted from 1: a presentation's window stands
    /// for the presentation.
    office::WindowHandle handleOf(const std::shared_ptr<powerpoint::ImpressDeck>& presentation);
    [[nodiscard]] std::shared_ptr<powerpoint::ImpressDeck> presentationOf(
        office::WindowHandle window) const;

    std::unique_ptr<PrivateInstance> instance_;
    std::shared_ptr<Connection> connection_;
    /// Guards its being set against an interrupt.
    std::mutex connecting_;
    /// Whether the user's suite has still to be looked for.
    bool seeksRunning_ = false;
    std::shared_ptr<office::drawing::DrawingRoom> drawingRoom_;
    std::shared_ptr<Desk> desk_;
    office::ClipboardPtr clipboard_ = std::make_shared<office::Clipboard>();
    std::vector<std::weak_ptr<powerpoint::ImpressDeck>> windows_;
    office::WindowHandle locked_ = 0;
    /// Whether a document was held open that the user has closed meanwhile.
    std::shared_ptr<bool> hasClosedHeld_ = std::make_shared<bool>(false);
};

}  // namespace libreoffice
