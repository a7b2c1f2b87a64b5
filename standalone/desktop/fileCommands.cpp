// SPDX-License-Identifier: MIT
#include "CKvCommandCancelled.h"
#include "CKvDesktop.h"
#include "CKvDrawingFile.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "OdError.h"
#include "desktopCommands.h"
#include "dwgConversion.h"
#include "filterOfDrawings.h"
#include "findSupportFile.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QTextStream>

namespace
{

QString saveFilter()
{
    return CKvMainWindow::tr("Drawings (*.dxf *.DXF *.dxf.gz *.dws *.DWS);;All files (*)");
}

QString titleOfSaving()
{
    return CKvMainWindow::tr("Save Drawing As");
}

QString scriptFilter()
{
    return CKvMainWindow::tr("Scripts (*.scr);;All files (*)");
}

/// The file that was given with the command, or the one that the user chooses.
/// @throws CKvCommandCancelled when the user chooses none.
QString fileToOpen(CKvDesktop &desktop, const QString &title, const QString &filter)
{
    QString path;
    if (desktop.commandLine().hasAnswer()) {
        path = desktop.commandLine().ask(title, CKvInput::Kind::Text);
    } else {
        path = QFileDialog::getOpenFileName(&desktop.window(), title, QString(), filter);
    }
    if (path.isEmpty()) {
        throw CKvCommandCancelled();
    }
    return path;
}

bool isYes(const QString &answer)
{
    return answer.startsWith(QLatin1Char('y'), Qt::CaseInsensitive);
}

/// For a file that was typed; the file dialog asks by itself.
/// @throws CKvCommandCancelled when it may not be replaced.
void requireMayReplace(CKvDesktop &desktop, const CKvHostDocument &document, const QString &path)
{
    const QFileInfo file(path);
    const bool isOwn = QDir::cleanPath(file.absoluteFilePath()) == document.path();
    // Saving refuses a DWG file and says why.
    if (!file.exists() || isOwn || isDwgFile(path)) {
        return;
    }
    const QString question = CKvMainWindow::tr("%1 exists already. Replace it? [Yes/No]")
                                 .arg(QDir::toNativeSeparators(path));
    if (!isYes(desktop.commandLine().ask(question))) {
        throw CKvCommandCancelled();
    }
}

QString chosenFileToSave(CKvDesktop &desktop, const CKvHostDocument &document)
{
    QString proposed = document.path().isEmpty() ? document.title() : document.path();
    if (proposed.endsWith(QLatin1String(".dwg"), Qt::CaseInsensitive)) {
        proposed.replace(proposed.size() - 3, 3, QStringLiteral("dxf"));
    }
    QFileDialog dialog(
        &desktop.window(), titleOfSaving(), QFileInfo(proposed).path(), saveFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // By the dialog, so that it asks about the file that will be replaced.
    dialog.setDefaultSuffix(QStringLiteral("dxf"));
    dialog.selectFile(QFileInfo(proposed).fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().constFirst() : QString();
}

/// @throws CKvCommandCancelled when the user chooses none, or not to replace one.
QString fileToSave(CKvDesktop &desktop, const CKvHostDocument &document)
{
    const bool isTyped = desktop.commandLine().hasAnswer();
    QString path = isTyped ? desktop.commandLine().ask(titleOfSaving(), CKvInput::Kind::Text)
                           : chosenFileToSave(desktop, document);
    if (path.isEmpty()) {
        throw CKvCommandCancelled();
    }
    if (isTyped) {
        if (QFileInfo(path).suffix().isEmpty()) {
            path += QLatin1String(".dxf");
        }
        requireMayReplace(desktop, document, path);
    }
    return path;
}

bool openDrawing(CKvDesktop &desktop)
{
    const QString path = QDir::fromNativeSeparators(
        fileToOpen(desktop, CKvMainWindow::tr("Open Drawing"), filterOfDrawings()));
    desktop.window().showReading(path);
    CKvHostDocument &document = desktop.session().documentManager()->open(path);
    desktop.session().settings().addRecentFile(document.path());
    desktop.window().updateRecentFiles();
    for (const QString &warning : CKvDrawingFile::warnings(*document.GetKvDatabase())) {
        desktop.commandLine().print(warning);
    }
    if (document.hindranceTo(document.path()) == CKvHostDocument::Hindrance::OpenElsewhere) {
        desktop.commandLine().print(
            CKvMainWindow::tr("%1 is open elsewhere too.").arg(document.title()));
    }
    return true;
}

bool newDrawing(CKvDesktop &desktop)
{
    const QString path = findSupportFile(QStringLiteral("new.dxf"), nullptr, {});
    if (path.isEmpty()) {
        throw OdError(OdResult::kUnreadableFile, "The template new.dxf was not found.");
    }
    desktop.session().documentManager()->openNew(path);
    return true;
}

bool save(CKvDesktop &desktop, CKvHostDocument &document, const QString &path)
{
    if (!desktop.window().mayOverwrite(document, path)) {
        throw CKvCommandCancelled();
    }
    document.saveAs(path);
    desktop.session().settings().addRecentFile(document.path());
    desktop.window().updateRecentFiles();
    desktop.window().updateTitles();
    desktop.commandLine().print(
        CKvMainWindow::tr("Saved %1.").arg(QDir::toNativeSeparators(document.path())));
    return true;
}

bool saveAs(CKvDesktop &desktop)
{
    CKvHostDocument &document = desktop.requireDocument();
    return save(desktop, document, fileToSave(desktop, document));
}

bool quickSave(CKvDesktop &desktop)
{
    CKvHostDocument &document = desktop.requireDocument();
    return document.hasWritableFile() ? save(desktop, document, document.path()) : saveAs(desktop);
}

bool closeDrawing(CKvDesktop &desktop)
{
    CKvHostDocument &document = desktop.requireDocument();
    // An answer, as a script gives it, stands for the button of that letter.
    const QString answer = desktop.commandLine().hasAnswer() && document.isModified()
        ? desktop.commandLine().ask(CKvMainWindow::tr("Discard the changes? [Yes/No]"))
        : QString();
    const bool discards = isYes(answer);
    if (!discards && !desktop.window().mayClose(document)) {
        throw CKvCommandCancelled();
    }
    desktop.session().documentManager()->close(document);
    return true;
}

bool loadScript(CKvDesktop &desktop)
{
    const QString path = fileToOpen(desktop, CKvMainWindow::tr("Run Script"), scriptFilter());
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        throw OdError(OdResult::kUnreadableFile,
                      QStringLiteral("The script %1 can't be read: %2")
                          .arg(QDir::toNativeSeparators(path), file.errorString())
                          .toStdString());
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    QStringList lines;
    while (!stream.atEnd()) {
        lines << stream.readLine();
    }
    desktop.commandLine().runScript(lines);
    return true;
}

bool quit(CKvDesktop &desktop)
{
    const bool discards = desktop.commandLine().hasAnswer()
        && isYes(desktop.commandLine().ask(CKvMainWindow::tr("Discard the changes? [Yes/No]")));
    desktop.window().closeLater(discards);
    return true;
}

} // namespace

void addFileCommands(CKvDesktop &desktop)
{
    desktop.addCommand("NEW", &newDrawing);
    desktop.addCommand("OPEN", &openDrawing);
    desktop.addCommand("CLOSE", &closeDrawing);
    desktop.addCommand("QSAVE", &quickSave);
    desktop.addCommand("SAVE", &saveAs);
    desktop.addCommand("SAVEAS", &saveAs);
    desktop.addCommand("LOADSCRIPT", &loadScript);
    desktop.addCommand("QUIT", &quit);
}
