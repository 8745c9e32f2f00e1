#include "office/libreoffice/held_open.h"

#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/util/CloseVetoException.hpp>
#include <com/sun/star/util/URL.hpp>
#include <com/sun/star/util/URLTransformer.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <cppuhelper/implbase1.hxx>
#include <rtl/ref.hxx>

#include <mutex>
#include <utility>

#include "office/libreoffice/at_end.h"
#include "office/libreoffice/main_thread.h"

namespace libreoffice {

namespace {

/// Is asked on a thread of the bridge while the suite's main thread waits, and calls nothing.
class Veto : public cppu::WeakImplHelper1<css::util::XCloseListener> {
public:
    /// Whoever keeps the ownership of a document closes it himself, as none has it of a window.
    enum class Waits { Always, WhoGivesOwnership };
    explicit Veto(Waits waits) : waits_(waits) {}

    void SAL_CALL queryClosing(const css::lang::EventObject&, sal_Bool getsOwnership) override {
        const std::lock_guard lock(mutex_);
        if (isOver_) return;
        isAsked_ = isAsked_ || waits_ == Waits::Always || getsOwnership;
        throw css::util::CloseVetoException();
    }
    void SAL_CALL notifyClosing(const css::lang::EventObject&) override {}
    void SAL_CALL disposing(const css::lang::EventObject&) override {}

    [[nodiscard]] bool isAsked() const {
        const std::lock_guard lock(mutex_);
        return isAsked_;
    }
    /// Vetoes no more. Whether it has.
    bool end() {
        const std::lock_guard lock(mutex_);
        isOver_ = true;
        return isAsked_;
    }

private:
    Waits waits_;
    mutable std::mutex mutex_;
    bool isOver_ = false;
    bool isAsked_ = false;
};

class HeldOpen : public office::HeldDocument {
public:
    HeldOpen(std::shared_ptr<Connection> connection, const Document& document,
             std::shared_ptr<bool> hasClosed)
        : connection_(std::move(connection)),
          hasClosed_(std::move(hasClosed)),
          model_(as<css::util::XCloseable>(document.model())) {
        if (const auto shown = document.controller(); shown.is())
            window_ = as<css::util::XCloseable>(shown->getFrame());
        model_->addCloseListener(ofModel_.get());
        // A window that has just gone needs none.
        if (window_.is()) asFarAsPossible([&] { window_->addCloseListener(ofWindow_.get()); });
    }
    ~HeldOpen() override {
        const bool isWindowAsked = ofWindow_->end();
        const bool isModelAsked = ofModel_->end();
        asFarAsPossible([&] { model_->removeCloseListener(ofModel_.get()); });
        if (window_.is()) asFarAsPossible([&] { window_->removeCloseListener(ofWindow_.get()); });
        *hasClosed_ = *hasClosed_ || isWindowAsked || isModelAsked;
        asFarAsPossible([&] {
            if (isModelAsked) closeModel();
            if (isWindowAsked) closeWindow();
        });
    }

    [[nodiscard]] bool isToBeClosed() const override {
        return ofWindow_->isAsked() || ofModel_->isAsked();
    }

private:
    void closeModel() const {
        onMainThread(*connection_, [model = model_] { model->close(true); });
    }
    /// By the command that the user has given: another window of the document stays, and the
    /// suite's last one shows what can be opened.
    void closeWindow() const {
        const auto frame = tryAs<css::frame::XDispatchProvider>(window_);
        css::util::URL command;
        command.Complete = ".uno:CloseWin";
        css::util::URLTransformer::create(connection_->context())->parseStrict(command);
        const auto dispatch = frame->queryDispatch(command, "_self", 0);
        if (!dispatch.is()) return;
        onMainThread(*connection_, [dispatch, command] {
            dispatch->dispatch(command, propertyValues({{"SynchronMode", uno::Any(true)}}));
        });
    }

    std::shared_ptr<Connection> connection_;
    std::shared_ptr<bool> hasClosed_;
    uno::Reference<css::util::XCloseable> model_;
    uno::Reference<css::util::XCloseable> window_;
    rtl::Reference<Veto> ofModel_{new Veto(Veto::Waits::WhoGivesOwnership)};
    rtl::Reference<Veto> ofWindow_{new Veto(Veto::Waits::Always)};
};

}  // namespace

std::unique_ptr<office::HeldDocument> heldOpen(std::shared_ptr<Connection> connection,
                                               const Document& document,
                                               std::shared_ptr<bool> hasClosed) {
    return std::make_unique<HeldOpen>(std::move(connection), document, std::move(hasClosed));
}

}  // namespace libreoffice
