#include "furniture/titel_bar.h"

#include "forms/desktop.h"

namespace furniture {

void TitelBar::pressClose() {
    if (ShowClose && ShowCloseEnabled) form().desktop().unload(form());
}

void TitelBar::pressMinimise() {
    if (ShowMinimized && ShowMinimizedEnabled) form().windowState = forms::WindowState::Minimised;
}

void TitelBar::pressMaximise() {
    if (!ShowMaximized || !ShowMaximizedEnabled) return;
    form().windowState = form().windowState == forms::WindowState::Maximised
                             ? forms::WindowState::Normal
                             : forms::WindowState::Maximised;
}

}  // namespace furniture
