#include "office_double/suite.h"

#include <fmt/format.h>

#include "office/text.h"
#include "support/png_file.h"

namespace office_double {

ExcelApplication& DoubleSuite::excel() {
    if (!excel_) excel_ = std::make_shared<ExcelApplication>(state_);
    return *excel_;
}

PowerPointApplication& DoubleSuite::powerPoint() {
    if (!powerPoint_) powerPoint_ = std::make_shared<PowerPointApplication>(state_);
    return *powerPoint_;
}

WordApplication& DoubleSuite::word() {
    if (!word_) word_ = std::make_shared<WordApplication>(state_);
    return *word_;
}

void DoubleSuite::quitWord() {
    if (!word_) return;
    for (const auto& open : word_->open()) open->close();
    word_.reset();
}

void DoubleSuite::quitPowerPoint() {
    if (!powerPoint_) return;
    for (const auto& open : powerPoint_->open()) open->close();
    powerPoint_.reset();
}

Object DoubleSuite::attach(std::string_view className) {
    if (state_->failures.suiteIsLost()) return {};
    if (excel_ && office::sameIgnoringCase(className, "Excel.Application")) {
        return excel_->handle();
    }
    if (powerPoint_ && office::sameIgnoringCase(className, "PowerPoint.Application")) {
        return powerPoint_->handle();
    }
    if (word_ && office::sameIgnoringCase(className, "Word.Application")) return word_->handle();
    return {};
}

Object DoubleSuite::start(std::string_view className) {
    if (office::sameIgnoringCase(className, "Word.Application")) return word().handle();
    throw Failure(429, "Suite.start", fmt::format("{} can't be started", className));
}

void DoubleSuite::clearClipboard() {
    ++clipboardClears_;
    state_->clipboard->copied.reset();
}

std::vector<std::uint8_t> DoubleSuite::clipboardPicture(office::Sharpness) {
    const office::CopiedPtr& copied = state_->clipboard->copied;
    if (!copied) return {};
    const std::string png = copied->picture(office::Sharpness::Crisp).png.get();
    return {png.begin(), png.end()};
}

std::vector<office::ShownCells> DoubleSuite::shownCells(
    const std::vector<office::PasteItem>& items) {
    std::vector<office::ShownCells> all;
    for (const office::PasteItem& item : items) all.push_back(shownCells_[item.name]);
    return all;
}

std::vector<std::string> DoubleSuite::remarksOn(std::string_view /*className*/, office::PasteAs as,
                                                const std::vector<office::PasteItem>& items) {
    std::vector<std::string> lines;
    const auto remark = remarks_.find(as);
    for (const office::PasteItem& item : items) {
        if (remark != remarks_.end())
            lines.push_back(fmt::format("{} of {}, sheet {}: {}", item.name, item.source.file,
                                        item.source.sheet, remark->second));
    }
    return lines;
}

std::unique_ptr<office::HeldDocument> DoubleSuite::hold(std::string_view /*className*/,
                                                        const std::string& fullName) {
    struct Held : office::HeldDocument {
        const std::set<std::string>* closing = nullptr;
        std::string name;
        [[nodiscard]] bool isToBeClosed() const override { return closing->contains(name); }
    };
    auto held = std::make_unique<Held>();
    held->closing = &closing_;
    held->name = fullName;
    return held;
}

office::WindowHandle DoubleSuite::findWindow(std::string_view className, std::string_view caption) {
    if (!powerPoint_ || (!className.empty() && className != "PPTFrameClass")) return 0;
    for (const auto& open : powerPoint_->open()) {
        if (caption.empty() || caption == open->name() + " - PowerPoint")
            return std::hash<model::Deck*>()(open.get());
    }
    return 0;
}

bool DoubleSuite::raiseWindow(office::WindowHandle window) {
    raised_ = window;
    return window != 0;
}

bool DoubleSuite::lockDrawing(office::WindowHandle window) {
    if (locked_ != 0 || window == 0) return false;
    locked_ = window;
    ++locksTaken_;
    return true;
}

}  // namespace office_double
