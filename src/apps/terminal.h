#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "apps/console.h"
#include "office/failure.h"
#include "session/notices.h"
#include "session/progress_display.h"

/// What a run without windows shows: notices on standard error, and how far it is.
namespace apps {

/// One line at the bottom of the terminal that is written over again and again. Anywhere else than
/// on a terminal it shows nothing.
class StatusLine {
public:
    StatusLine(Console& console, bool isWanted)
        : console_(console),
          isWanted_(isWanted && console.errorIsTerminal()) {}
    ~StatusLine() { clear(); }
    StatusLine(const StatusLine&) = delete;
    StatusLine& operator=(const StatusLine&) = delete;

    void show(std::string_view text);
    /// Takes the line away, so that other text can be written.
    void clear();

private:
    Console& console_;
    bool isWanted_;
    bool isShown_ = false;
};

/// What becomes of a question when nobody stands in front of a window.
enum class Answering { Accepts, Refuses, AsksUser };

/// Prints notices on standard error.
class TerminalNotices : public session::NoticePresenter {
public:
    /// `refusalHint` follows the words about a question that nobody was asked; it may be empty.
    /// `onRemark` is told of each warning or error that left no choice.
    TerminalNotices(Console& console, StatusLine& line, Answering answering,
                    std::string refusalHint = {}, std::function<void()> onRemark = {})
        : console_(console),
          line_(line),
          answering_(answering),
          refusalHint_(std::move(refusalHint)),
          onRemark_(std::move(onRemark)) {}

    int show(const session::Notice& notice) override;

private:
    void print(const session::Notice& notice);
    [[nodiscard]] bool isAccepted();

    Console& console_;
    StatusLine& line_;
    Answering answering_;
    std::string refusalHint_;
    std::function<void()> onRemark_;
};

/// Shows how far a run is on the status line.
class TerminalProgress : public session::ProgressDisplay {
public:
    /// `isCancelled` says whether the user wants the batch to end; none: it goes to its end.
    explicit TerminalProgress(StatusLine& line, std::function<bool()> isCancelled = {})
        : line_(line),
          isCancelled_(std::move(isCancelled)) {}

    void showLoading() override { line_.show("Reading the workbook"); }
    void setLoadingValue(int percent) override;
    [[nodiscard]] int loadingValue() const override { return loading_; }
    void clearLoading() override { loading_ = 0; }
    void unloadLoading() override { line_.clear(); }

    void showItem(int item, int total) override;
    [[nodiscard]] bool cancelled() const override { return isCancelled_ && isCancelled_(); }
    void unload() override { line_.clear(); }

private:
    StatusLine& line_;
    std::function<bool()> isCancelled_;
    int loading_ = 0;
};

/// What is said of a failure that nobody handled and that ends the program.
[[nodiscard]] std::string unhandledFailureReport(const std::exception& failure);

}  // namespace apps
