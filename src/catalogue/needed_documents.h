#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "office/held_document.h"
#include "session/office_session.h"

namespace catalogue {

/// What an export can't go on without: its workbook, and the presentation or the document that it
/// goes to. As long as this lives they stay open where the suite can see to it, and an export ends
/// after its item at hand once somebody closes one.
class NeededDocuments {
public:
    explicit NeededDocuments(session::OfficeSession& session);

    /// What the export goes to. `application` is the class name, `noun` what its user calls such a
    /// document.
    void addTarget(const char* application, const char* noun, const office::Object& document);

    /// Whether one has been found closed, or somebody waits to close it.
    [[nodiscard]] bool isOneClosed() const;
    /// Asks each whether it is open and nobody waits; for an item that has failed.
    [[nodiscard]] bool areOpen();
    /// Lets those close that are to be closed.
    void letGo();
    /// Which one is closed: "The workbook has been closed." Empty for none.
    [[nodiscard]] const std::string& closed() const { return closed_; }
    /// Whether what the export goes to has gone without waiting, by which an item has failed.
    [[nodiscard]] bool hasLostTarget() const { return hasLostTarget_; }

private:
    struct Needed {
        const char* noun;
        bool isTarget;
        office::Object document;
        std::unique_ptr<office::HeldDocument> held;
    };

    void hold(Needed needed, const char* application);
    void note(const Needed& closed);

    session::OfficeSession& session_;
    std::vector<Needed> needed_;
    std::string closed_;
    bool hasLostTarget_ = false;
};

}  // namespace catalogue
