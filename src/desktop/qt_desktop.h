#pragma once

#include <QtCore/QObject>

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/desktop.h"

class QWebEngineProfile;
class QWidget;

namespace desktop {

class LoadedForm;

/// The desktop of windows. It wants a `DesktopApplication` that lives longer.
///
/// A failure that leaves an event procedure does not go through the toolkit: it is kept, and thrown
/// again by whoever is letting events run.
class QtDesktop final : public forms::Desktop {
public:
    QtDesktop();
    ~QtDesktop() override;

    void letEventsRun() override;
    void waitForEvents() override;
    [[nodiscard]] forms::Screen screen() const override;
    void messageBox(std::string_view text, std::string_view title) override;
    [[nodiscard]] std::optional<bool> ask(std::string_view text, std::string_view title) override;
    [[nodiscard]] std::optional<std::string> chooseFolder(std::string_view title,
                                                          std::string_view start) override;
    void showWorking(bool works) override;
    /// Closes one form after the other as the user would: each as soon as it takes input, so that
    /// an export ends as by its Cancel. From any thread.
    void closeForms();

    /// Answers message boxes instead of the user. The result counts where the box asks: true for
    /// Yes.
    using MessageBoxAnswer = std::function<bool(std::string_view text, std::string_view title)>;
    void answerMessageBoxes(MessageBoxAnswer answer) { answer_ = std::move(answer); }

    /// The form's part of its window, and the widget of a control; null where there is none. For
    /// tests and pictures.
    [[nodiscard]] QWidget* plateOf(const forms::Form& form) const;
    [[nodiscard]] QWidget* widgetOf(const forms::Control& control) const;

private:
    friend class LoadedForm;

    void openWindow(forms::Form& form, forms::ShowMode mode) override;
    void runModal(forms::Form& form) override;
    void closeWindow(forms::Form& form) override;

    /// Runs an event procedure, keeps its failure, and draws what it has changed.
    void run(const std::function<void()>& event);
    void runLater(LoadedForm& host, std::function<void()> event);
    void runPostponed();
    void holdEvents(bool hold);
    [[nodiscard]] bool holdsEvents() const { return holds_ > 0; }
    [[nodiscard]] QWebEngineProfile& browserProfile();

    std::optional<bool> showBox(std::string_view text, std::string_view title, bool asks);
    void sync();
    void pump(bool wait);
    void closeThoseThatTakeInput();
    /// Destroys the windows that have been closed and whose event procedures have ended.
    void deleteClosed();
    void throwFailure();
    [[nodiscard]] LoadedForm* loadedOf(const forms::Form& form) const;
    [[nodiscard]] LoadedForm& loadedFor(forms::Form& form);
    /// Whether a form that was opened before this one is topmost.
    [[nodiscard]] bool hasTopmostBelow(const LoadedForm& host) const;

    QObject context_;
    MessageBoxAnswer answer_;
    // The pages have to go before what they share, so the order of these counts.
    std::unique_ptr<QWebEngineProfile> profile_;
    std::vector<std::unique_ptr<LoadedForm>> forms_;
    std::vector<std::unique_ptr<LoadedForm>> closed_;
    std::vector<std::pair<LoadedForm*, std::function<void()>>> postponed_;
    std::exception_ptr failure_;
    bool closes_ = false;
    int holds_ = 0;
};

}  // namespace desktop
