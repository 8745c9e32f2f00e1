#include "office/libreoffice/powerpoint/document_windows.h"

#include <utility>

#include "office/libreoffice/powerpoint/document_window.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Value;

DocumentWindows::DocumentWindows(DeskPtr desk, std::vector<ImpressDocumentPtr> documents)
    : UnoObject(std::move(desk)),
      documents_(std::move(documents)) {}

const office::MemberTable<DocumentWindows>& DocumentWindows::members() {
    static const auto table =
        office::MemberTable<DocumentWindows>("DocumentWindows")
            .property("Count",
                      [](DocumentWindows& self, const CallArguments&) {
                          return Value(static_cast<std::int32_t>(self.documents_.size()));
                      })
            .property("Item", {"Index"}, &DocumentWindows::item);
    return table;
}

Value DocumentWindows::item(const CallArguments& arguments) {
    const auto index = static_cast<std::size_t>(arguments.at(0).toLong()) - 1;
    if (index >= documents_.size())
        throw office::Failure(office::FailureNumber::SubscriptOutOfRange, arguments.source(),
                              "A presentation has one window");
    return makeObject<DocumentWindow>(deskPtr(), documents_[index]);
}

}  // namespace libreoffice::powerpoint
