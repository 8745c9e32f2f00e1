#include "office/libreoffice/libreoffice_suite.h"

#include <com/sun/star/container/XEnumeration.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/frame/XFrames.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "office/failure.h"
#include "office/libreoffice/at_end.h"
#include "office/libreoffice/desk.h"
#include "office/libreoffice/excel/application.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/copied.h"
#include "office/libreoffice/excel/shown_cells.h"
#include "office/libreoffice/excel/table_losses.h"
#include "office/libreoffice/guard.h"
#include "office/libreoffice/held_open.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/private_instance.h"
#include "office/libreoffice/running_instance.h"
#include "office/libreoffice/word/writer_document.h"
#include "office/text.h"

namespace libreoffice {

namespace {

/// What the core looks for behind a presentation's name in a window's caption.
constexpr std::string_view captionEnd = " - PowerPoint";

/// The class of PowerPoint's windows in the version that the application object tells.
constexpr std::string_view frameClass = "PPTFrameClass";

/// A suite that its user ends closes all its windows before it asks anybody; what was held open
/// has kept it from ending, and nobody could see it any more.
void endUnseen(css::frame::XDesktop2& desktop) {
    if (desktop.getFrames()->getCount() > 0) return;
    if (desktop.getComponents()->createEnumeration()->hasMoreElements()) return;
    desktop.terminate();
}

}  // namespace

std::unique_ptr<LibreOfficeSuite> LibreOfficeSuite::attachToRunning() {
    auto suite = std::unique_ptr<LibreOfficeSuite>(new LibreOfficeSuite(nullptr, nullptr));
    suite->seeksRunning_ = true;
    return suite;
}

std::unique_ptr<LibreOfficeSuite> LibreOfficeSuite::startPrivate(
    std::chrono::milliseconds patience, const std::function<bool()>& isUnwanted) {
    auto suite = on(PrivateInstance::start(patience, isUnwanted));
    suite->desk_->isUndisturbed = true;
    return suite;
}

std::unique_ptr<LibreOfficeSuite> LibreOfficeSuite::on(std::unique_ptr<PrivateInstance> instance) {
    auto connection = instance->connection();
    return std::unique_ptr<LibreOfficeSuite>(
        new LibreOfficeSuite(std::move(instance), std::move(connection)));
}

LibreOfficeSuite::LibreOfficeSuite(std::unique_ptr<PrivateInstance> instance,
                                   std::shared_ptr<Connection> connection)
    : instance_(std::move(instance)),
      drawingRoom_(std::make_shared<office::drawing::DrawingRoom>()) {
    connect(std::move(connection));
}

void LibreOfficeSuite::connect(std::shared_ptr<Connection> connection) {
    {
        const std::lock_guard lock(connecting_);
        connection_ = std::move(connection);
    }
    if (connection_)
        desk_ = std::make_shared<Desk>(connection_, instance_ != nullptr, clipboard_, drawingRoom_);
}

office::PictureFilesPtr LibreOfficeSuite::pictureFiles() {
    return drawingRoom_;
}

LibreOfficeSuite::~LibreOfficeSuite() {
    if (connection_ && *hasClosedHeld_)
        asFarAsPossible([&] { endUnseen(*connection_->desktop()); });
}

void LibreOfficeSuite::interrupt() {
    if (instance_) instance_->kill();
    const std::lock_guard lock(connecting_);
    if (connection_) connection_->breakOff();
}

std::uint64_t LibreOfficeSuite::remoteCalls() const {
    return connection_ ? connection_->remoteCalls() : 0;
}

int LibreOfficeSuite::processId() const {
    return instance_ ? instance_->processId() : 0;
}

office::Object LibreOfficeSuite::attach(std::string_view className) {
    if (std::exchange(seeksRunning_, false)) connect(connectToRunning());
    if (!connection_) return {};
    if (office::sameIgnoringCase(className, "Excel.Application"))
        return excel::applicationObject(desk_);
    if (office::sameIgnoringCase(className, "PowerPoint.Application"))
        return powerpoint::applicationObject(desk_);
    if (office::sameIgnoringCase(className, "Word.Application"))
        return word::applicationObject(desk_);
    return {};
}

office::Object LibreOfficeSuite::start(std::string_view className) {
    // All applications of LibreOffice run as soon as one does.
    if (auto application = attach(className); !application.isNothing()) return application;
    office::refuse("Suite.start", fmt::format("\"{}\" can't be started here", className));
}

void LibreOfficeSuite::expectTurns() {
    if (instance_) instance_->shareProcessor();
}

void LibreOfficeSuite::clearClipboard() {
    // Pictures travel by files and by the desk, never over the system's clipboard: the user's own
    // stays as it is.
    clipboard_->copied.reset();
}

std::vector<std::uint8_t> LibreOfficeSuite::clipboardPicture(office::Sharpness sharpness) {
    const office::CopiedPtr copied = clipboard_->copied;
    if (!copied) return {};
    const std::string png = copied->picture(sharpness).png.get();
    return {png.begin(), png.end()};
}

std::vector<std::string> LibreOfficeSuite::remarksOn(std::string_view className, office::PasteAs as,
                                                     const std::vector<office::PasteItem>& items) {
    std::vector<std::string> remarks;
    if (!desk_) return remarks;
    const bool isForWord = office::sameIgnoringCase(className, "Word.Application");
    if (as == office::PasteAs::Default)
        return translated(*connection_, "Suite.remarksOn", [&] {
            const auto book = desk_->active<excel::CalcDocument>();
            return book ? excel::lossesOfTables(
                              *book, items,
                              isForWord ? excel::TablesOn::Text : excel::TablesOn::Slides)
                        : remarks;
        });
    const bool isUnsaved = std::any_of(items.begin(), items.end(),
                                       [](const auto& item) { return item.source.file.empty(); });
    if (as == office::PasteAs::Linked && isUnsaved)
        remarks.emplace_back("The workbook has to be saved before anything can be linked to it.");
    if (isForWord) {
        if (as == office::PasteAs::Linked)
            remarks.push_back(fmt::format(
                "LibreOffice links no text document to a workbook: the items will be left out. "
                "Choose another format, or {}.",
                desk_->opensHidden() ? "append to a .docx" : "use murvane-export"));
        if (as == office::PasteAs::Embedded && forgetsViews())
            remarks.emplace_back(
                "LibreOffice shows the beginning of a sheet in place of each embedded item once "
                "it opens a .docx again: save the document as .odt.");
        return remarks;
    }
    if (as == office::PasteAs::Embedded && damagesWorkbooks(items.size()))
        remarks.push_back(fmt::format(
            "LibreOffice damages a .pptx that holds several embedded workbooks: save the "
            "presentation as {}.",
            desk_->opensHidden() ? "an ordinary .pptx first, and add to that one"
                                 : ".odp, or use murvane-export"));
    return remarks;
}

std::vector<office::ShownCells> LibreOfficeSuite::shownCells(
    const std::vector<office::PasteItem>& items) {
    if (!desk_) return {};
    return translated(*connection_, "Suite.shownCells", [&] {
        const auto book = desk_->active<excel::CalcDocument>();
        return book ? excel::shownCells(*book, items) : std::vector<office::ShownCells>();
    });
}

std::vector<std::string> LibreOfficeSuite::remarksOnPage(
    const std::vector<office::PasteItem>& items) {
    if (!desk_) return {};
    return translated(*connection_, "Suite.remarksOnPage", [&] {
        const auto book = desk_->active<excel::CalcDocument>();
        return book ? excel::lossesOfTables(*book, items, excel::TablesOn::Page)
                    : std::vector<std::string>();
    });
}

std::unique_ptr<office::HeldDocument> LibreOfficeSuite::hold(std::string_view className,
                                                             const std::string& fullName) {
    if (!desk_ || desk_->isUndisturbed) return nullptr;
    const auto among = [&](const auto& documents) -> std::unique_ptr<office::HeldDocument> {
        for (const auto& document : documents) {
            if (document->fullName() == fullName)
                return heldOpen(connection_, *document, hasClosedHeld_);
        }
        return nullptr;
    };
    return translated(*connection_, "Suite.hold", [&] {
        if (office::sameIgnoringCase(className, "Excel.Application"))
            return among(desk_->open<excel::CalcDocument>());
        if (office::sameIgnoringCase(className, "PowerPoint.Application"))
            return among(desk_->open<powerpoint::ImpressDeck>());
        return among(desk_->open<word::WriterDocument>());
    });
}

/// All workbooks in one .pptx become one part of it. A private suite writes nothing else.
bool LibreOfficeSuite::damagesWorkbooks(std::size_t more) {
    return translated(*connection_, "Suite.remarksOn", [&] {
        const auto deck = desk_->active<powerpoint::ImpressDeck>();
        if (!desk_->opensHidden() && deck && office::lowerCase(deck->fullName()).ends_with(".odp"))
            return false;
        constexpr std::int32_t several = 2;
        const std::int32_t missing = several - static_cast<std::int32_t>(more);
        return missing <= 0 || (deck && deck->holdsWorkbooks(missing));
    });
}

/// Which cells an embedded workbook shows stands in no .docx. A text that was never saved becomes
/// an .odt unless somebody chooses otherwise.
bool LibreOfficeSuite::forgetsViews() {
    return translated(*connection_, "Suite.remarksOn", [&] {
        const auto document = desk_->active<word::WriterDocument>();
        if (!document) return false;
        const std::string name = office::lowerCase(document->fullName());
        return name.ends_with(".docx") || name.ends_with(".docm");
    });
}

office::WindowHandle LibreOfficeSuite::findWindow(std::string_view className,
                                                  std::string_view caption) {
    if (!desk_) return 0;
    return translated(*connection_, "Suite.findWindow", [&]() -> office::WindowHandle {
        if (!className.empty() && className != frameClass) return 0;
        const auto active = desk_->active<powerpoint::ImpressDeck>();
        if (caption.empty()) return handleOf(active);
        if (!caption.ends_with(captionEnd)) return 0;
        const std::string_view wanted = caption.substr(0, caption.size() - captionEnd.size());
        // Files of one name may lie in several folders.
        if (active && active->name() == wanted) return handleOf(active);
        for (const auto& presentation : desk_->open<powerpoint::ImpressDeck>()) {
            if (presentation->name() == wanted) return handleOf(presentation);
        }
        return 0;
    });
}

bool LibreOfficeSuite::raiseWindow(office::WindowHandle window) {
    const auto presentation = presentationOf(window);
    return presentation &&
           translated(*connection_, "Suite.raiseWindow", [&] { return presentation->raise(); });
}

bool LibreOfficeSuite::lockDrawing(office::WindowHandle window) {
    if (!presentationOf(window) || presentationOf(locked_)) return false;
    locked_ = window;
    return true;
}

void LibreOfficeSuite::unlockDrawing() {
    locked_ = 0;
}

void LibreOfficeSuite::redraw(office::WindowHandle /*window*/) {
    // What has changed is drawn as soon as the suite comes to it.
}

office::WindowHandle LibreOfficeSuite::handleOf(
    const std::shared_ptr<powerpoint::ImpressDeck>& presentation) {
    if (!presentation) return 0;
    for (std::size_t i = 0; i < windows_.size(); ++i) {
        if (windows_[i].lock() == presentation) return i + 1;
    }
    windows_.push_back(presentation);
    return windows_.size();
}

std::shared_ptr<powerpoint::ImpressDeck> LibreOfficeSuite::presentationOf(
    office::WindowHandle window) const {
    if (window == 0 || window > windows_.size()) return nullptr;
    auto presentation = windows_[window - 1].lock();
    return presentation && !presentation->isClosed() ? presentation : nullptr;
}

}  // namespace libreoffice
