#pragma once

#include <com/sun/star/awt/XRequestCallback.hpp>
#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/graphic/XGraphicProvider.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <rtl/ref.hxx>

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "office/libreoffice/uno_values.h"

namespace libreoffice {

class CountedConnection;

/// The bridge to one running LibreOffice through a named pipe.
///
/// Remote calls are counted where they can't be missed: in the byte stream under the bridge, by the
/// answers that come back. A broken stream is noticed in the same place, so `isLost` is already
/// true when the call that met it throws.
class Connection {
public:
    /// Connects to the pipe. Null if nobody listens there (yet).
    static std::shared_ptr<Connection> open(const std::string& pipeName);
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection();

    [[nodiscard]] const uno::Reference<uno::XComponentContext>& context() const { return context_; }
    [[nodiscard]] const uno::Reference<css::frame::XDesktop2>& desktop() const { return desktop_; }

    /// A service of the suite, by its name. `css::uno::Exception` if it has none of that name.
    [[nodiscard]] uno::Reference<uno::XInterface> create(const char* service) const;
    [[nodiscard]] uno::Reference<uno::XInterface> create(
        const char* service, const std::vector<uno::Any>& arguments) const;
    /// The one that reads and writes pictures, for any thread.
    [[nodiscard]] const uno::Reference<css::graphic::XGraphicProvider>& graphics() const;
    /// What calls back on the suite's main thread (`onMainThread`), for any thread.
    [[nodiscard]] const uno::Reference<css::awt::XRequestCallback>& mainThread() const;

    /// Whether the suite has gone or the connection was broken.
    [[nodiscard]] bool isLost() const;
    /// Breaks the connection; a call that waits for its answer ends with an exception. May be
    /// called from any thread.
    void breakOff();

    /// Calls that were answered so far.
    [[nodiscard]] std::uint64_t remoteCalls() const;

private:
    Connection(rtl::Reference<CountedConnection> stream,
               uno::Reference<uno::XComponentContext> context);

    rtl::Reference<CountedConnection> stream_;
    uno::Reference<uno::XComponentContext> context_;
    uno::Reference<css::lang::XMultiComponentFactory> services_;
    uno::Reference<css::frame::XDesktop2> desktop_;
    mutable std::once_flag firstGraphics_;
    mutable uno::Reference<css::graphic::XGraphicProvider> graphics_;
    mutable std::once_flag firstMainThread_;
    mutable uno::Reference<css::awt::XRequestCallback> mainThread_;
};

/// This process's own UNO environment; set up on the first call.
[[nodiscard]] const uno::Reference<uno::XComponentContext>& localContext();

}  // namespace libreoffice
