// SPDX-License-Identifier: MIT
#include "CKvCommandPanel.h"
#include "CKvDesktop.h"
#include "CKvDesktopApplication.h"
#include "CKvDrawingView.h"
#include "CKvMainWindow.h"
#include "CKvStandardsSettingsDlg.h"

#include <QDir>
#include <QFile>

#include <cstdio>

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

/// A window as it is once everything that waits has been painted.
void write(QWidget &widget, const QString &path)
{
    QCoreApplication::processEvents();
    if (!widget.grab().save(path)) {
        std::fprintf(stderr, "%s can't be written.\n", qPrintable(path));
    }
}

void writeAll(const QDir &target, const QDir &samples, const QString &palette)
{
    // A folder whose path may be read by everybody, since the settings show it.
    QDir folder(QDir::temp().filePath(text("house-at-the-weir")));
    folder.removeRecursively();
    QDir().mkpath(folder.path());
    for (const QString &name : samples.entryList({ text("*.dxf") })) {
        QFile::copy(samples.filePath(name), folder.filePath(name));
    }
    CKvDesktopOptions options;
    options.settingsFile = folder.filePath(text("settings.ini"));
    options.loadsModule = false;
    options.palette = palette;
    CKvDesktop desktop(options);
    const QString ending = palette == QLatin1String("dark") ? text("-dark.png") : text(".png");
    desktop.window().show();
    for (const char *name : { "site-plan.dxf", "flange.dxf", "floor-plan.dxf" }) {
        desktop.session().documentManager()->open(folder.filePath(text(name)));
        desktop.window().activeView()->toImage();
    }
    desktop.window().panel().enterCommand(text("ZOOM E"));
    desktop.window().activeView()->toImage();
    write(desktop.window(), target.filePath(QString(text("desktop") + ending)));
    CKvStandardsSettingsDlg dialog(desktop.session(), *desktop.activeDocument(), 1);
    dialog.addFile(text("/projects/standards/withdrawn-standard.dxf"));
    dialog.show();
    dialog.resize(760, 360);
    write(dialog, target.filePath(QString(text("standards-settings") + ending)));
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    CKvDesktopApplication::prepare();
    CKvDesktopApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "usage: kv_desk_screenshots TARGET_FOLDER SAMPLES_FOLDER\n");
        return 2;
    }
    for (const char *palette : { "light", "dark" }) {
        writeAll(QDir(arguments[1]), QDir(arguments[2]), text(palette));
    }
    return 0;
}
