// SPDX-License-Identifier: MIT
#include "CKvCommandCancelled.h"
#include "CKvDrawingStore.h"
#include "CKvMainWindow.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdError.h"
#include "commandOptions.h"
#include "desktopCommands.h"
#include "lineStyleDescription.h"
#include "lineStyleFiles.h"
#include "lineTypeLoading.h"
#include "readLineTypeFile.h"
#include "recordNames.h"

#include <QFileDialog>

namespace
{

QString patternPrompt()
{
    return CKvMainWindow::tr("Dashes, gaps (below 0) and dots (0), set apart by commas:");
}

void addLineStyle(CKvDesktop &desktop)
{
    const CKvHostDocument &document = desktop.requireDocument();
    CKvLineTypeDefinition definition;
    definition.name = desktop.commandLine().ask(namePrompt());
    requireValidName(definition.name);
    definition.elements = readLineTypePattern(desktop.commandLine().ask(patternPrompt()));
    definition.description =
        desktop.commandLine().ask(CKvMainWindow::tr("Description:"), CKvInput::Kind::Text);
    openTable(document, CKvRecordKind::LineStyle, OdDb::kForWrite)
        ->add(newLineType(document.GetKvDatabase()->store(), definition));
}

bool isReserved(const OdDbLinetypeTableRecord &style)
{
    const OdDbDatabase &database = *style.database();
    return style.objectId() == database.getLinetypeContinuousId()
        || style.objectId() == database.getLinetypeByLayerId()
        || style.objectId() == database.getLinetypeByBlockId();
}

std::function<void(CKvDesktop &)> changesPattern()
{
    return changes<OdDbLinetypeTableRecord>(
        CKvRecordKind::LineStyle,
        patternPrompt(),
        [](OdDbLinetypeTableRecord &style, const QString &answer) {
            if (isReserved(style)) {
                throw OdError(OdResult::kInvalidInput, "This line style can't have a pattern.");
            }
            CKvLineTypeDefinition definition;
            definition.name = style.getName().toQString();
            definition.description = lineStyleDescription(style);
            definition.elements = readLineTypePattern(answer);
            style.handOverTo(newLineType(style.database()->store(), definition),
                             /*keepExtendedData*/ true,
                             /*keepExtensionDictionary*/ true);
        });
}

std::function<void(CKvDesktop &)> describes()
{
    return changes<OdDbLinetypeTableRecord>(
        CKvRecordKind::LineStyle,
        CKvMainWindow::tr("Description:"),
        [](OdDbLinetypeTableRecord &style, const QString &answer) {
            setLineStyleDescription(style, answer);
        },
        CKvInput::Kind::Text);
}

void loadLineStyle(CKvDesktop &desktop)
{
    const CKvHostDocument &document = desktop.requireDocument();
    const QString name = desktop.commandLine().ask(namePrompt());
    document.GetKvDatabase()->loadLineTypeFile(OdString(name),
                                               OdString(usualLineStyleFile(document)));
}

QString askFile(CKvDesktop &desktop)
{
    const QString title = CKvMainWindow::tr("Line style file:");
    const QString file = desktop.commandLine().hasAnswer()
        ? desktop.commandLine().ask(title)
        : QFileDialog::getOpenFileName(&desktop.window(),
                                       title,
                                       QString(),
                                       CKvMainWindow::tr("Line styles (*.lin);;All files (*)"));
    if (file.isEmpty()) {
        throw CKvCommandCancelled();
    }
    return findLineStyleFile(desktop.requireDocument(), file);
}

/// One line style of a file, or all that the drawing lacks.
void loadFromFile(CKvDesktop &desktop)
{
    const CKvHostDocument &document = desktop.requireDocument();
    CKvDatabase &database = *document.GetKvDatabase();
    const QString file = askFile(desktop);
    const QStringList known = lineTypeNames(file);
    const QString name = desktop.commandLine().ask(CKvMainWindow::tr("Name, or * for all:"));
    if (name != QLatin1String("*")) {
        database.loadLineTypeFile(OdString(name), OdString(file));
        return;
    }
    int loaded = 0;
    for (const QString &one : known) {
        if (!openTable(document, CKvRecordKind::LineStyle)->has(OdString(one))) {
            // A text or shape that the drawing has no style for keeps no other line style away.
            try {
                database.loadLineTypeFile(OdString(one), OdString(file));
                ++loaded;
            } catch (const OdError &error) {
                desktop.commandLine().print(
                    QStringLiteral("%1: %2").arg(one, QString::fromUtf8(error.what())));
            }
        }
    }
    desktop.commandLine().print(CKvMainWindow::tr("%n line styles loaded.", nullptr, loaded));
}

bool lineStyleCommand(CKvDesktop &desktop)
{
    return runOption(desktop,
                     CKvMainWindow::tr("[New/Load/File/Pattern/DEScription/Set/DELete]:"),
                     { { "NEW", &addLineStyle },
                       { "LOAD", &loadLineStyle },
                       { "FILE", &loadFromFile },
                       { "PATTERN", changesPattern() },
                       { "SET", makesCurrent(CKvRecordKind::LineStyle, "$CELTYPE", 6) },
                       { "DELETE", deletes(CKvRecordKind::LineStyle) },
                       { "DESCRIPTION", describes() } });
}

} // namespace

void addLineStyleCommand(CKvDesktop &desktop)
{
    desktop.addCommand("LINETYPE", &lineStyleCommand);
}
