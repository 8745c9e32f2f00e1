#include "furniture/title_bar.h"

#include "forms/desktop.h"

namespace furniture {

void TitleBar::pressClose() {
    if (ShowClose && ShowCloseEnabled) form().desktop().unload(form());
}

void TitleBar::pressMinimise() {
    if (ShowMinimized && ShowMinimizedEnabled) form().windowState = forms::WindowState::Minimised;
}

void TitleBar::pressMaximise() {
    if (ShowMaximized && ShowMaximizedEnabled) switchSize();
}

void TitleBar::doubleClick() {
    if (form().resizable) switchSize();
}

void TitleBar::switchSize() {
    form().windowState = form().windowState == forms::WindowState::Maximised
                             ? forms::WindowState::Normal
                             : forms::WindowState::Maximised;
}

}  // namespace furniture
