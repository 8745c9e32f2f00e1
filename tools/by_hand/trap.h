#pragma once

#include <QtCore/QTimer>

#include <string>

#include "desktop/qt_desktop.h"

namespace by_hand {

/// Takes one picture of a form while the program is too busy to be asked for it: whenever it lets
/// events run, the trap looks.
class Trap {
public:
    struct Prey {
        std::string form;
        /// The picture is taken once the number that this control's caption begins with is as high.
        std::string control;
        double atLeast = 0;
        std::string file;
    };

    /// In the thread of the windows.
    Trap(const desktop::QtDesktop& desktop, Prey prey);

    [[nodiscard]] bool hasCaught() const { return caught_; }
    [[nodiscard]] const std::string& file() const { return prey_.file; }

private:
    void look();

    const desktop::QtDesktop& desktop_;
    Prey prey_;
    QTimer timer_;
    bool caught_ = false;
};

}  // namespace by_hand
