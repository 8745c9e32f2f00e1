#include "office/libreoffice/document.h"

#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/frame/XTitle.hpp>
#include <com/sun/star/io/IOException.hpp>
#include <com/sun/star/lang/XEventListener.hpp>
#include <com/sun/star/util/CloseVetoException.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <cppuhelper/implbase1.hxx>
#include <fmt/format.h>

#include <filesystem>
#include <utility>

#include "office/failure.h"

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

void Document::storeCopy(std::string_view path, const char* filterName) const {
    try {
        as<css::frame::XStorable>(model_)->storeToURL(
            fileUrl(path),
            propertyValues({{"FilterName", uno::Any(rtl::OUString::createFromAscii(filterName))},
                            {"Overwrite", uno::Any(true)}}));
    } catch (const css::io::IOException& error) {
        throw office::Failure(
            office::FailureNumber::ApplicationDefined, "SaveCopyAs",
            fmt::format("\"{}\" could not be written: {}", path, fromUno(error.Message)));
    }
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
