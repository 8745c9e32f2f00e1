#include "office/libreoffice/desk.h"

#include <com/sun/star/container/XChild.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/frame/XDispatchHelper.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/frame/XLayoutManager.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <system_error>
#include <utility>

#include "office/failure.h"
#include "office/libreoffice/excel/calc_document.h"
#include "office/libreoffice/excel/changed_copy.h"
#include "office/libreoffice/guard.h"
#include "office/libreoffice/password_answer.h"
#include "office/libreoffice/powerpoint/impress_deck.h"
#include "office/libreoffice/private_folder.h"
#include "office/libreoffice/word/writer_document.h"

namespace libreoffice {

namespace {

using Record = std::shared_ptr<Document>;
using Model = uno::Reference<css::frame::XModel>;

struct DocumentKind {
    const char* service;
    /// What is said of another one.
    const char* absence;
    Record (*record)(Desk& desk, const Model& model);
};

template <class Kind>
Record recordAs(Desk& desk, const Model& model) {
    return desk.record<Kind>(model);
}

template <class Kind>
constexpr DocumentKind kindOf = {};
template <>
constexpr DocumentKind kindOf<excel::CalcDocument> = {
    "com.sun.star.sheet.SpreadsheetDocument", "it is no workbook", recordAs<excel::CalcDocument>};
template <>
constexpr DocumentKind kindOf<powerpoint::ImpressDeck> = {
    "com.sun.star.presentation.PresentationDocument", "it is no presentation",
    recordAs<powerpoint::ImpressDeck>};
template <>
constexpr DocumentKind kindOf<word::WriterDocument> = {
    "com.sun.star.text.TextDocument", "it is no text document", recordAs<word::WriterDocument>};

constexpr std::array kinds = {&kindOf<excel::CalcDocument>, &kindOf<powerpoint::ImpressDeck>,
                              &kindOf<word::WriterDocument>};

bool isOfKind(const uno::Reference<uno::XInterface>& component, const DocumentKind& kind) {
    const auto info = tryAs<css::lang::XServiceInfo>(component);
    return info.is() && info->supportsService(rtl::OUString::createFromAscii(kind.service));
}
template <class Kind>
bool isOfKind(const uno::Reference<uno::XInterface>& component) {
    return isOfKind(component, kindOf<Kind>);
}

/// Null for what is a document of no application.
const DocumentKind* kindOfComponent(const uno::Reference<uno::XInterface>& component) {
    const auto* const found = std::find_if(
        kinds.begin(), kinds.end(), [&](const auto* kind) { return isOfKind(component, *kind); });
    return found != kinds.end() ? *found : nullptr;
}

/// The document that a component belongs to: while a chart is edited in place, the chart is the
/// current component.
Model modelOf(uno::Reference<uno::XInterface> component) {
    while (component.is() && kindOfComponent(component) == nullptr) {
        const auto child = tryAs<css::container::XChild>(component);
        component = child.is() ? child->getParent() : nullptr;
    }
    return tryAs<css::frame::XModel>(component);
}

/// A document is there once for each of its windows, a running slide show being one.
std::vector<Model> openModels(const Connection& connection) {
    std::vector<Model> models;
    const auto components = connection.desktop()->getComponents()->createEnumeration();
    while (components->hasMoreElements()) {
        const uno::Reference<uno::XInterface> component(components->nextElement(), uno::UNO_QUERY);
        if (auto model = tryAs<css::frame::XModel>(component); model.is())
            models.push_back(std::move(model));
    }
    return models;
}

/// Nobody sees them, and whatever is selected would bring up others.
void hideToolbars(const uno::Reference<css::frame::XModel>& model) {
    const auto window = model->getCurrentController();
    if (!window.is()) return;
    const auto toolbars =
        property<uno::Reference<css::frame::XLayoutManager>>(window->getFrame(), "LayoutManager");
    if (toolbars.is()) toolbars->setVisible(false);
}

[[noreturn]] void failToOpen(const rtl::OUString& url, const std::string& why) {
    office::refuse("Open", fmt::format("\"{}\" could not be opened: {}", pathOfUrl(url), why));
}

}  // namespace

Desk::Desk(std::shared_ptr<Connection> connection, bool hidden, office::ClipboardPtr clipboard,
           std::shared_ptr<office::drawing::DrawingRoom> room)
    : drawingRoom(std::move(room)),
      connection_(std::move(connection)),
      guard_(std::make_shared<ConnectionGuard>(connection_)),
      hidden_(hidden),
      clipboard_(std::move(clipboard)) {}

std::shared_ptr<Document> Desk::known(const uno::Reference<css::frame::XModel>& model) {
    std::erase_if(documents_, [](const auto& document) { return document->isClosed(); });
    for (const auto& document : documents_) {
        if (document->model() == model) return document;
    }
    return nullptr;
}

template <class Kind>
std::shared_ptr<Kind> Desk::record(const uno::Reference<css::frame::XModel>& model) {
    if (const auto document = known(model)) return std::dynamic_pointer_cast<Kind>(document);
    auto made = std::make_shared<Kind>(*this, model);
    documents_.push_back(made);
    return made;
}

template <class Kind>
std::vector<std::shared_ptr<Kind>> Desk::open() {
    std::vector<std::shared_ptr<Kind>> found;
    for (const auto& model : openModels(*connection_)) {
        if (!isOfKind<Kind>(model)) continue;
        auto document = record<Kind>(model);
        if (std::find(found.begin(), found.end(), document) == found.end())
            found.push_back(std::move(document));
    }
    return found;
}

template <class Kind>
std::shared_ptr<Kind> Desk::active() {
    // A private suite has no window that a user could change: what was opened or activated last is
    // the active one.
    if (!hidden_) {
        const auto onTop = connection_->desktop()->getCurrentComponent();
        auto document = known(tryAs<css::frame::XModel>(onTop));
        if (!document) {
            const auto model = modelOf(onTop);
            if (model.is() && isOfKind<Kind>(model)) document = record<Kind>(model);
        }
        if (auto wanted = std::dynamic_pointer_cast<Kind>(document)) {
            wanted->markActive();
            return wanted;
        }
        noteOrderOfWindows();
    }
    std::shared_ptr<Kind> latest;
    for (const auto& document : documents_) {
        const auto known = std::dynamic_pointer_cast<Kind>(document);
        if (known && !known->isClosed() && known->lastActive() > 0 &&
            (!latest || known->lastActive() > latest->lastActive()))
            latest = known;
    }
    if (latest) return latest;
    // None was ever active: the one that was opened last.
    const auto all = open<Kind>();
    return all.empty() ? nullptr : all.back();
}

/// The user is in another application or in a document of another kind: the documents that the user
/// was in before lie below in the order in which they were left. Nothing in LibreOffice tells it.
void Desk::noteOrderOfWindows() {
    auto order = WindowOrder::now();
    if (order == windowsBefore_) return;
    windowsBefore_ = std::move(order);
    std::map<std::size_t, std::shared_ptr<Document>> fromLowest;
    for (const auto& model : openModels(*connection_)) {
        const DocumentKind* kind = kindOfComponent(model);
        if (kind == nullptr) continue;
        if (const auto at = windowsBefore_.placeOf(model->getCurrentController()))
            fromLowest[*at] = kind->record(*this, model);
    }
    for (const auto& [at, document] : fromLowest) document->markActive();
}

/// Says whether it can be changed now. `file` names the file of a document that was loaded apart
/// from it.
bool Desk::makeChangeable(const uno::Reference<css::frame::XModel>& model,
                          const rtl::OUString& file) {
    if (!file.isEmpty()) {
        if (const DocumentKind* kind = kindOfComponent(model))
            kind->record(*this, model)->standFor(file);
    }
    // Files say that they are better opened for reading; in a window a click goes over that.
    const auto storable = tryAs<css::frame::XStorable>(model);
    if (!storable.is() || !storable->isReadonly()) return true;
    const auto controller = model->getCurrentController();
    if (!controller.is()) return false;
    const auto dispatcher =
        as<css::frame::XDispatchHelper>(connection_->create("com.sun.star.frame.DispatchHelper"));
    dispatcher->executeDispatch(as<css::frame::XDispatchProvider>(controller->getFrame()),
                                ".uno:EditDoc", rtl::OUString(), 0, {});
    return !storable->isReadonly();
}

uno::Reference<css::frame::XModel> Desk::load(const rtl::OUString& url, bool hidden,
                                              const std::string& password, bool readOnly) {
    const bool isToChange = hidden_ && !readOnly;
    // A private suite locks nothing, and without a lock it opens only what can be written.
    const bool isApart =
        isToChange && url.startsWith("file:") && access(pathOfUrl(url).c_str(), W_OK) != 0;
    const auto model = loadOnce(url, hidden, password, readOnly, isApart);
    if (!isToChange) return model;
    if (makeChangeable(model, isApart ? url : rtl::OUString())) return model;
    // Its file asks for a password before it is changed. What is loaded apart from the file is
    // none of its concern, but Excel's packages ask even then.
    as<css::util::XCloseable>(model)->close(true);
    const PrivateFolder folder;
    const std::filesystem::path file = pathOfUrl(url);
    const std::string copy = folder.file(file.filename().c_str());
    const auto source = excel::writeUnaskingCopy(file.string(), copy) ? fileUrl(copy) : url;
    const auto apart = loadOnce(source, hidden, password, readOnly, true);
    makeChangeable(apart, url);
    return apart;
}

/// `isApart` loads it as if it were a template, which is a new document without a file.
uno::Reference<css::frame::XModel> Desk::loadOnce(const rtl::OUString& url, bool hidden,
                                                  const std::string& password, bool readOnly,
                                                  bool isApart) {
    std::error_code problem;
    if (url.startsWith("file:") && !std::filesystem::exists(pathOfUrl(url), problem))
        failToOpen(url, problem ? problem.message() : "there is no such file");
    const rtl::Reference<PasswordAnswer> answer(new PasswordAnswer(toUno(password)));
    uno::Reference<css::lang::XComponent> component;
    std::string reason;
    try {
        component = connection_->desktop()->loadComponentFromURL(
            url, "_blank", 0,
            propertyValues(
                {{"Hidden", uno::Any(hidden)},
                 {"ReadOnly", uno::Any(readOnly || isApart)},
                 {"AsTemplate", uno::Any(isApart)},
                 {"InteractionHandler",
                  uno::Any(uno::Reference<css::task::XInteractionHandler>(answer.get()))}}));
    } catch (const css::uno::Exception& error) {
        if (connection_->isLost()) throw;
        reason = fromUno(error.Message);
    }
    if (component.is()) {
        const auto model = as<css::frame::XModel>(component);
        if (hidden_) hideToolbars(model);
        return model;
    }
    // A password that is missing or wrong comes as "type detection aborted", or as no document and
    // no exception, like a damaged file and one that another instance holds.
    if (answer->wasAsked())
        failToOpen(url, password.empty() ? "it needs a password" : "the password does not fit");
    if (!reason.empty()) failToOpen(url, reason);
    failToOpen(url,
               "it is damaged, of a kind that LibreOffice does not read, or in use by another "
               "program");
}

template <class Kind>
std::shared_ptr<Kind> Desk::alreadyOpen(const rtl::OUString& url) {
    // LibreOffice would open the file twice, and the two would go separate ways.
    for (const auto& model : openModels(*connection_)) {
        if (isOfKind<Kind>(model)) {
            if (auto document = record<Kind>(model); document->url() == url) return document;
        } else if (model->getURL() == url) {
            failToOpen(url, kindOf<Kind>.absence);
        }
    }
    return nullptr;
}

template <class Kind>
std::shared_ptr<Kind> Desk::loaded(const rtl::OUString& url, bool withWindow,
                                   const std::string& password) {
    const auto model = load(url, hidden_ || !withWindow, password);
    if (isOfKind<Kind>(model)) return record<Kind>(model);
    as<css::util::XCloseable>(model)->close(true);
    failToOpen(url, kindOf<Kind>.absence);
}

template std::shared_ptr<excel::CalcDocument> Desk::record(
    const uno::Reference<css::frame::XModel>&);
template std::vector<std::shared_ptr<excel::CalcDocument>> Desk::open();
template std::shared_ptr<excel::CalcDocument> Desk::active();
template std::shared_ptr<excel::CalcDocument> Desk::alreadyOpen(const rtl::OUString&);
template std::shared_ptr<excel::CalcDocument> Desk::loaded(const rtl::OUString&, bool,
                                                           const std::string&);
template std::shared_ptr<powerpoint::ImpressDeck> Desk::record(
    const uno::Reference<css::frame::XModel>&);
template std::vector<std::shared_ptr<powerpoint::ImpressDeck>> Desk::open();
template std::shared_ptr<powerpoint::ImpressDeck> Desk::active();
template std::shared_ptr<powerpoint::ImpressDeck> Desk::alreadyOpen(const rtl::OUString&);
template std::shared_ptr<powerpoint::ImpressDeck> Desk::loaded(const rtl::OUString&, bool,
                                                               const std::string&);
template std::shared_ptr<word::WriterDocument> Desk::record(
    const uno::Reference<css::frame::XModel>&);
template std::vector<std::shared_ptr<word::WriterDocument>> Desk::open();
template std::shared_ptr<word::WriterDocument> Desk::active();
template std::shared_ptr<word::WriterDocument> Desk::alreadyOpen(const rtl::OUString&);
template std::shared_ptr<word::WriterDocument> Desk::loaded(const rtl::OUString&, bool,
                                                            const std::string&);

}  // namespace libreoffice
