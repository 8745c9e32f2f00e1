#include "office/libreoffice/document.h"

#include <com/sun/star/awt/XTopWindow.hpp>
#include <com/sun/star/awt/XWindow2.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/frame/XTitle.hpp>
#include <com/sun/star/io/IOException.hpp>
#include <com/sun/star/lang/XEventListener.hpp>
#include <com/sun/star/util/CloseVetoException.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <cppuhelper/implbase1.hxx>
#include <fmt/format.h>
#include <uno/environment.hxx>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "office/failure.h"
#include "office/text.h"

namespace libreoffice {

namespace {

/// Hears that a document goes. It is called on a thread of the bridge, so all it does is set the
/// flag.
class ClosingListener : public cppu::WeakImplHelper1<css::lang::XEventListener> {
public:
    explicit ClosingListener(std::shared_ptr<std::atomic<bool>> closed)
        : closed_(std::move(closed)) {}
    void SAL_CALL disposing(const css::lang::EventObject&) override { *closed_ = true; }

private:
    std::shared_ptr<std::atomic<bool>> closed_;
};

}  // namespace

Document::Document(uno::Reference<css::frame::XModel> model)
    : model_(std::move(model)),
      closed_(std::make_shared<std::atomic<bool>>(false)) {
    model_->addEventListener(new ClosingListener(closed_));
}

Document::~Document() = default;

void Document::requireOpen(std::string_view member) const {
    if (isClosed()) {
        throw office::Failure(office::FailureNumber::Disconnected, std::string(member),
                              "The document has been closed in the meantime");
    }
}

std::string Document::name() const {
    if (const std::string path = pathOfUrl(url()); !path.empty()) {
        return std::filesystem::path(path).filename().string();
    }
    return fromUno(as<css::frame::XTitle>(model_)->getTitle());
}

std::string Document::fullName() const {
    const std::string path = pathOfUrl(url());
    return path.empty() ? name() : path;
}

/// By what the suite calls the object on every bridge. It holds the process's own number: documents
/// of another suite are others.
std::string Document::identity() const {
    const uno::Environment here = uno::Environment::getCurrent();
    uno_ExtEnvironment* objects = here.get()->pExtEnv;
    const uno::Reference<uno::XInterface> object(model_, uno::UNO_QUERY_THROW);
    rtl_uString* name = nullptr;
    objects->getObjectIdentifier(objects, &name, object.get());
    return name == nullptr ? fullName() : fromUno(rtl::OUString(name, SAL_NO_ACQUIRE));
}

void Document::writeCopy(std::string_view member, const std::string& path,
                         const std::vector<FileKind>& kinds,
                         const uno::Sequence<css::beans::PropertyValue>& options) const {
    using office::FailureNumber;
    const auto fail = [&](FailureNumber number, std::string_view why) {
        throw office::Failure(number, std::string(member),
                              fmt::format("\"{}\" could not be written: {}", path, why));
    };
    const auto file = std::filesystem::absolute(path);
    const std::string ending = office::lowerCase(file.extension().string());
    const auto kind = std::find_if(kinds.begin(), kinds.end(),
                                   [&](const FileKind& each) { return each.ending == ending; });
    if (kind == kinds.end()) {
        std::string endings;
        for (const FileKind& each : kinds)
            endings += fmt::format("{}{}", endings.empty() ? "" : " or ", each.ending);
        fail(FailureNumber::InvalidProcedureCall, "a copy's name ends in " + endings);
    }
    // LibreOffice would make the folder, also one that is merely mistyped.
    std::error_code problem;
    if (!std::filesystem::is_directory(file.parent_path(), problem))
        fail(FailureNumber::ApplicationDefined,
             fmt::format("there is no folder \"{}\"", file.parent_path().string()));
    try {
        as<css::frame::XStorable>(model_)->storeToURL(
            fileUrl(path),
            propertyValues({{"FilterName", uno::Any(rtl::OUString::createFromAscii(kind->filter))},
                            {"FilterData", uno::Any(options)},
                            {"Overwrite", uno::Any(true)}}));
    } catch (const css::io::IOException& error) {
        fail(FailureNumber::ApplicationDefined, fromUno(error.Message));
    }
    // A filter that fails does not always say so.
    const auto size = std::filesystem::file_size(file, problem);
    if (problem) fail(FailureNumber::ApplicationDefined, problem.message());
    if (size == 0) fail(FailureNumber::ApplicationDefined, "the file is empty");
}

bool Document::cameThrough(const char* filter) const {
    rtl::OUString name;
    const auto arguments = model_->getArgs();
    for (const auto& argument : arguments) {
        if (argument.Name == "FilterName") argument.Value >>= name;
    }
    return name.indexOf(rtl::OUString::createFromAscii(filter)) >= 0;
}

bool Document::raise() const {
    const auto shown = controller();
    if (!shown.is()) return false;
    const auto frame = shown->getFrame();
    const auto window = frame->getContainerWindow();
    const auto visible = tryAs<css::awt::XWindow2>(window);
    if (!visible.is() || !visible->isVisible()) return false;
    frame->activate();
    if (const auto top = tryAs<css::awt::XTopWindow>(window); top.is()) top->toFront();
    window->setFocus();
    return true;
}

void Document::close() {
    as<css::util::XCloseable>(model_)->close(true);
    *closed_ = true;
}

void Document::markActive() {
    static std::uint64_t latest = 0;
    lastActive_ = ++latest;
}

}  // namespace libreoffice
