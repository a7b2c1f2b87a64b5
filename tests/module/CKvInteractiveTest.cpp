// SPDX-License-Identifier: MIT
#include "CKvInteractiveTest.h"

#include "CKvDrawingBuilder.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"

#include <QCoreApplication>

CKvInteractiveTest::CKvInteractiveTest()
{
    const QString office = folder.filePath(QStringLiteral("office.dws"));
    CKvDrawingBuilder standard;
    standard.withReservedLineStyles().layer("WALLS").color(1);
    standard.saveTo(office);
    CKvDrawingBuilder drawing;
    drawing.withReservedLineStyles();
    drawing.layer("WALLS").color(1);
    drawing.layer("DOORS").color(2);
    drawing.standardsFiles({ office });
    const QString path = folder.filePath(QStringLiteral("plan.dxf"));
    drawing.saveTo(path);
    session->settings().setStandardsViolation(1);
    session->documentManager()->open(path);
    session->commands().addReactor(&log);
    start();
}

CKvInteractiveTest::~CKvInteractiveTest()
{
    session->commands().removeReactor(&log);
}

void CKvInteractiveTest::recolorBare()
{
    m_edit.executeCommand(session->documentManager()->active()->commandContext());
}

int CKvInteractiveTest::colorOfWalls()
{
    const OdDbDatabase &database = *session->documentManager()->active()->GetKvDatabase();
    const OdDbLayerTablePtr layers(database.getLayerTableId().openObject());
    const OdDbLayerTableRecordPtr walls(layers->getAt(OdString("WALLS")).openObject());
    return walls->color().colorIndex();
}

void CKvInteractiveTest::keepObject()
{
    user.answer(QStringLiteral("CKvStandardViolationMessage"),
                [](QDialog &dialog) { press(dialog, QDialogButtonBox::Ok); });
}

void CKvInteractiveTest::runVerification()
{
    user.answer(QStringLiteral("CKvStandardViolationMessage"), [](QDialog &dialog) {
        click(dialog, "runStdVerification");
        press(dialog, QDialogButtonBox::Ok);
    });
}

std::vector<std::string> CKvInteractiveTest::shown() const
{
    std::vector<std::string> names;
    for (const QString &name : user.shown()) {
        names.push_back(name.toStdString());
    }
    return names;
}

void CKvInteractiveTest::runPosted()
{
    while (hasPosted()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}
