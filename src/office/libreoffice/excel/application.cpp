#include "office/libreoffice/excel/application.h"

#include <com/sun/star/beans/NamedValue.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/ui/dialogs/ExecutableDialogResults.hpp>
#include <com/sun/star/ui/dialogs/XFilePicker2.hpp>
#include <com/sun/star/ui/dialogs/XFilterManager.hpp>
#include <com/sun/star/util/XChangesBatch.hpp>

#include <utility>

#include "office/libreoffice/at_end.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/copied.h"
#include "office/libreoffice/excel/picture_maker.h"
#include "office/libreoffice/units.h"
#include "office/model/excel/objects.h"
#include "office/text.h"

namespace libreoffice::excel {

namespace {

/// What Excel does with a workbook whose file asks for it, and LibreOffice by a setting of its own:
/// without, the charts of a program that writes formulas without their results are empty. What is
/// calculated later counts as changed.
std::shared_ptr<CalcDocument> loadedAndCalculated(Desk& desk, const rtl::OUString& url,
                                                  const std::string& password) {
    constexpr std::int32_t always = 0;
    constexpr std::int32_t never = 1;
    const auto provider = as<css::lang::XMultiServiceFactory>(
        desk.connection().create("com.sun.star.configuration.ConfigurationProvider"));
    const css::beans::NamedValue place(
        "nodepath", uno::Any(rtl::OUString("/org.openoffice.Office.Calc/Formula/Load")));
    const uno::Any argument(place);
    const auto settings = provider->createInstanceWithArguments(
        "com.sun.star.configuration.ConfigurationUpdateAccess",
        uno::Sequence<uno::Any>(&argument, 1));
    const auto recalculate = [&](std::int32_t when) {
        setProperty(settings, "OOXMLRecalcMode", when);
        as<css::util::XChangesBatch>(settings)->commitChanges();
    };
    recalculate(always);
    const auto back = atEnd([&] { recalculate(never); });
    return desk.loaded<CalcDocument>(url, true, password);
}

/// The workbooks of LibreOffice.
///
/// The settings are remembered and change nothing in LibreOffice: what is locked or switched off
/// there stays so if this process dies, and the user would sit in front of a frozen workbook. No
/// call of Murvane needs them for speed.
class CalcBooks : public model::Books {
public:
    explicit CalcBooks(DeskPtr desk) : desk_(std::move(desk)) {}

    model::Settings& settings() override { return desk_->excelSettings; }
    std::vector<model::BookPtr> open() override;
    model::BookPtr active() override { return desk_->active<CalcDocument>(); }
    model::BookPtr load(const std::string& file, const std::string& password,
                        bool readOnly) override;
    /// By LibreOffice's own dialog; false where nobody is there to be asked.
    office::Value askForFile(const std::string& filter, const std::string& title) override;

    office::Clipboard& clipboard() override { return desk_->clipboard(); }
    void writePicture(const office::CopiedPtr& picture, const model::Box& area,
                      const std::string& path, office::PictureKind kind) override;

private:
    DeskPtr desk_;
};

std::vector<model::BookPtr> CalcBooks::open() {
    const auto books = desk_->open<CalcDocument>();
    return {books.begin(), books.end()};
}

model::BookPtr CalcBooks::load(const std::string& file, const std::string& password,
                               bool readOnly) {
    const rtl::OUString url = fileUrl(file);
    auto book = desk_->alreadyOpen<CalcDocument>(url);
    if (!book) {
        // What a user looks at stays as he sees it.
        const bool calculates = desk_->opensHidden() && readWorkbookFacts(url).calculatesOnLoad;
        book = calculates ? loadedAndCalculated(*desk_, url, password)
                          : desk_->loaded<CalcDocument>(url, true, password);
        if (readOnly) book->leaveFileAlone();
    }
    book->markActive();
    return book;
}

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

office::Value CalcBooks::askForFile(const std::string& filter, const std::string& title) {
    if (desk_->opensHidden()) return false;
    const auto picker = as<css::ui::dialogs::XFilePicker2>(
        desk_->connection().create("com.sun.star.ui.dialogs.FilePicker"));
    if (!title.empty()) picker->setTitle(toUno(title));
    if (!filter.empty()) {
        const std::string words = filter.substr(0, filter.rfind(','));
        const auto filters = as<css::ui::dialogs::XFilterManager>(picker);
        filters->appendFilter(toUno(words), toUno(patternOf(filter)));
        // Those of LibreOffice's own format too.
        filters->appendFilter("All files (*.*)", "*.*");
    }
    if (picker->execute() != css::ui::dialogs::ExecutableDialogResults::OK) return false;
    const auto files = picker->getSelectedFiles();
    if (!files.hasElements()) return false;
    return pathOfUrl(files[0]);
}

void CalcBooks::writePicture(const office::CopiedPtr& picture, const model::Box& area,
                             const std::string& path, office::PictureKind kind) {
    const auto* copied = dynamic_cast<const CopiedPicture*>(picture.get());
    if (copied != nullptr) {
        pictureMaker(*desk_).writeMetafile(copied->metafile(), copied->size(), path, kind);
    } else if (!picture) {
        pictureMaker(*desk_).writeMetafile(
            {}, {hundredthMmOf(area.width), hundredthMmOf(area.height)}, path, kind);
    } else {
        office::refuse("Chart.Export", "The chart holds something else than a picture");
    }
}

}  // namespace

office::Object applicationObject(DeskPtr desk) {
    const auto guard = desk->guard();
    return model::applicationObject(guard, std::make_shared<CalcBooks>(std::move(desk)));
}

}  // namespace libreoffice::excel
