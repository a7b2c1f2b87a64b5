// SPDX-License-Identifier: MIT
#include "CKvCommandCancelled.h"
#include "CKvDesktop.h"
#include "CKvDrawingStore.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "OdDbSymbolTableRecord.h"
#include "OdError.h"
#include "askPoint.h"
#include "desktopCommands.h"
#include "newEntity.h"
#include "recordNames.h"
#include "recordTables.h"
#include "tagWriting.h"
#include "valueFromText.h"

#include <limits>

namespace
{

CKvDrawingStore &storeOf(CKvDesktop &desktop)
{
    return desktop.requireDocument().GetKvDatabase()->store();
}

void appendPoint(CKvNewEntity &entity, int code, QPointF point)
{
    entity.groups.emplace_back(code, spelledReal(point.x()));
    entity.groups.emplace_back(code + 10, spelledReal(point.y()));
    entity.groups.emplace_back(code + 20, spelledReal(0));
}

/// What new entities take from the header: line style, colour and lineweight, unless those are the
/// layer's.
std::vector<std::pair<int, std::string>> currentLook(CKvDrawingStore &store)
{
    struct Variable {
        const char *name;
        int code;
        const char *byLayer;
    };
    constexpr Variable kVariables[] = { { "$CELTYPE", 6, "BYLAYER" },
                                        { "$CECOLOR", 62, "256" },
                                        { "$CELWEIGHT", 370, "-1" } };
    std::vector<std::pair<int, std::string>> groups;
    for (const Variable &variable : kVariables) {
        const std::optional<CKvTag> value = store.header().find(variable.name);
        const std::string word(value ? value->word() : std::string_view());
        if (value && qstricmp(word.c_str(), variable.byLayer) != 0) {
            groups.emplace_back(variable.code, word);
        }
    }
    return groups;
}

/// On the current layer.
CKvNewEntity begun(CKvDesktop &desktop, std::string_view type, std::string_view subclass)
{
    const OdDbObjectId layer = desktop.requireDocument().GetKvDatabase()->getCLAYER();
    return { type,
             subclass,
             std::string(encodedRecordName(*layer.slot())),
             {},
             currentLook(storeOf(desktop)) };
}

/// Draws from point to point until the user ends it.
/// @param drawn receives each line.
void drawLines(CKvDesktop &desktop, OdDbObjectIdArray &drawn)
{
    QPointF from = askPoint(desktop, CKvMainWindow::tr("First point:"));
    while (const std::optional<QPointF> to =
               askPointOrEnd(desktop, CKvMainWindow::tr("Next point <end>:"))) {
        CKvNewEntity line = begun(desktop, "LINE", "AcDbLine");
        appendPoint(line, 10, from);
        appendPoint(line, 11, *to);
        drawn.append(addToModelSpace(storeOf(desktop), line).id());
        from = *to;
    }
}

bool drawLine(CKvDesktop &desktop)
{
    desktop.requireDocument();
    OdDbObjectIdArray drawn;
    try {
        drawLines(desktop, drawn);
    } catch (const CKvCommandCancelled &) {
        // The lines were shown as they came; whoever breaks off wants none of them.
        for (const OdDbObjectId id : drawn) {
            id.openObject(OdDb::kForWrite)->erase();
        }
        throw;
    }
    return true;
}

bool drawCircle(CKvDesktop &desktop)
{
    desktop.requireDocument();
    const QPointF center = askPoint(desktop, CKvMainWindow::tr("Centre:"));
    const double radius = askLength(desktop, CKvMainWindow::tr("Radius:"));
    CKvNewEntity circle = begun(desktop, "CIRCLE", "AcDbCircle");
    appendPoint(circle, 10, center);
    circle.groups.emplace_back(40, spelledReal(radius));
    addToModelSpace(storeOf(desktop), circle);
    return true;
}

bool drawText(CKvDesktop &desktop)
{
    desktop.requireDocument();
    const QPointF place = askPoint(desktop, CKvMainWindow::tr("Place:"));
    const double height = askLength(desktop, CKvMainWindow::tr("Height:"));
    const QString text =
        desktop.commandLine().ask(CKvMainWindow::tr("Text:"), CKvInput::Kind::Text);
    if (text.trimmed().isEmpty()) {
        desktop.commandLine().print(CKvMainWindow::tr("No text, nothing to draw."));
        return true;
    }
    CKvDrawingStore &store = storeOf(desktop);
    CKvNewEntity entity = begun(desktop, "TEXT", "AcDbText");
    appendPoint(entity, 10, place);
    entity.groups.emplace_back(40, spelledReal(height));
    entity.groups.emplace_back(1, store.format().codec.encode(text));
    if (const std::optional<CKvTag> style = store.header().find("$TEXTSTYLE")) {
        entity.groups.emplace_back(7, std::string(style->value));
    }
    if (store.format().hasDictionaries()) {
        entity.groups.emplace_back(100, "AcDbText");
    }
    addToModelSpace(store, entity);
    return true;
}

/// How a block is inserted.
struct CKvInsertion {
    QPointF place;
    double scale = 1;
    double rotationDegrees = 0;
};

double askNumber(CKvDesktop &desktop, const QString &prompt)
{
    constexpr double kLargest = std::numeric_limits<double>::max();
    return numberFromText(desktop.commandLine().ask(prompt), -kLargest, kLargest);
}

bool isOption(const QString &answer, const char *option)
{
    return !answer.isEmpty() && QLatin1String(option).startsWith(answer, Qt::CaseInsensitive);
}

/// Scale and rotation are asked for only when they are wanted, so that a place alone will do.
CKvInsertion askInsertion(CKvDesktop &desktop)
{
    CKvInsertion insertion;
    for (;;) {
        const CKvPointOrWord answer =
            askPointOrWord(desktop, CKvMainWindow::tr("Place or [Scale/Rotation]:"));
        if (answer.point) {
            insertion.place = *answer.point;
            return insertion;
        }
        if (isOption(answer.word, "SCALE")) {
            insertion.scale = askNumber(desktop, CKvMainWindow::tr("Scale factor:"));
            if (insertion.scale == 0) {
                throw OdError(OdResult::kInvalidInput, "A scale of 0 leaves nothing.");
            }
        } else if (isOption(answer.word, "ROTATION")) {
            insertion.rotationDegrees =
                askNumber(desktop, CKvMainWindow::tr("Rotation in degrees:"));
        } else {
            refuseAnswer(
                desktop,
                CKvMainWindow::tr("\"%1\" is neither a point nor an option.").arg(answer.word));
        }
    }
}

bool insertBlock(CKvDesktop &desktop)
{
    const OdDbSymbolTableRecordPtr block =
        askRecord(desktop, CKvRecordKind::Block, CKvMainWindow::tr("Block:"), OdDb::kForRead);
    if (block->getName().toQString().startsWith(QLatin1Char('*'))) {
        throw OdError(OdResult::kInvalidInput, "A space can't be inserted.");
    }
    const CKvInsertion insertion = askInsertion(desktop);
    CKvNewEntity insert = begun(desktop, "INSERT", "AcDbBlockReference");
    insert.groups.emplace_back(2, std::string(encodedRecordName(*block->objectId().slot())));
    appendPoint(insert, 10, insertion.place);
    if (insertion.scale != 1) {
        for (const int code : { 41, 42, 43 }) {
            insert.groups.emplace_back(code, spelledReal(insertion.scale));
        }
    }
    if (insertion.rotationDegrees != 0) {
        insert.groups.emplace_back(50, spelledReal(insertion.rotationDegrees));
    }
    addToModelSpace(storeOf(desktop), insert);
    return true;
}

} // namespace

void addDrawCommands(CKvDesktop &desktop)
{
    desktop.addCommand("LINE", &drawLine);
    desktop.addCommand("CIRCLE", &drawCircle);
    desktop.addCommand("TEXT", &drawText);
    desktop.addCommand("INSERTBLOCK", &insertBlock);
}
