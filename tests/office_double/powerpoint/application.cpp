#include "office_double/powerpoint/application.h"

#include <fmt/format.h>

#include <filesystem>

#include "office_double/loose_object.h"

namespace office_double {

const office::MemberTable<PowerPointApplication>& PowerPointApplication::members() {
    using Self = PowerPointApplication;
    static const auto table =
        office::MemberTable<Self>("Application")
            .property("Name", reading([](Self&) { return "Microsoft PowerPoint"; }))
            .property("Version", reading(&Self::version_))
            .property("Presentations", &Self::readPresentations)
            .property("ActivePresentation", reading([](Self& self) {
                          return self.requiredPresentation("ActivePresentation").handle();
                      }))
            .property("ActiveWindow", reading([](Self& self) {
                          return self.requiredPresentation("ActiveWindow").window().handle();
                      }))
            .property("Windows", &Self::readWindows)
            .property("SlideShowWindows", &Self::readSlideShowWindows);
    return table;
}

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

Presentation* PowerPointApplication::activePresentation() const {
    if (const auto active = std::dynamic_pointer_cast<Presentation>(active_.lock())) {
        return active.get();
    }
    return presentations_.empty() ? nullptr : presentations_.front().get();
}

void PowerPointApplication::closePresentation(Presentation& presentation) {
    if (&presentation == activePresentation()) active_.reset();
    presentation.remove();
    std::erase_if(presentations_, [&](const auto& held) { return held.get() == &presentation; });
}

Presentation& PowerPointApplication::requiredPresentation(const std::string& member) const {
    Presentation* presentation = activePresentation();
    if (presentation != nullptr) return *presentation;
    throw Failure(FailureNumber::ApplicationDefined, "Application." + member,
                  "No presentation is open");
}

Value PowerPointApplication::readPresentations() {
    auto made = collection(*this, "Presentations", [this] { return itemsOf(presentations_); });
    made->method("Open", {"FileName", "ReadOnly", "Untitled", "WithWindow"},
                 [this](const CallArguments& arguments) { return open(arguments); });
    made->method("Add", {"WithWindow"}, [this](const CallArguments&) {
        return Value(
            addPresentation(fmt::format("Presentation{}", presentations_.size() + 1), "").handle());
    });
    return valueOf(made);
}

Value PowerPointApplication::readWindows() {
    return valueOf(collection(*this, "DocumentWindows", [this] {
        Items windows;
        for (const auto& presentation : presentations_) {
            windows.push_back(presentation->window().shared_from_this());
        }
        return windows;
    }));
}

Value PowerPointApplication::readSlideShowWindows() {
    return valueOf(collection(*this, "SlideShowWindows", [this] {
        Items running;
        for (const auto& presentation : presentations_) {
            if (presentation->showsSlides()) running.push_back(presentation->slideShowWindow());
        }
        return running;
    }));
}

Value PowerPointApplication::open(const CallArguments& arguments) {
    const std::filesystem::path path = arguments.at(0).toText();
    const auto file = files_.find(path.string());
    if (file == files_.end()) {
        throw Failure(FailureNumber::ApplicationDefined, arguments.source(),
                      "There is no presentation " + path.string());
    }
    Presentation& opened = addPresentation(path.filename().string(), path.parent_path().string());
    file->second(opened);
    return opened.handle();
}

}  // namespace office_double
