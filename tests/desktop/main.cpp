#include <QtCore/QByteArray>
#include <gtest/gtest.h>

#include "desktop/desktop_application.h"

/// Without a screen unless one is asked for: QT_QPA_PLATFORM=xcb shows the windows.
int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const desktop::DesktopApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
