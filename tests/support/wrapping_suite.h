#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "office/suite.h"
#include "support/call_log.h"

namespace support {

/// A suite around another one that sees every call into an application before it is made. The hook
/// may throw, and then the call is not made. Objects that come back are wrapped, those that go in
/// as arguments are unwrapped.
class WrappingSuite : public office::Suite {
public:
    using BeforeCall = std::function<void(const RecordedCall&)>;

    office::Object attach(std::string_view className) override;
    office::Object start(std::string_view className) override;
    void clearClipboard() override { inner_.clearClipboard(); }
    office::ClipboardPicture clipboardPicture(office::ClipboardPicture::Kind kind) override {
        return inner_.clipboardPicture(kind);
    }
    office::WindowHandle findWindow(std::string_view className, std::string_view caption) override {
        return inner_.findWindow(className, caption);
    }
    bool raiseWindow(office::WindowHandle window, int showCommand) override {
        return inner_.raiseWindow(window, showCommand);
    }
    bool lockDrawing(office::WindowHandle window) override { return inner_.lockDrawing(window); }
    void unlockDrawing() override { inner_.unlockDrawing(); }
    void redraw(office::WindowHandle window) override { inner_.redraw(window); }
    [[nodiscard]] office::Pacing pacing() const override { return inner_.pacing(); }

protected:
    WrappingSuite(office::Suite& inner, BeforeCall beforeCall);

private:
    office::Suite& inner_;
    std::shared_ptr<const BeforeCall> beforeCall_;
};

}  // namespace support
