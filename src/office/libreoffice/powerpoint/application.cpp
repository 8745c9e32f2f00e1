#include "office/libreoffice/powerpoint/application.h"

#include <utility>

#include "office/libreoffice/guard.h"
#include "office/libreoffice/powerpoint/document_window.h"
#include "office/libreoffice/powerpoint/document_windows.h"
#include "office/libreoffice/powerpoint/presentation.h"
#include "office/libreoffice/powerpoint/presentations.h"
#include "office/libreoffice/powerpoint/slide_show_window.h"

namespace libreoffice::powerpoint {

namespace {

using office::CallArguments;
using office::Value;

class Application : public UnoObject<Application> {
public:
    using UnoObject::UnoObject;
    static const office::MemberTable<Application>& members();

private:
    Value version() { return "16.0"; }
    Value name() { return "Microsoft PowerPoint"; }
    Value presentations() { return makeObject<Presentations>(deskPtr()); }
    Value activePresentation() {
        return makeObject<Presentation>(deskPtr(), active("ActivePresentation"));
    }
    Value activeWindow() { return makeObject<DocumentWindow>(deskPtr(), active("ActiveWindow")); }
    Value windows() { return makeObject<DocumentWindows>(deskPtr(), desk().presentations()); }
    Value slideShowWindows() { return makeObject<SlideShowWindows>(deskPtr()); }
    Value activate(const CallArguments& /*arguments*/) {
        active("Activate")->raise();
        return {};
    }

    [[nodiscard]] ImpressDocumentPtr active(const char* member) const;
};

const office::MemberTable<Application>& Application::members() {
    static const auto table = office::MemberTable<Application>("Application")
                                  .property("Version", &Application::version)
                                  .property("Name", &Application::name)
                                  .property("Presentations", &Application::presentations)
                                  .property("ActivePresentation", &Application::activePresentation)
                                  .property("ActiveWindow", &Application::activeWindow)
                                  .property("Windows", &Application::windows)
                                  .property("SlideShowWindows", &Application::slideShowWindows)
                                  .method("Activate", {}, &Application::activate);
    return table;
}

ImpressDocumentPtr Application::active(const char* member) const {
    auto document = desk().activePresentation();
    if (!document)
        throw office::Failure(office::FailureNumber::ApplicationDefined,
                              std::string("Application.") + member, "No presentation is open");
    return document;
}

}  // namespace

office::Object applicationObject(DeskPtr desk) {
    return makeObject<Application>(std::move(desk));
}

}  // namespace libreoffice::powerpoint
