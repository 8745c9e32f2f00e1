#include "office/libreoffice/connection.h"

#include <com/sun/star/bridge/BridgeFactory.hpp>
#include <com/sun/star/bridge/XBridgeFactory2.hpp>
#include <com/sun/star/connection/Connector.hpp>
#include <cppuhelper/bootstrap.hxx>
#include <cppuhelper/exc_hlp.hxx>
#include <rtl/bootstrap.hxx>
#include <rtl/ref.hxx>

#include <tuple>
#include <utility>

#include "office/libreoffice/counted_connection.h"
#include "office/libreoffice/installation.h"

namespace libreoffice {

namespace {

/// UNO describes the carrier of its exceptions when the first one crosses a bridge, and a second
/// thread that comes meanwhile finds half a description and crashes. A suite that is killed brings
/// several threads there at once; so the first one crosses here, while there is one thread.
void describeExceptions() {
    try {
        throw uno::RuntimeException();
    } catch (const uno::RuntimeException&) {
        std::ignore = cppu::getCaughtException();
    }
}

}  // namespace

const uno::Reference<uno::XComponentContext>& localContext() {
    static const uno::Reference<uno::XComponentContext> context = [] {
        // Without this the local environment knows the base types only, and the first use of an
        // office type crashes.
        rtl::Bootstrap::set("URE_BOOTSTRAP",
                            toUno("vnd.sun.star.pathname:" + programFolder() + "/fundamentalrc"));
        auto local = cppu::defaultBootstrap_InitialComponentContext();
        describeExceptions();
        return local;
    }();
    return context;
}

std::shared_ptr<Connection> Connection::open(const std::string& pipeName) {
    try {
        const auto connector = css::connection::Connector::create(localContext());
        const rtl::Reference<CountedConnection> stream(
            new CountedConnection(connector->connect(toUno("pipe,name=" + pipeName))));
        const auto bridge = css::bridge::BridgeFactory::create(localContext())
                                ->createBridge({}, "urp", stream.get(), nullptr);
        const uno::Reference<uno::XComponentContext> context(
            bridge->getInstance("StarOffice.ComponentContext"), uno::UNO_QUERY);
        if (!context.is()) return nullptr;
        return std::shared_ptr<Connection>(new Connection(stream, context));
    } catch (const uno::Exception&) {
        // Nobody listens, or the suite is about to end and answers in part.
        return nullptr;
    }
}

Connection::Connection(rtl::Reference<CountedConnection> stream,
                       uno::Reference<uno::XComponentContext> context)
    : stream_(std::move(stream)),
      context_(std::move(context)),
      services_(context_->getServiceManager()),
      desktop_(as<css::frame::XDesktop2>(create("com.sun.star.frame.Desktop"))) {}

Connection::~Connection() = default;

uno::Reference<uno::XInterface> Connection::create(const char* service) const {
    return services_->createInstanceWithContext(rtl::OUString::createFromAscii(service), context_);
}

uno::Reference<uno::XInterface> Connection::create(const char* service,
                                                   const std::vector<uno::Any>& arguments) const {
    return services_->createInstanceWithArgumentsAndContext(
        rtl::OUString::createFromAscii(service),
        {arguments.data(), static_cast<sal_Int32>(arguments.size())}, context_);
}

const uno::Reference<css::graphic::XGraphicProvider>& Connection::graphics() const {
    std::call_once(firstGraphics_, [this] {
        graphics_ =
            as<css::graphic::XGraphicProvider>(create("com.sun.star.graphic.GraphicProvider"));
    });
    return graphics_;
}

const uno::Reference<css::awt::XRequestCallback>& Connection::mainThread() const {
    std::call_once(firstMainThread_, [this] {
        mainThread_ = as<css::awt::XRequestCallback>(create("com.sun.star.awt.AsyncCallback"));
    });
    return mainThread_;
}

bool Connection::isLost() const {
    return stream_->isBroken();
}

void Connection::breakOff() {
    try {
        stream_->close();
    } catch (const uno::Exception&) {
        // It was broken already, which is what was wanted.
    }
}

std::uint64_t Connection::remoteCalls() const {
    return stream_->messagesRead();
}

}  // namespace libreoffice
