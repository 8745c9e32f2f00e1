#include "office/libreoffice/main_thread.h"

#include <com/sun/star/awt/XCallback.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <cppuhelper/implbase1.hxx>
#include <rtl/ref.hxx>

#include <chrono>
#include <exception>
#include <future>
#include <utility>

namespace libreoffice {

namespace {

/// The call comes back to the thread of the suite that waits for it, as does whatever is called
/// from here.
class Task : public cppu::WeakImplHelper1<css::awt::XCallback> {
public:
    explicit Task(std::function<void()> task) : task_(std::move(task)) {}

    void SAL_CALL notify(const uno::Any&) override {
        try {
            task_();
            done_.set_value();
        } catch (const uno::Exception&) {
            done_.set_exception(std::current_exception());
        } catch (const std::exception&) {
            done_.set_exception(std::current_exception());
        }
    }
    [[nodiscard]] std::future<void> done() { return done_.get_future(); }

private:
    std::function<void()> task_;
    std::promise<void> done_;
};

}  // namespace

void onMainThread(const Connection& connection, std::function<void()> task) {
    constexpr std::chrono::milliseconds step{100};
    const rtl::Reference<Task> called(new Task(std::move(task)));
    std::future<void> done = called->done();
    connection.mainThread()->addCallback(called.get(), uno::Any());
    while (done.wait_for(step) != std::future_status::ready) {
        if (connection.isLost()) throw css::lang::DisposedException();
    }
    done.get();
}

}  // namespace libreoffice
