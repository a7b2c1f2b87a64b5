// SPDX-License-Identifier: MIT
#include "CKvForeignMemory.h"
#include "CKvTestApplication.h"

#include <gmock/gmock.h>

#include <optional>

namespace
{

QtMessageHandler s_handler = nullptr;

/// Leaves out what the window system without a display says at every window.
void passMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.contains(QLatin1String("propagateSizeHints"))) {
        s_handler(type, context, message);
    }
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleMock(&argc, argv);
    // No display is needed unless somebody wants to watch.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    s_handler = qInstallMessageHandler(passMessage);
    std::optional<CKvTestApplication> application;
    {
        // That window system keeps its screen for good.
        const CKvForeignMemory screen;
        application.emplace(argc, argv);
    }
    return RUN_ALL_TESTS();
}
