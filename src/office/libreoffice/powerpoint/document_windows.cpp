#include "office/libreoffice/powerpoint/document_windows.h"

#include <utility>

#include "office/libreoffice/powerpoint/document_window.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Value;

DocumentWindows::DocumentWindows(DeskPtr desk, ImpressDocumentPtr document)
    : UnoObject(std::move(desk), document),
      document_(std::move(document)) {}

const office::MemberTable<DocumentWindows>& DocumentWindows::members() {
    static const auto table =
        office::MemberTable<DocumentWindows>("DocumentWindows")
            .property("Count", [](DocumentWindows&, const CallArguments&) { return Value(1); })
            .property("Item", {"Index"}, &DocumentWindows::item);
    return table;
}

Value DocumentWindows::item(const CallArguments& arguments) {
    if (arguments.at(0).toLong() != 1)
        throw office::Failure(office::FailureNumber::SubscriptOutOfRange, arguments.source(),
                              "The presentation has one window");
    return makeObject<DocumentWindow>(deskPtr(), document_);
}

}  // namespace libreoffice::powerpoint
