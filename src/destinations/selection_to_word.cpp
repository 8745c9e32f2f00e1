#include "destinations/selection_to_word.h"

#include <cstdint>
#include <string>
#include <string_view>

#include "catalogue/row_copies.h"
#include "catalogue/selection.h"
#include "destinations/text_area.h"
#include "destinations/word_numbers.h"
#include "office/failure_patterns.h"
#include "office/text.h"
#include "session/alerts_off.h"
#include "session/read_only.h"
#include "session/waits.h"

namespace destinations {

namespace {

using catalogue::Selected;
using office::arg;
using office::Object;
using office::Value;
using session::OfficeSession;
using session::WordPaste;

constexpr std::string_view title = "Murvane";

/// Where a thing comes to stand in the text. It then takes the width of the text, but for those
/// that keep their size.
enum class Arrival { Unresized, InLine, OverText };

/// What a command does where the others do something else.
struct Command {
    std::string_view question;
    bool movesDown;
    Arrival ofCharts;
    Arrival ofCells;
};

const Command& commandOf(WordPaste mode) {
    static constexpr Command picture{
        "Warning!Inseted object may override the current selected text", true, Arrival::InLine,
        Arrival::Unresized};
    static constexpr Command embedded{
        "Warning!Inseted object may override the current selected text.", true, Arrival::InLine,
        Arrival::OverText};
    static constexpr Command linked{
        "Warning!Inseted object will override the current selected text.", false, Arrival::OverText,
        Arrival::OverText};
    static constexpr Command table{"Warning!Inseted object may override the current selected text.",
                                   true, Arrival::Unresized, Arrival::Unresized};
    switch (mode) {
        case WordPaste::InlineEmbedded:
            return embedded;
        case WordPaste::FloatingLinked:
            return linked;
        case WordPaste::Table:
            return table;
        default:
            return picture;
    }
}

/// One run of a command.
class SelectionPaste {
public:
    SelectionPaste(OfficeSession& session, WordPaste mode)
        : session_(session),
          mode_(mode),
          command_(commandOf(mode)) {}

    void run();

private:
    [[nodiscard]] bool RequireWordDocument();
    [[nodiscard]] bool mayReplaceText();
    void moveDown();
    void copyAndPaste(Selected kind);
    void copy(Selected kind);
    void paste(Selected kind);
    [[nodiscard]] Arrival arrivalOf(Selected kind) const {
        return kind == Selected::Cells ? command_.ofCells : command_.ofCharts;
    }
    [[nodiscard]] Object pastedShape(Arrival arrival);
    void setSize(Selected kind);
    void say(std::string_view text) { session_.host.messageBox(text, title); }

    OfficeSession& session_;
    WordPaste mode_;
    const Command& command_;
    Object document_;
    Object selection_;
};

void SelectionPaste::run() {
    if (!RequireWordDocument() || session::refusesAsReadOnly(session_, document_, "document"))
        return;
    const Selected kind = catalogue::whatIsSelected(session_).kind;
    if (kind == Selected::None) {
        say("Nothing to paste, try again");
        return;
    }
    if (!mayReplaceText()) return;
    if (mode_ == WordPaste::Table && kind != Selected::Cells) {
        say("This icon refers to tables only");
        return;
    }
    if (mode_ != WordPaste::InlineEmbedded) {
        copyAndPaste(kind);
        return;
    }
    office::ContinueOnFailure scope;
    if (scope.attempt([&] { copyAndPaste(kind); })) return;
    say("Operation has failed!Please make sure that no graphic is selected");
    session_.WordApp.release();
}

bool SelectionPaste::RequireWordDocument() {
    office::ContinueOnFailure scope;
    std::int32_t documents = 0;
    scope.attempt([&] { session_.WordApp = session_.suite.attach("Word.Application"); });
    scope.attempt([&] { documents = session_.WordApp.get("Documents").get("Count").toLong(); });
    if (documents == 0) {
        say("The action requires an open Word document");
        return false;
    }
    document_ = session_.WordApp.get("ActiveDocument").toObject();
    selection_ = document_.get("ActiveWindow").get("Selection").toObject();
    return true;
}

/// A caret counts as one letter.
bool SelectionPaste::mayReplaceText() {
    constexpr std::size_t longestCharacter = 4;
    const std::string text = selection_.get("Text").toText();
    // Of all that may be selected its beginning tells.
    return office::charactersOf(text.substr(0, longestCharacter + 1)).size() <= 1 ||
           session_.host.ask(command_.question, title).value_or(false);
}

void SelectionPaste::moveDown() {
    if (!command_.movesDown) return;
    office::ContinueOnFailure().attempt([&] { selection_.call("MoveDown", arg("Count", 1)); });
}

void SelectionPaste::copyAndPaste(Selected kind) {
    constexpr std::uint32_t arrivedMs = 300;
    moveDown();
    copy(kind);
    session::SleepMilliseconds(session_, arrivedMs);
    paste(kind);
    setSize(kind);
    session_.WordApp.put("Visible", true);
    session_.WordApp.call("Activate");
}

void SelectionPaste::copy(Selected kind) {
    const bool isPicture = mode_ == WordPaste::Picture;
    if (kind == Selected::Cells) {
        const Object cells = session_.ExcelApp.get("Selection").toObject();
        if (isPicture) {
            catalogue::CopyCellsAsPicture(cells, catalogue::CopyFormat::Vectors);
        } else {
            cells.call("Copy");
        }
        return;
    }
    const Object chart = session_.ActiveBook.get("ActiveChart").toObject();
    if (isPicture) {
        catalogue::CopyChartAsPicture(chart);
    } else {
        chart.get("ChartArea").call("Copy");
    }
}

void SelectionPaste::paste(Selected kind) {
    switch (mode_) {
        case WordPaste::Picture:
            selection_.call("Paste");
            if (kind == Selected::Cells)
                selection_.get("ParagraphFormat").put("Alignment", Value());
            break;
        case WordPaste::Table:
            selection_.call("PasteExcelTable", false, false, false);
            break;
        default:
            // Where a shape over the text is looked for afterwards, it has to become one.
            selection_.call(
                "PasteSpecial", arg("Link", mode_ == WordPaste::FloatingLinked),
                arg("DataType", number::oleObject),
                arg("Placement",
                    arrivalOf(kind) == Arrival::OverText ? number::overTheText : number::inLine),
                arg("DisplayAsIcon", false));
    }
}

/// What has just been pasted: there may be others behind it. One over the text is selected then.
Object SelectionPaste::pastedShape(Arrival arrival) {
    constexpr std::int32_t character = 1;
    constexpr std::int32_t extend = 1;
    if (arrival == Arrival::OverText) return selection_.get("ShapeRange").toObject();
    selection_.call("MoveLeft", character, 1, extend);
    Object shape = selection_.get("InlineShapes").get("Item", 1).toObject();
    selection_.call("Collapse", number::toEnd);
    return shape;
}

void SelectionPaste::setSize(Selected kind) {
    const Arrival arrival = arrivalOf(kind);
    if (arrival == Arrival::Unresized) return;
    const Object shape = pastedShape(arrival);
    const TextArea area = textAreaOf(selection_.get("PageSetup"));
    fit(shape, sizeOf(shape), area.width, area);
    if (mode_ == WordPaste::FloatingLinked && kind == Selected::ChartSheet)
        selection_.get("ShapeRange").put("Left", Value());
}

}  // namespace

void PasteSelectionToWord(OfficeSession& session, WordPaste mode) {
    const session::AlertsOff quiet(session.ExcelApp);
    SelectionPaste(session, mode).run();
}

}  // namespace destinations
