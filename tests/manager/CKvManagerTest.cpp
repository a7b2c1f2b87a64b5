// SPDX-License-Identifier: MIT
#include "CKvManagerTest.h"

#include <QDir>
#include <QFileInfo>

CKvManagerTest::CKvManagerTest()
    : manager(std::make_unique<CKvTestManager>())
{
    SetKvStandardManager(manager.get());
}

CKvManagerTest::~CKvManagerTest()
{
    document.reset();
    removeManager();
}

void CKvManagerTest::removeManager()
{
    SetKvStandardManager(nullptr);
    manager.reset();
}

QString CKvManagerTest::file(const char *name) const
{
    QDir().mkpath(QFileInfo(path(name)).absolutePath());
    CKvDrawingBuilder().saveTo(path(name));
    return path(name);
}

CKvSessionDocument &CKvManagerTest::open(const QStringList &files)
{
    CKvDrawingBuilder drawing;
    drawing.layer("WALLS").color(1);
    drawing.layer("DOORS").color(2);
    drawing.standardsFiles(files);
    return open(drawing);
}

CKvSessionDocument &CKvManagerTest::open(const CKvDrawingBuilder &drawing)
{
    return document.emplace(drawing);
}

CKvSessionDocument &CKvManagerTest::openTracked()
{
    CKvSessionDocument &opened = open(QStringList(file("office.dws")));
    EXPECT_TRUE(manager->loadDocumentStandards(&opened));
    return opened;
}

bool CKvManagerTest::hears(CKvSessionDocument &changed) const
{
    manager->clearChangedObjects();
    changed.changeLayer("WALLS", 6);
    const bool isHeard = !manager->changedObjects().empty();
    manager->clearChangedObjects();
    manager->stopTimer();
    return isHeard;
}

std::string CKvManagerTest::standardsFiles() const
{
    const std::vector<CKvString> paths = manager->standardsPaths();
    std::string lines;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        lines += paths[i].toQString().toStdString() + " ("
            + manager->standardsNames().at(i).toQString().toStdString() + ")\n";
    }
    return lines;
}
