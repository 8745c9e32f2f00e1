#include "apps/terminal.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <vector>

#include "apps/terminal_text.h"
#include "office/text.h"

namespace apps {

namespace {

/// Back to the line's start; then, erase what stands right of the cursor.
constexpr const char* lineStart = "\r";
constexpr const char* eraseRest = "\x1b[K";

constexpr int cancelFlag = 1;
constexpr int yesNoFlag = 4;

/// The lines of a message without the empty ones.
std::vector<std::string> printableLines(std::string_view message) {
    std::vector<std::string> lines;
    for (const std::string& each : office::linesOf(message)) {
        const std::string_view line = office::trim(each);
        if (!line.empty()) lines.push_back(printable(line));
    }
    return lines;
}

std::string labelOf(const session::Notice& notice) {
    if (!notice.title.empty() && notice.title != "Murvane") return printable(notice.title);
    if (notice.kind == "warning") return "Warning";
    return notice.kind == "error" ? "Error" : "Note";
}

}  // namespace

void StatusLine::show(std::string_view text) {
    if (!isWanted_) return;
    console_.writeError(std::string(lineStart) + std::string(text) + eraseRest);
    isShown_ = true;
}

void StatusLine::clear() {
    if (!isShown_) return;
    console_.writeError(std::string(lineStart) + eraseRest);
    isShown_ = false;
}

void TerminalNotices::print(const session::Notice& notice) {
    const std::vector<std::string> lines = printableLines(notice.message);
    std::string text = labelOf(notice) + ":";
    if (lines.size() == 1) text += " " + lines.front();
    for (std::size_t i = 0; lines.size() > 1 && i < lines.size(); ++i) text += "\n  " + lines[i];
    console_.writeError(text + "\n");
}

bool TerminalNotices::isAccepted() {
    if (answering_ == Answering::Accepts) return true;
    if (answering_ == Answering::Refuses) {
        console_.writeError("Not continued: nobody can be asked here." + refusalHint_ + "\n");
        return false;
    }
    console_.writeError("Type y to go on: ");
    const std::string reply = office::lowerCase(office::trim(console_.readLine().value_or("")));
    return reply == "y" || reply == "yes";
}

int TerminalNotices::show(const session::Notice& notice) {
    line_.clear();
    print(notice);
    if ((notice.buttons & (cancelFlag | yesNoFlag)) == 0) {
        const bool isRemark = notice.kind == "warning" || notice.kind == "error";
        if (isRemark && onRemark_) onRemark_();
        return session::answer::ok;
    }
    const bool isAccept = isAccepted();
    if ((notice.buttons & yesNoFlag) != 0) {
        return isAccept ? session::answer::yes : session::answer::no;
    }
    return isAccept ? session::answer::ok : session::answer::cancel;
}

void TerminalProgress::setLoadingValue(int percent) {
    loading_ = std::clamp(percent, 0, 100);
    line_.show(fmt::format("Reading the workbook  {}%", loading_));
}

void TerminalProgress::showItem(int item, int total) {
    line_.show(
        fmt::format("Exporting item {} of {}  {}%", item, total, item * 100 / std::max(total, 1)));
}

std::string unhandledFailureReport(const std::exception& failure) {
    const auto* office = dynamic_cast<const office::Failure*>(&failure);
    if (office == nullptr) return fmt::format("Murvane: {}", failure.what());
    if (office->isRefusal()) return office->sentence();
    return fmt::format("Murvane: unhandled failure {} from {}: {}", office->number(),
                       office->source(), office->description());
}

}  // namespace apps
