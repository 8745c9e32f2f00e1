#include "session/workbook_prompt.h"

#include <string>

#include "office/failure_patterns.h"

namespace session {

void OpenWorkbookPrompt(OfficeSession& session) {
    office::ContinueOnFailure scope;
    const office::Object& excel = session.ExcelApp;
    std::string name;
    scope.attempt([&] {
        name =
            excel
                .call("GetOpenFilename", office::arg("FileFilter", "Excel Files *.xls* (*.xls*),"),
                      office::arg("Title", "Please choose a file to open"))
                .toText();
    });
    const bool isChosen = !name.empty() && name != "False";
    if (name == "False") {
        scope.attempt([&] { ShowWarningNotice(session.notices, "No file selected."); });
        scope.attempt([&] { name = excel.get("ActiveWorkbook").get("Name").toText(); });
    } else if (IsFileOpen(session, name)) {
        scope.attempt([&] { ShowWarningNotice(session.notices, "File already open"); });
    }
    const bool isOpen =
        scope.attempt([&] { excel.get("Workbooks").call("Open", office::arg("FileName", name)); });
    if (!isChosen || isOpen) return;
    const std::string why = scope.lastFailure()->description();
    scope.attempt([&] { ShowWarningNotice(session.notices, why); });
}

bool IsFileOpen(OfficeSession& session, std::string_view fileName) {
    return session.host.fileExists(fileName) && session.host.fileIsHeld(fileName);
}

}  // namespace session
