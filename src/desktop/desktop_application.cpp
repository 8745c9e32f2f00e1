#include "desktop/desktop_application.h"

#include <QtCore/QLoggingCategory>
#include <QtGui/QFont>
#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>
#include <unistd.h>

#include <array>
#include <clocale>

#include "desktop/desktop_style.h"
#include "desktop/icons.h"
#include "desktop/looks.h"
#include "furniture/palette.h"

namespace desktop {

namespace {

void setUnlessSet(const char* name, const QByteArray& value) {
    if (!qEnvironmentVariableIsSet(name)) qputenv(name, value);
}

void prepareBrowserEngine() {
    // Panels of text need no graphics card, and without one the engine looks the same on every
    // machine and starts faster.
    setUnlessSet("QT_QUICK_BACKEND", "software");
    setUnlessSet("QTWEBENGINE_CHROMIUM_FLAGS", "--disable-gpu");
    // The engine's sandbox refuses to work for the administrator, and then no page would come at
    // all. Nobody else goes without it.
    if (geteuid() == 0) setUnlessSet("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext*=false"));
}

/// The forms are laid out for this font. Where the system has not got it, the one of the same width
/// that the pages of the browser view fall back on too.
void prepareFonts() {
    QFont::insertSubstitutions(QStringLiteral("Tahoma"), {QStringLiteral("Liberation Sans"),
                                                          QStringLiteral("DejaVu Sans Condensed"),
                                                          QStringLiteral("DejaVu Sans")});
}

/// As dark as the forms.
void prepareToolTips() {
    QPalette colours = QToolTip::palette();
    colours.setColor(QPalette::ToolTipBase, colourOf(furniture::palette::ThemeGroundDeep));
    colours.setColor(QPalette::ToolTipText, colourOf(furniture::palette::ThemeText));
    QToolTip::setPalette(colours);
    QToolTip::setFont(fontOf({.name = "Tahoma", .sizePt = 9}));
}

QIcon programIcon() {
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128}) {
        QPixmap picture(side, side);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        drawIcon(painter, QRectF(0, 0, side, side), "icon:murvane");
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

}  // namespace

struct DesktopApplication::Toolkit {
    Toolkit(int count, char** arguments)
        : argumentCount(count),
          application(argumentCount, arguments) {}

    int argumentCount;  ///< the toolkit keeps a reference to it
    QApplication application;
};

DesktopApplication::DesktopApplication(int argumentCount, char** arguments) {
    prepareBrowserEngine();
    QCoreApplication::setApplicationName(QStringLiteral("Murvane"));
    QGuiApplication::setDesktopFileName(QStringLiteral("murvane"));
    toolkit_ = std::make_unique<Toolkit>(argumentCount, arguments);
    // The toolkit takes over the user's locale; numbers in files and protocols keep their point.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new DesktopStyle);
    prepareFonts();
    prepareToolTips();
    QApplication::setWindowIcon(programIcon());
}

DesktopApplication::~DesktopApplication() = default;

}  // namespace desktop
