#include <QtCore/QByteArray>
#include <gtest/gtest.h>

#include "desktop/desktop_application.h"

// What the sanitizers find within the browser engine is not this program's.
extern "C" {
const char* __asan_default_options();
const char* __asan_default_options() {
    return "new_delete_type_mismatch=0:alloc_dealloc_mismatch=0";
}

const char* __lsan_default_suppressions();
const char* __lsan_default_suppressions() {
    return "leak:libQt6WebEngineCore\nleak:libfontconfig\n";
}
}

/// Without a screen unless one is asked for: QT_QPA_PLATFORM=xcb shows the windows.
int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const desktop::DesktopApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
