#pragma once

#include <optional>
#include <string>
#include <vector>

#include "apps/console.h"
#include "apps/pango_text.h"
#include "session/host.h"

namespace apps {

/// This machine, as Linux and its relatives have it. The private temporary folder is made when the
/// first file is asked for, under `TEMP`, `XDG_RUNTIME_DIR`, `TMPDIR` or `/tmp`, and goes with this
/// object; those of processes that were killed go when the next one is made.
class PosixHost : public session::Host {
public:
    explicit PosixHost(Console& console) : console_(console) {}
    ~PosixHost() override;

    [[nodiscard]] std::uint32_t tickCount() override;
    [[nodiscard]] session::LocalTime localTime() override;
    void sleep(std::uint32_t milliseconds) override;
    /// No events come from anywhere: a program without windows.
    void letEventsRun() override {}
    [[nodiscard]] std::optional<std::string> environment(std::string_view name) override;
    [[nodiscard]] std::string temporaryFile(std::string_view fileName) override;
    std::string writeTemporaryFile(std::string_view fileName, std::string_view text) override;
    void deleteFile(std::string_view path) override;
    [[nodiscard]] bool fileExists(std::string_view path) override;
    [[nodiscard]] std::string readFile(std::string_view path) override;
    /// Beside the program, or in the share folder of the place that it is installed in.
    [[nodiscard]] std::string helpFolder() override;
    [[nodiscard]] bool fileIsHeld(std::string_view path) override;
    [[nodiscard]] bool pathExists(std::string_view path) override;
    [[nodiscard]] std::vector<std::string> namesIn(std::string_view folder) override;
    [[nodiscard]] std::string outputFolder(std::string_view name) override;
    void makeFolder(std::string_view path) override;
    void removeFolder(std::string_view path) override;
    [[nodiscard]] std::string makeDraftFolder(std::string_view parent) override;
    void moveTo(std::string_view from, std::string_view place) override;
    [[nodiscard]] bool folderCanBeWrittenTo(std::string_view path) override;
    void writeFile(std::string_view path, std::string_view text) override;
    void writeImage(std::string_view png, session::ImageFormat format,
                    std::string_view path) override;
    [[nodiscard]] office::Size textSize(std::string_view text, const office::Font& font,
                                        std::optional<double> widthPt) override {
        if (!texts_) texts_.emplace();
        return texts_->sizeOf(text, font, widthPt);
    }
    bool openLink(std::string_view address) override;
    bool openFile(std::string_view path) override;
    [[nodiscard]] std::optional<std::string> chooseFolder(std::string_view,
                                                          std::string_view) override {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<bool> ask(std::string_view, std::string_view) override {
        return false;
    }
    void messageBox(std::string_view text, std::string_view title) override;

protected:
    /// Variables of the environment that this process has set for itself: what it opens goes
    /// without them.
    [[nodiscard]] virtual std::vector<std::string> ownVariables() const { return {}; }

private:
    [[nodiscard]] const std::string& privateFolder();
    [[nodiscard]] bool openWithItsProgram(const std::string& target);

    Console& console_;
    std::optional<std::string> privateFolder_;
    std::optional<TextMeasure> texts_;
};

}  // namespace apps
