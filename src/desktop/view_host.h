#pragma once

#include <functional>

class QWebEngineProfile;

namespace desktop {

/// What the views of a form need of the window around them.
class ViewHost {
public:
    ViewHost() = default;
    ViewHost(const ViewHost&) = delete;
    ViewHost& operator=(const ViewHost&) = delete;
    virtual ~ViewHost() = default;

    /// Brings to the form what a user did. It runs at once in most cases; it is put off while a
    /// page is being asked, and dropped once the form's window has gone.
    virtual void deliver(std::function<void()> event) = 0;
    /// As `deliver`, but from the event loop, when the caller has returned.
    virtual void deliverLater(std::function<void()> event) = 0;
    /// Puts off all events of all forms, or lets them run again: while a page is being asked, the
    /// toolkit's own events run.
    virtual void holdEvents(bool hold) = 0;
    /// Whether the user goes about with the keyboard: only then is the focus marked.
    [[nodiscard]] virtual bool keyboardInUse() const = 0;
    /// What all pages share. The first call starts the engine.
    [[nodiscard]] virtual QWebEngineProfile& browserProfile() = 0;
};

}  // namespace desktop
