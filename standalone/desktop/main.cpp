// SPDX-License-Identifier: MIT
#include "CKvDesktop.h"
#include "CKvDesktopApplication.h"
#include "CKvForeignMemory.h"
#include "CKvMainWindow.h"
#include "desktopOptions.h"

#include <QTimer>

#include <optional>

int main(int argc, char **argv)
{
    CKvDesktopApplication::prepare();
    std::optional<CKvDesktopApplication> application;
    {
        // The window system without a display never lets its screen go.
        const CKvForeignMemory foreign;
        application.emplace(argc, argv);
    }
    CKvDesktop desktop(desktopOptions(QCoreApplication::arguments()));
    desktop.window().show();
    // From the event loop, which shows what fails.
    QTimer::singleShot(0, &desktop.window(), [&desktop] { desktop.start(); });
    return application->exec();
}
