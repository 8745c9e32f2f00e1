#include "office/libreoffice/powerpoint/slide_show_window.h"

#include <fmt/format.h>

#include <utility>

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Failure;
using office::FailureNumber;
using office::Value;

SlideShowWindow::SlideShowWindow(DeskPtr desk, ImpressDocumentPtr document)
    : UnoObject(std::move(desk), document),
      document_(std::move(document)) {}

const office::MemberTable<SlideShowWindow>& SlideShowWindow::members() {
    static const auto table =
        office::MemberTable<SlideShowWindow>("SlideShowWindow")
            .property("View", [](SlideShowWindow& self, const CallArguments&) -> Value {
                return makeObject<SlideShowView>(self.deskPtr(), self.document_);
            });
    return table;
}

SlideShowView::SlideShowView(DeskPtr desk, ImpressDocumentPtr document)
    : UnoObject(std::move(desk), document),
      document_(std::move(document)) {}

const office::MemberTable<SlideShowView>& SlideShowView::members() {
    static const auto table = office::MemberTable<SlideShowView>("SlideShowView")
                                  .method("Exit", {}, &SlideShowView::exit);
    return table;
}

Value SlideShowView::exit(const CallArguments& /*arguments*/) {
    document_->endSlideShow();
    return {};
}

SlideShowWindows::SlideShowWindows(DeskPtr desk) : UnoObject(std::move(desk)) {}

const office::MemberTable<SlideShowWindows>& SlideShowWindows::members() {
    static const auto table = office::MemberTable<SlideShowWindows>("SlideShowWindows")
                                  .property("Count", &SlideShowWindows::count)
                                  .property("Item", {"Index"}, &SlideShowWindows::item);
    return table;
}

Value SlideShowWindows::count() {
    return static_cast<std::int32_t>(running().size());
}

Value SlideShowWindows::item(const CallArguments& arguments) {
    const auto shows = running();
    const std::int32_t place = arguments.at(0).toLong();
    if (place < 1 || static_cast<std::size_t>(place) > shows.size())
        throw Failure(FailureNumber::SubscriptOutOfRange, arguments.source(),
                      fmt::format("There is no slide show {}", place));
    return makeObject<SlideShowWindow>(deskPtr(), shows[static_cast<std::size_t>(place - 1)]);
}

std::vector<ImpressDocumentPtr> SlideShowWindows::running() const {
    auto shows = desk().presentations();
    std::erase_if(shows, [](const auto& document) { return !document->showsSlides(); });
    return shows;
}

}  // namespace libreoffice::powerpoint
