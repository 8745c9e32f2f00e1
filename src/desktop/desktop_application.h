#pragma once

#include <memory>

namespace desktop {

/// The toolkit as the program uses it: one for the process, made first and ended last.
class DesktopApplication {
public:
    DesktopApplication(int argumentCount, char** arguments);
    DesktopApplication(const DesktopApplication&) = delete;
    DesktopApplication& operator=(const DesktopApplication&) = delete;
    ~DesktopApplication();

private:
    struct Toolkit;
    std::unique_ptr<Toolkit> toolkit_;
};

}  // namespace desktop
