#include "destinations/output_folder.h"

#include <fmt/format.h>

#include "office/failure_patterns.h"
#include "session/web_pages.h"

namespace destinations {

bool takesOutput(session::OfficeSession& session, const std::string& folder) {
    office::ContinueOnFailure scope;
    scope.attempt([&] { session.host.makeFolder(folder); });
    return session.host.folderCanBeWrittenTo(folder);
}

std::string cantWriteTo(session::OfficeSession& session, const std::string& folder) {
    if (session.host.fileExists(folder))
        return fmt::format(
            "{} is a file where a folder is needed. Move it elsewhere, and try again.", folder);
    return fmt::format(
        "Nothing can be written to the folder\r{}\rFree some room or change its "
        "permissions, and try again.",
        folder);
}

void openOrName(session::OfficeSession& session, const std::string& path) {
    if (session.host.openFile(path)) return;
    session::ShowInfoNotice(session.notices, session::cantOpen(path));
}

}  // namespace destinations
