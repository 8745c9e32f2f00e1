#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtWebEngineCore/QWebEnginePage>

#include <string_view>

#include "desktop/view_host.h"

namespace desktop {

/// Asks the page and waits for its answer, a second at the most; an invalid value if none comes.
/// Meanwhile the user's input is left waiting, and no event reaches a form.
[[nodiscard]] QVariant askPage(QWebEnginePage& page, const QString& script, ViewHost& host);

/// Runs a script in the page without waiting.
void tellPage(QWebEnginePage& page, const QString& script);

/// A text as a literal of the script language, with its quotes.
[[nodiscard]] QString scriptText(std::string_view text);

}  // namespace desktop
