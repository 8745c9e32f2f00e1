#pragma once

#include <memory>

#include "forms/desktop.h"

namespace desktop {

/// All that a program with windows needs of this folder, without the toolkit's headers.
class FormsRunner {
public:
    /// The arguments have to outlive it. One for the process.
    FormsRunner(int argumentCount, char** arguments);
    FormsRunner(const FormsRunner&) = delete;
    FormsRunner& operator=(const FormsRunner&) = delete;
    ~FormsRunner();

    [[nodiscard]] forms::Desktop& desktop();

    /// Closes one form after the other as the user would. From any thread.
    void closeForms();

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

/// Whether windows can be shown: the toolkit ends a program that starts it on a screen that is
/// named but not there.
[[nodiscard]] bool screenAnswers();

}  // namespace desktop
