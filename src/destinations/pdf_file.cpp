#include "destinations/pdf_file.h"

#include <fmt/format.h>

#include <array>
#include <vector>

#include "destinations/word_numbers.h"
#include "office/failure_patterns.h"
#include "session/file_names.h"

namespace destinations {

namespace {

using session::OfficeSession;

std::string joined(std::string_view folder, std::string_view name) {
    return fmt::format("{}/{}", folder, name);
}

}  // namespace

std::string PickWritableTempFolder(OfficeSession& session, std::string_view subFolder) {
    office::ContinueOnFailure scope;
    std::vector<std::string> candidates;
    for (const char* variable : {"TEMP", "TMP"}) {
        const auto value = session.host.environment(variable);
        if (value && !value->empty()) candidates.push_back(joined(*value, subFolder));
    }
    for (const std::string& folder : candidates) {
        scope.attempt([&] { session.host.makeFolder(folder); });
        if (session.host.folderCanBeWrittenTo(folder)) return folder;
    }
    std::string last = joined(session.host.outputFolder("Documents"), "Temp");
    scope.attempt([&] { session.host.makeFolder(last); });
    return last;
}

std::string pdfPath(OfficeSession& session, std::string_view baseName) {
    const session::LocalTime now = session.host.localTime();
    return joined(
        PickWritableTempFolder(session, "MyApp"),
        fmt::format("{}_{:04}{:02}{:02}_{:02}{:02}{:02}.pdf", session::safeFileName(baseName),
                    now.year, now.month, now.day, now.hour, now.minute, now.second));
}

bool OpenPdfFile(OfficeSession& session, const std::string& path) {
    constexpr std::uint32_t patienceMs = 3000;
    constexpr std::uint32_t pauseMs = 20;
    const std::uint32_t start = session.host.tickCount();
    while (!session.host.fileExists(path)) {
        if (session.host.tickCount() - start >= patienceMs) return false;
        session.host.letEventsRun();
        session.host.sleep(pauseMs);
    }
    return session.host.openFile(path);
}

void ExportActiveDocumentToPdf(OfficeSession& session) {
    if (!session.WordApp) {
        session::ShowErrorNotice(session.notices, "Microsoft Word is not available.");
        return;
    }
    if (session.WordApp.get("Documents").get("Count").toLong() == 0) {
        session::ShowWarningNotice(session.notices, "No document is open in Word.");
        return;
    }
    std::string base = session.SessionDocument.get("Name").toText();
    base = base.substr(0, base.rfind('.'));
    const std::string path = pdfPath(session, base);
    session.SessionDocument.call("ExportAsFixedFormat", path, number::pdf, false);
    if (!OpenPdfFile(session, path))
        session::ShowWarningNotice(
            session.notices, fmt::format("Couldn't open PDF with the default viewer:\r\n{}", path));
}

}  // namespace destinations
