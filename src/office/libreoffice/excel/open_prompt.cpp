#include "office/libreoffice/excel/open_prompt.h"

#include <com/sun/star/ui/dialogs/ExecutableDialogResults.hpp>
#include <com/sun/star/ui/dialogs/XFilePicker2.hpp>
#include <com/sun/star/ui/dialogs/XFilterManager.hpp>

#include <string_view>

#include "office/text.h"

namespace libreoffice::excel {

namespace {

/// The pattern of a filter; if it is left out, the one that the words show in brackets: "Excel
/// Files *.xls* (*.xls*),".
std::string patternOf(std::string_view filter) {
    const auto comma = filter.rfind(',');
    if (comma != std::string_view::npos && comma + 1 < filter.size())
        return std::string(office::trim(filter.substr(comma + 1)));
    const auto open = filter.rfind('(');
    const auto close = filter.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open)
        return "*.*";
    return std::string(filter.substr(open + 1, close - open - 1));
}

}  // namespace

office::Value askForFile(Desk& desk, const std::string& filter, const std::string& title) {
    if (desk.opensHidden()) return false;
    const auto picker = as<css::ui::dialogs::XFilePicker2>(
        desk.connection().create("com.sun.star.ui.dialogs.FilePicker"));
    if (!title.empty()) picker->setTitle(toUno(title));
    if (!filter.empty()) {
        const std::string words = filter.substr(0, filter.rfind(','));
        as<css::ui::dialogs::XFilterManager>(picker)->appendFilter(toUno(words),
                                                                   toUno(patternOf(filter)));
    }
    if (picker->execute() != css::ui::dialogs::ExecutableDialogResults::OK) return false;
    const auto files = picker->getSelectedFiles();
    if (!files.hasElements()) return false;
    return pathOfUrl(files[0]);
}

}  // namespace libreoffice::excel
