#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "office/copied.h"
#include "office/held_document.h"
#include "office/picture.h"
#include "office/size.h"
#include "office/value.h"

namespace office {

/// A top window of an application; 0 is none.
using WindowHandle = std::uintptr_t;

/// Whether copy and paste have finished when the call returns, or go on in another process for a
/// while.
enum class Pacing { FinishedOnReturn, Asynchronous };

/// Something that is to be pasted, under the name that the user knows it by.
struct PasteItem {
    std::string name;
    /// As far as it is known before the copy.
    CopySource source;
    /// Another one, of another sheet, has that name.
    bool sharesName = false;
    /// Of a table where it is to go; none: any number.
    std::optional<std::size_t> mostColumns = {};
    /// Whether a table is written into a file here, and not by the suite.
    bool isForFile = false;
};

/// What decides whether cells that are shown somewhere else can be read there.
struct ShownCells {
    /// None of few cells, which are small.
    Size size;
    double lettersPt = 0;
    bool haveSparklines = false;
    /// Whether pictures of them may have conditional formats wrong.
    bool mayBeMisdrawn = false;
};

/// The office applications of this machine, apart from their object models: which of them run,
/// their windows and the clipboard. One implementation for each platform's suite.
class Suite {
public:
    Suite() = default;
    Suite(const Suite&) = delete;
    Suite& operator=(const Suite&) = delete;
    virtual ~Suite() = default;

    /// The running application of a class name ("Excel.Application"), or nothing. Never starts one.
    virtual Object attach(std::string_view className) = 0;

    /// Starts an application of a class name. `Failure` if it can't be started.
    virtual Object start(std::string_view className) = 0;

    virtual void clearClipboard() = 0;
    /// What the clipboard holds, as the bytes of a PNG; empty if it holds no picture.
    virtual std::vector<std::uint8_t> clipboardPicture(Sharpness sharpness) = 0;
    /// Where its Excel leaves what was copied, for a PowerPoint or a Word that stands elsewhere.
    /// Never null: it stays empty where the applications pass copies among themselves.
    virtual ClipboardPtr clipboard() = 0;
    /// The picture files of its Excel that may still be on their way; null if all are whole as soon
    /// as it says so.
    virtual PictureFilesPtr pictureFiles() { return nullptr; }
    /// What the user should know before items are pasted in this form into the active document of
    /// an application ("Word.Application"), a line each.
    virtual std::vector<std::string> remarksOn(std::string_view /*className*/, PasteAs,
                                               const std::vector<PasteItem>&) {
        return {};
    }
    /// Of each item, nothing of those that are no cells of the active workbook; empty where that
    /// can't be told.
    virtual std::vector<ShownCells> shownCells(const std::vector<PasteItem>&) { return {}; }
    /// What the user should know before items are published as tables, a line each.
    virtual std::vector<std::string> remarksOnPage(const std::vector<PasteItem>&) { return {}; }

    /// Keeps the open document of that full name and of that application open. Null where nobody
    /// else closes it, or where that can't be kept from happening.
    virtual std::unique_ptr<HeldDocument> hold(std::string_view /*className*/,
                                               const std::string& /*fullName*/) {
        return nullptr;
    }

    /// The top window with this class and caption; an empty one of the two means any. 0 if there is
    /// none.
    virtual WindowHandle findWindow(std::string_view className, std::string_view caption) = 0;

    /// Shows the window in its normal size and gives it the foreground. False if it did not get it.
    virtual bool raiseWindow(WindowHandle window) = 0;

    /// Freezes the drawing of one window. Only one is frozen at a time: false if another already
    /// is.
    virtual bool lockDrawing(WindowHandle window) = 0;
    virtual void unlockDrawing() = 0;
    virtual void redraw(WindowHandle window) = 0;

    [[nodiscard]] virtual Pacing pacing() const = 0;

    /// Says that from here on this thread and the applications mostly wait for each other.
    virtual void expectTurns() {}
};

}  // namespace office
