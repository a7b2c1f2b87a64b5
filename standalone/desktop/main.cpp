// SPDX-License-Identifier: MIT
#include "CKvDesktop.h"
#include "CKvDesktopApplication.h"
#include "CKvMainWindow.h"
#include "desktopOptions.h"

#include <QTimer>

int main(int argc, char **argv)
{
    CKvDesktopApplication::prepare();
    CKvDesktopApplication application(argc, argv);
    CKvDesktop desktop(desktopOptions(QCoreApplication::arguments()));
    desktop.window().show();
    // From the event loop, which shows what fails.
    QTimer::singleShot(0, &desktop.window(), [&desktop] { desktop.start(); });
    return application.exec();
}
