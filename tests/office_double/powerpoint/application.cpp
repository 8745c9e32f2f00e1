#include "office_double/powerpoint/application.h"

#include <fmt/format.h>

#include <filesystem>

namespace office_double {

Presentation& PowerPointApplication::addPresentation(const std::string& name,
                                                     const std::string& folder) {
    presentations_.push_back(std::make_shared<Presentation>(*this, folder, name));
    activate(*presentations_.back());
    return *presentations_.back();
}

void PowerPointApplication::addFile(const std::string& path,
                                    std::function<void(Presentation&)> fill) {
    files_[path] = std::move(fill);
}

void PowerPointApplication::quit() {
    while (!presentations_.empty()) closePresentation(*presentations_.front());
    hasQuit_ = true;
}

office::Object PowerPointApplication::handle() {
    return model::applicationObject(state_, shared_from_this());
}

Presentation* PowerPointApplication::activePresentation() const {
    if (const auto active = active_.lock(); active && !active->isGone()) return active.get();
    return presentations_.empty() ? nullptr : presentations_.front().get();
}

void PowerPointApplication::closePresentation(Presentation& presentation) {
    presentation.markGone();
    std::erase_if(presentations_, [&](const auto& held) { return held.get() == &presentation; });
}

std::string PowerPointApplication::version() {
    requireRunning();
    return version_;
}

std::vector<model::DeckPtr> PowerPointApplication::open() {
    requireRunning();
    return {presentations_.begin(), presentations_.end()};
}

model::DeckPtr PowerPointApplication::active() {
    requireRunning();
    Presentation* const active = activePresentation();
    return active != nullptr ? active->shared_from_this() : nullptr;
}

model::DeckPtr PowerPointApplication::load(const std::string& file, bool /*withWindow*/) {
    const auto known = files_.find(file);
    if (known == files_.end()) model::refuse("Presentations.Open", "There is no file " + file);
    const std::filesystem::path path = file;
    Presentation& opened = addPresentation(path.filename().string(), path.parent_path().string());
    known->second(opened);
    return opened.shared_from_this();
}

model::DeckPtr PowerPointApplication::create(bool /*withWindow*/) {
    return addPresentation(fmt::format("Presentation{}", presentations_.size() + 1), "")
        .shared_from_this();
}

void PowerPointApplication::requireRunning() const {
    if (hasQuit_)
        throw office::Failure(office::FailureNumber::Disconnected, "Application",
                              "The application has ended");
}

}  // namespace office_double
