#pragma once

namespace desktop {

/// Whether windows can be shown: the toolkit ends a program that starts it on a screen that is
/// named but not there.
[[nodiscard]] bool screenAnswers();

}  // namespace desktop
