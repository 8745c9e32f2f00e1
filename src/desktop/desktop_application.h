#pragma once

#include <memory>
#include <string>
#include <vector>

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

/// The variables of the environment that a `DesktopApplication` has set for its toolkit, which are
/// nothing to any other program.
[[nodiscard]] const std::vector<std::string>& variablesForToolkit();

}  // namespace desktop
