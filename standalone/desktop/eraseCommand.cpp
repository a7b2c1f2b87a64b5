// SPDX-License-Identifier: MIT
#include "CKvDesktop.h"
#include "CKvDrawingView.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbEntity.h"
#include "OdDbLayerTableRecord.h"
#include "OdError.h"
#include "askPoint.h"
#include "desktopCommands.h"
#include "layerState.h"
#include "recordTables.h"

#include <map>
#include <vector>

namespace
{

using Ids = std::vector<OdDbObjectId>;

Ids entitiesOfModelSpace(const CKvHostDocument &document)
{
    Ids ids;
    const OdDbBlockTableRecordPtr space(requireRecord(
        document, CKvRecordKind::Block, QStringLiteral("*Model_Space"), OdDb::kForRead));
    for (OdDbObjectIteratorPtr walk = space->newIterator(); !walk->done(); walk->step()) {
        ids.push_back(walk->objectId());
    }
    return ids;
}

/// The visible entities that lie wholly within a window that the user gives.
Ids askWindow(CKvDesktop &desktop)
{
    CKvBox window;
    window.add(askPoint(desktop, CKvMainWindow::tr("First corner:")));
    window.add(askPoint(desktop, CKvMainWindow::tr("Opposite corner:")));
    CKvDocumentPicture &drawn = desktop.window().activeView()->picture();
    drawn.finish();
    std::map<const CKvObjectSlot *, CKvBox> boxes;
    for (const CKvPictureItem &item : drawn.picture()->modelSpace().items) {
        if (item.entity && !item.isDead && drawn.picture()->layers[item.layer].isVisible()) {
            boxes[item.entity].add(item.box);
        }
    }
    Ids ids;
    for (const OdDbObjectId id : entitiesOfModelSpace(desktop.requireDocument())) {
        const auto found = boxes.find(id.slot());
        if (found != boxes.end() && window.contains(found->second)) {
            ids.push_back(id);
        }
    }
    return ids;
}

OdDbObjectId entityOfHandle(const CKvHostDocument &document, const QString &word)
{
    bool isHandle = false;
    const OdDbObjectId id =
        document.GetKvDatabase()->getOdDbObjectId(OdDbHandle(word.toULongLong(&isHandle, 16)));
    const OdDbObjectPtr object = id.openObject();
    if (!isHandle || !object || !object->isKindOf(OdDbEntity::desc())) {
        throw OdError(OdResult::kInvalidInput,
                      "There is no entity \"" + word.toStdString() + "\".");
    }
    return id;
}

bool isWord(const QString &answer, const char *word)
{
    return answer.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

Ids askEntities(CKvDesktop &desktop)
{
    const CKvHostDocument &document = desktop.requireDocument();
    const OdDbObjectIdArray selected = document.selectionSet()->selectedObjectIds();
    if (!selected.isEmpty() && !desktop.commandLine().hasAnswer()) {
        return { selected.begin(), selected.end() };
    }
    const QString word =
        desktop.commandLine().ask(CKvMainWindow::tr("[Last/All/Window] or a handle:"));
    if (isWord(word, "WINDOW") || isWord(word, "W")) {
        return askWindow(desktop);
    }
    if (isWord(word, "ALL")) {
        return entitiesOfModelSpace(document);
    }
    if (isWord(word, "LAST") || isWord(word, "L")) {
        const Ids all = entitiesOfModelSpace(document);
        return all.empty() ? all : Ids { all.back() };
    }
    return { entityOfHandle(document, word) };
}

bool isOnLockedLayer(OdDbObjectId id)
{
    const OdDbEntityPtr entity(id.openObject());
    const OdDbLayerTableRecordPtr layer(entity ? entity->layerId().openObject() : OdDbObjectPtr());
    return layer && layerState(*layer).isLocked;
}

bool eraseEntities(CKvDesktop &desktop)
{
    const Ids ids = askEntities(desktop);
    desktop.requireDocument().selectionSet()->clearSelection();
    int erased = 0;
    for (const OdDbObjectId id : ids) {
        if (!isOnLockedLayer(id)) {
            id.openObject(OdDb::kForWrite)->erase();
            ++erased;
        }
    }
    CKvCommandLine &line = desktop.commandLine();
    line.print(CKvMainWindow::tr("%n entities erased.", nullptr, erased));
    if (const int locked = int(ids.size()) - erased) {
        line.print(CKvMainWindow::tr("%n entities are on a locked layer.", nullptr, locked));
    }
    return true;
}

} // namespace

void addEraseCommand(CKvDesktop &desktop)
{
    desktop.addCommand("ERASE", &eraseEntities);
}
