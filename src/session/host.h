#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "office/size.h"

namespace session {

/// The clock on the wall, in the user's time zone. Months and days count from 1.
struct LocalTime {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// The kinds of files that a picture can be kept in.
enum class ImageFormat { Png, Gif, Jpeg, Bmp, Tiff };

/// The machine that the program runs on: its clock, files, environment and the plainest way to tell
/// the user something. Every path, clock and wait of the core goes through here, so that a test can
/// answer it.
class Host {
public:
    Host() = default;
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    virtual ~Host() = default;

    /// Milliseconds since some start, as a 32-bit counter that wraps around.
    [[nodiscard]] virtual std::uint32_t tickCount() = 0;
    [[nodiscard]] virtual LocalTime localTime() = 0;
    /// Waits without letting events run.
    virtual void sleep(std::uint32_t milliseconds) = 0;
    /// Lets the events that are waiting run, then returns.
    virtual void letEventsRun() = 0;

    [[nodiscard]] virtual std::optional<std::string> environment(std::string_view name) = 0;

    /// The full path of a file in the temporary folder: `TEMP` where it is set, otherwise a folder
    /// that only this user can read. The file need not exist. `office::Failure` 75 if the name is
    /// empty or holds a separator or a control character, or is "." or "..": a name from a workbook
    /// never leads to another folder.
    [[nodiscard]] virtual std::string temporaryFile(std::string_view fileName) = 0;

    /// Writes `text` to the file that `temporaryFile` gives for the name and returns its path. Only
    /// this user can read the file. It takes the place of one that is there as a whole, so that a
    /// reader meets the one or the other, and a link at that place is replaced, never followed.
    /// `office::Failure` 75 for a bad name or where the file can't be written; an earlier file then
    /// stays.
    virtual std::string writeTemporaryFile(std::string_view fileName, std::string_view text) = 0;

    /// `office::Failure` 53 if there is no such file, 70 if it can't be deleted.
    virtual void deleteFile(std::string_view path) = 0;
    [[nodiscard]] virtual bool fileExists(std::string_view path) = 0;

    /// The bytes of a file. `office::Failure` 53 if there is no such file, 75 if it can't be read.
    [[nodiscard]] virtual std::string readFile(std::string_view path) = 0;
    /// The folder of the pages of help that come with the program, without a separator at its end.
    [[nodiscard]] virtual std::string helpFolder() = 0;

    /// True if another process holds the file, or it can't be opened for reading.
    [[nodiscard]] virtual bool fileIsHeld(std::string_view path) = 0;

    /// Whether the name is taken, by whatever it may be: a file, a folder, a link that leads
    /// nowhere.
    [[nodiscard]] virtual bool pathExists(std::string_view path) = 0;

    /// The names of what stands in a folder, links that lead nowhere included, in no order. None if
    /// it can't be read.
    [[nodiscard]] virtual std::vector<std::string> namesIn(std::string_view folder) = 0;

    /// The full path of a folder for the program's output, in the user's home. Nothing is made.
    [[nodiscard]] virtual std::string outputFolder(std::string_view name) = 0;
    /// Makes a folder and those above it that are missing; one that is there already is fine.
    /// `office::Failure` 75 where a file is in the way, or it can't be made.
    virtual void makeFolder(std::string_view path) = 0;
    /// Takes away a folder with all that it holds, of one that this run has made. Links in it are
    /// not followed. Failures are silent.
    virtual void removeFolder(std::string_view path) = 0;
    /// Makes a folder inside another for what is not finished yet, hidden and of this run alone.
    /// Those that killed runs have left there go. `office::Failure` 75 if it can't be made.
    [[nodiscard]] virtual std::string makeDraftFolder(std::string_view parent) = 0;
    /// Moves a file or a folder that is finished to its place on the same disk. `office::Failure`
    /// 75 if it can't be moved, or the name is taken by now.
    virtual void moveTo(std::string_view from, std::string_view place) = 0;
    /// Found out by trying. False for anything but a folder.
    [[nodiscard]] virtual bool folderCanBeWrittenTo(std::string_view path) = 0;

    /// Writes a file as a whole: a reader meets the earlier file or this one, and so it is after a
    /// failure. A link at the path is replaced. `office::Failure` 75 with the reason if it can't be
    /// written.
    virtual void writeFile(std::string_view path, std::string_view text) = 0;
    /// Writes a picture, given as the bytes of a PNG file, in the same way. GIF, JPEG (of quality
    /// 75) and BMP get a white ground where it is transparent. The density goes along wherever the
    /// format has one. `office::Failure` 75 as above, 1004 if the bytes are no picture.
    virtual void writeImage(std::string_view png, ImageFormat format, std::string_view path) = 0;

    /// How much room a text takes in the fonts of this machine, or in what stands in for the one
    /// that isn't there. Lines end at line feeds, and at the width if there is one.
    [[nodiscard]] virtual office::Size textSize(std::string_view text, const office::Font& font,
                                                std::optional<double> widthPt) = 0;

    /// Opens an address of the web or of a file with the user's browser. False if there is none.
    virtual bool openLink(std::string_view address) = 0;

    /// Opens a file or a folder with the program that the user has for it. False if there is none,
    /// or nothing stands at the path.
    virtual bool openFile(std::string_view path) = 0;

    /// Lets the user choose a folder, beginning at `start`. Nothing if they cancel, or nobody
    /// is there to be asked.
    [[nodiscard]] virtual std::optional<std::string> chooseFolder(std::string_view title,
                                                                  std::string_view start) = 0;

    /// A plain box with Yes and No. False for No, and where nobody is there to be asked; nothing if
    /// the box is closed without an answer, by the user or because the program is to end.
    [[nodiscard]] virtual std::optional<bool> ask(std::string_view text,
                                                  std::string_view title) = 0;

    /// The system's plain message box with an exclamation mark, for when nothing better can be
    /// shown.
    virtual void messageBox(std::string_view text, std::string_view title) = 0;
};

}  // namespace session
