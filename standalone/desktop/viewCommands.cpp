// SPDX-License-Identifier: MIT
#include "CKvDesktop.h"
#include "CKvDrawingView.h"
#include "CKvMainWindow.h"
#include "OdError.h"
#include "askPoint.h"
#include "desktopCommands.h"

namespace
{

constexpr double kStep = 1.5;

CKvDrawingView &viewOf(CKvDesktop &desktop)
{
    desktop.requireDocument();
    return *desktop.window().activeView();
}

bool isOption(const QString &answer, const char *option)
{
    return !answer.isEmpty() && QLatin1String(option).startsWith(answer, Qt::CaseInsensitive);
}

/// "2x" or "0.5".
bool zoomByFactor(CKvDrawingView &view, QString answer)
{
    if (answer.endsWith(QLatin1Char('x'), Qt::CaseInsensitive)) {
        answer.chop(1);
    }
    bool isNumber = false;
    const double factor = answer.toDouble(&isNumber);
    if (!isNumber || !(factor > 0)) {
        return false;
    }
    view.zoomBy(factor);
    return true;
}

bool zoom(CKvDesktop &desktop)
{
    CKvDrawingView &view = viewOf(desktop);
    const QString answer = desktop.commandLine().ask(
        CKvMainWindow::tr("Factor, or [Extents/Window/Previous/In/Out] <Extents>:"));
    if (answer.isEmpty() || isOption(answer, "EXTENTS") || isOption(answer, "ALL")) {
        view.zoomExtents();
    } else if (isOption(answer, "WINDOW")) {
        const QPointF corner = askPoint(desktop, CKvMainWindow::tr("First corner:"));
        view.zoomWindow(corner, askPoint(desktop, CKvMainWindow::tr("Opposite corner:")));
    } else if (isOption(answer, "PREVIOUS")) {
        view.zoomPrevious();
    } else if (isOption(answer, "IN")) {
        view.zoomBy(kStep);
    } else if (isOption(answer, "OUT")) {
        view.zoomBy(1 / kStep);
    } else if (!zoomByFactor(view, answer)) {
        desktop.commandLine().print(
            CKvMainWindow::tr("\"%1\" is neither a factor nor an option.").arg(answer));
        return false;
    }
    return true;
}

bool regenerate(CKvDesktop &desktop)
{
    viewOf(desktop).picture().rebuild();
    return true;
}

} // namespace

void addViewCommands(CKvDesktop &desktop)
{
    desktop.addCommand("ZOOM", &zoom);
    desktop.addCommand("REGEN", &regenerate);
}
