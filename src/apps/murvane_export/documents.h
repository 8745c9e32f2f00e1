#pragma once

#include <cstdint>
#include <filesystem>

#include "apps/murvane_export/options.h"
#include "session/office_session.h"

namespace unattended {

/// The documents of a run in a private suite, opened for it and closed with it. Nothing of the
/// files changes: the workbook is never saved, presentation and document are saved as copies
/// under new names.
class OpenedDocuments {
public:
    explicit OpenedDocuments(session::OfficeSession& session) : session_(session) {}
    ~OpenedDocuments();
    OpenedDocuments(const OpenedDocuments&) = delete;
    OpenedDocuments& operator=(const OpenedDocuments&) = delete;

    /// Makes the workbook the session's active one. `RunError` if it can't be opened.
    void openWorkbook(const std::filesystem::path& file);
    /// Makes the presentation the session's. `RunError` if it can't be opened.
    void openPresentation(const std::filesystem::path& file);
    /// Makes an empty presentation the session's.
    void newPresentation();

    /// The same of documents of Word.
    void openDocument(const std::filesystem::path& file);
    void newDocument();

    /// Takes out the slides that a new presentation came with: some suites can't make one without.
    void removeFirstSlides();

private:
    [[nodiscard]] office::Object wordDocuments();

    session::OfficeSession& session_;
    office::Object workbook_;
    office::Object presentation_;
    office::Object document_;
    std::int32_t slidesAtFirst_ = 0;
};

/// Makes the user's active workbook, presentation and document the session's, and leaves empty what
/// there isn't. `RunError` if no suite is running, if no workbook is open, or if `book` names
/// another one than the active.
void takeActiveDocuments(session::OfficeSession& session, const Options& options);

}  // namespace unattended
