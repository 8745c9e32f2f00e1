#include "apps/selection_commands.h"

#include "destinations/selection_to_image.h"
#include "destinations/selection_to_word.h"
#include "powerpoint/selection_to_slide.h"

namespace apps {

session::CommandHandlers selectionHandlers(session::OfficeSession& session) {
    session::CommandHandlers handlers;
    handlers.PasteSelectionToSlide = [&session](session::SlidePaste mode) {
        powerpoint::PasteSelectionToSlide(session, mode);
    };
    handlers.PasteSelectionToWord = [&session](session::WordPaste mode) {
        destinations::PasteSelectionToWord(session, mode);
    };
    handlers.SaveSelectionAsImage = [&session] { destinations::SaveSelectionAsImage(session); };
    return handlers;
}

}  // namespace apps
