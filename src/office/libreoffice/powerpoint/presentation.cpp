#include "office/libreoffice/powerpoint/presentation.h"

#include <com/sun/star/util/XModifiable.hpp>

#include <filesystem>
#include <utility>

#include "office/libreoffice/powerpoint/document_windows.h"
#include "office/libreoffice/powerpoint/page_setup.h"
#include "office/libreoffice/powerpoint/presentation_files.h"
#include "office/libreoffice/powerpoint/slide_show_window.h"
#include "office/libreoffice/powerpoint/slides.h"

namespace libreoffice::powerpoint {

using office::CallArguments;
using office::Value;

Presentation::Presentation(DeskPtr desk, ImpressDocumentPtr document)
    : UnoObject(std::move(desk), document),
      document_(std::move(document)) {}

const office::MemberTable<Presentation>& Presentation::members() {
    static const auto table = office::MemberTable<Presentation>("Presentation")
                                  .property("Name", &Presentation::name)
                                  .property("FullName", &Presentation::fullName)
                                  .property("Path", &Presentation::path)
                                  .property("Saved", &Presentation::saved, &Presentation::setSaved)
                                  .property("Slides", &Presentation::slides)
                                  .property("PageSetup", &Presentation::pageSetup)
                                  .property("Windows", &Presentation::windows)
                                  .property("SlideShowWindow", &Presentation::slideShowWindow)
                                  .method("SaveCopyAs", {"FileName"}, &Presentation::saveCopyAs)
                                  .method("SaveAs", {"FileName"}, &Presentation::saveAs)
                                  .method("Close", {}, &Presentation::close);
    return table;
}

Value Presentation::name() {
    return document_->name();
}

Value Presentation::fullName() {
    return document_->fullName();
}

Value Presentation::path() {
    const std::filesystem::path file = document_->fullName();
    return file.parent_path().string();
}

Value Presentation::saved() {
    return !as<css::util::XModifiable>(document_->model())->isModified() ? -1 : 0;
}

void Presentation::setSaved(const Value& saved) {
    as<css::util::XModifiable>(document_->model())->setModified(!saved.toBool());
}

Value Presentation::slides() {
    return makeObject<Slides>(deskPtr(), document_);
}

Value Presentation::pageSetup() {
    return makeObject<PageSetup>(deskPtr(), document_);
}

Value Presentation::windows() {
    return makeObject<DocumentWindows>(deskPtr(), std::vector{document_});
}

Value Presentation::slideShowWindow() {
    if (!document_->showsSlides())
        throw office::Failure(office::FailureNumber::ApplicationDefined,
                              "Presentation.SlideShowWindow",
                              "No slide show of the presentation is running");
    return makeObject<SlideShowWindow>(deskPtr(), document_);
}

Value Presentation::saveCopyAs(const CallArguments& arguments) {
    saveCopy(*document_, arguments.at(0).toText());
    return {};
}

Value Presentation::saveAs(const CallArguments& arguments) {
    saveUnderNewName(*document_, arguments.at(0).toText());
    return {};
}

Value Presentation::close(const CallArguments& /*arguments*/) {
    document_->close();
    return {};
}

}  // namespace libreoffice::powerpoint
