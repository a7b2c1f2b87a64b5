// SPDX-License-Identifier: MIT
#include "CKvCommandPanel.h"
#include "CKvDesktop.h"
#include "CKvDesktopApplication.h"
#include "CKvDialogDriver.h"
#include "CKvMainWindow.h"
#include "desktopOptions.h"

#include <QTimer>

#include <cstdio>
#include <cstdlib>

/// kvdesk, with the plan for its dialogs in KV_DIALOG_PLAN. The command history goes to the
/// standard error at the end.
int main(int argc, char **argv)
{
    constexpr int kLongestRunMs = 25000;
    CKvDesktopApplication::prepare();
    CKvDesktopApplication application(argc, argv);
    application.setFailureHandler([](const QString &sentence) {
        std::printf("failure: %s\n", sentence.toUtf8().constData());
        std::fflush(stdout);
    });
    CKvDialogDriver driver(
        qEnvironmentVariable("KV_DIALOG_PLAN").split(QLatin1Char(','), Qt::SkipEmptyParts));
    CKvDesktop desktop(desktopOptions(QCoreApplication::arguments()));
    QObject::connect(&driver, &CKvDialogDriver::finished, &desktop.window(), [&desktop] {
        desktop.window().closeLater(/*discards*/ true);
    });
    desktop.window().show();
    QTimer::singleShot(0, &desktop.window(), [&desktop] { desktop.start(); });
    QTimer::singleShot(kLongestRunMs, [] { std::exit(9); });
    const int status = application.exec();
    std::fprintf(stderr, "%s\n", desktop.window().panel().history().toUtf8().constData());
    return status;
}
