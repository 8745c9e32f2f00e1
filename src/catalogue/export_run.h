#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "catalogue/export_choices.h"
#include "catalogue/needed_documents.h"
#include "session/office_session.h"

/// What the batches of all destinations have in common: which rows they take, and what they show
/// while they take them.
namespace catalogue {

/// A row that an export takes.
struct TakenRow {
    /// Into the rows of the list.
    std::size_t index = 0;
    /// The slide that the row names, from 1; 0 where slides are new.
    std::int32_t slide = 0;
};

/// The slide that a text names: the number that it begins with, halves rounded to the even
/// neighbour. Below 1 for a text that names none.
[[nodiscard]] std::int32_t slideNumberOf(std::string_view text);

/// The rows that an export takes, in display order: those that can be exported and, where
/// slides are predefined, with a slide number. A failure if the workbook has gone.
[[nodiscard]] std::vector<TakenRow> takeRows(session::OfficeSession& session,
                                             const ExportList& list, const ExportChoices& choices);
/// How many they are; none if the workbook has gone.
[[nodiscard]] std::int32_t CountTakenRows(session::OfficeSession& session, const ExportList& list,
                                          const ExportChoices& choices);

/// Shows that the export is at its item `item` of `total`, and lets events run.
void ProgressStep(session::OfficeSession& session, std::int32_t item, std::int32_t total);

/// Whether an export is to end after its item at hand: the user has cancelled it, or something that
/// it needs has been closed. `needed` may be null.
[[nodiscard]] bool isToEnd(const session::OfficeSession& session, const NeededDocuments* needed);
/// Tells how far an export has come that ended early, and why. What is to be closed is, before. A
/// failure says so where what it goes to has gone.
void TellEnded(session::OfficeSession& session, NeededDocuments* needed, std::int32_t exported,
               std::int32_t total);

/// Lets both applications draw again, failures ignored, and lets events run.
void RestoreScreenUpdating(session::OfficeSession& session);

}  // namespace catalogue
