#include "apps/murvane_export/file_suite.h"

#include <utility>

#include "apps/murvane_export/outputs.h"
#include "office/files.h"
#include "office/package/document/document_file.h"
#include "office/package/document/word_table.h"
#include "office/package/presentation/deck_file.h"
#include "office/package/workbook/paste_remarks.h"

namespace unattended {

namespace {

namespace package = office::package;
using catalogue::Destination;

constexpr std::string_view powerPoint = "PowerPoint.Application";
constexpr std::string_view word = "Word.Application";

package::MeasureText measureWith(session::Host& host) {
    return [&host](const std::string& words, const office::Font& font,
                   std::optional<double> widthPt) { return host.textSize(words, font, widthPt); };
}

package::FileRules rulesOf(office::Suite& below, session::Host& host, const Options& options,
                           Destination destination, const package::WorkbookFilesPtr& workbooks) {
    package::FileRules rules{.measure = measureWith(host), .clipboard = below.clipboard()};
    rules.pictures = below.pictureFiles();
    rules.workbooks = workbooks;
    rules.embedsSheetAlone = options.embedsSheetAlone;
    const Target* target = options.targetOf(destination);
    if (options.linksAreRelative && target != nullptr && !target->output.empty())
        rules.linkBase = behindLinks(office::pathOf(target->output)).parent_path();
    return rules;
}

}  // namespace

FileSuite::FileSuite(office::Suite& below, session::Host& host, const Options& options,
                     AsFiles asFiles)
    : below_(below),
      embedsSheetAlone_(options.embedsSheetAlone),
      workbooks_(std::make_shared<package::WorkbookFiles>()) {
    const auto rules = [&](Destination destination) {
        return rulesOf(below, host, options, destination, workbooks_);
    };
    if (asFiles.decks) powerPoint_ = package::powerPointOfFiles(rules(Destination::PowerPoint));
    if (asFiles.documents) word_ = package::wordOfFiles(rules(Destination::Word));
}

office::Object FileSuite::fileApplication(std::string_view className) const {
    if (className == powerPoint) return powerPoint_;
    return className == word ? word_ : office::Object();
}

office::Object FileSuite::attach(std::string_view className) {
    const office::Object ofFiles = fileApplication(className);
    return ofFiles ? ofFiles : below_.attach(className);
}

office::Object FileSuite::start(std::string_view className) {
    const office::Object ofFiles = fileApplication(className);
    return ofFiles ? ofFiles : below_.start(className);
}

std::vector<std::string> FileSuite::remarksOn(std::string_view className, office::PasteAs as,
                                              const std::vector<office::PasteItem>& items) {
    if (!fileApplication(className)) return below_.remarksOn(className, as, items);
    auto remarks = package::pasteRemarks(as, items, *workbooks_, embedsSheetAlone_);
    // Tables are made of what the suite says of the cells, wherever they go.
    if (as == office::PasteAs::Default) {
        std::vector<office::PasteItem> tables = items;
        for (office::PasteItem& item : tables) {
            item.isForFile = true;
            if (className == word) item.mostColumns = package::mostTableColumns;
        }
        for (std::string& line : below_.remarksOn(className, as, tables))
            remarks.push_back(std::move(line));
    }
    return remarks;
}

// Only presentations are looked for by their windows.

office::WindowHandle FileSuite::findWindow(std::string_view className, std::string_view caption) {
    return powerPoint_ ? 0 : below_.findWindow(className, caption);
}

bool FileSuite::raiseWindow(office::WindowHandle window) {
    return !powerPoint_ && below_.raiseWindow(window);
}

bool FileSuite::lockDrawing(office::WindowHandle window) {
    return !powerPoint_ && below_.lockDrawing(window);
}

}  // namespace unattended
