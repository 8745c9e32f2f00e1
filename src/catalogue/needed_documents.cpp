#include "catalogue/needed_documents.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "office/failure_patterns.h"

namespace catalogue {

NeededDocuments::NeededDocuments(session::OfficeSession& session) : session_(session) {
    hold({"workbook", false, session.ActiveBook, nullptr}, "Excel.Application");
}

void NeededDocuments::addTarget(const char* application, const char* noun,
                                const office::Object& document) {
    hold({noun, true, document, nullptr}, application);
}

void NeededDocuments::hold(Needed needed, const char* application) {
    office::ContinueOnFailure().attempt([&] {
        const std::string fullName = needed.document.get("FullName").toText();
        needed.held = session_.suite.hold(application, fullName);
    });
    needed_.push_back(std::move(needed));
}

bool NeededDocuments::isOneClosed() const {
    return !closed_.empty() || std::ranges::any_of(needed_, [](const Needed& needed) {
        return needed.held && needed.held->isToBeClosed();
    });
}

bool NeededDocuments::areOpen() {
    for (const Needed& needed : needed_) {
        if (needed.held && needed.held->isToBeClosed()) note(needed);
        const bool isOpen = office::ContinueOnFailure().attempt(
            [&] { static_cast<void>(needed.document.get("Name").toText()); });
        if (isOpen) continue;
        note(needed);
        hasLostTarget_ = hasLostTarget_ || needed.isTarget;
    }
    return closed_.empty();
}

void NeededDocuments::letGo() {
    for (Needed& needed : needed_) {
        if (needed.held && needed.held->isToBeClosed()) note(needed);
        needed.held.reset();
    }
}

void NeededDocuments::note(const Needed& closed) {
    if (closed_.empty()) closed_ = fmt::format("The {} has been closed.", closed.noun);
}

}  // namespace catalogue
