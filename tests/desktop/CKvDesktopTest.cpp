// SPDX-License-Identifier: MIT
#include "CKvDesktopTest.h"

#include "CKvCommandPanel.h"
#include "CKvDrawingView.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"

#include <QFile>

CKvDesktopTest::CKvDesktopTest()
{
    CKvDesktopOptions options;
    options.settingsFile = path("settings.ini");
    options.loadsModule = false;
    m_desktop = std::make_unique<CKvDesktop>(options);
    m_desktop->window().show();
}

CKvDesktopTest::~CKvDesktopTest() = default;

QString CKvDesktopTest::write(const char *name, int layers) const
{
    CKvDrawingBuilder drawing;
    drawing.withDefaults().header("LTSCALE", 40, 1.5);
    for (int i = 0; i < layers; ++i) {
        drawing.layer(QString(QLatin1Char('L') + QString::number(i)));
    }
    drawing.modelSpace().entity("LINE").group(10, 0).group(20, 0).group(11, 100).group(21, 50);
    drawing.saveTo(path(name));
    return path(name);
}

QByteArray CKvDesktopTest::contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

CKvHostDocument &CKvDesktopTest::open(const QString &path)
{
    return session().documentManager()->open(path);
}

void CKvDesktopTest::enter(const QString &line)
{
    window().panel().enterCommand(line);
}

void CKvDesktopTest::changeLayer(const char *name, int color)
{
    const OdDbLayerTablePtr layers(
        m_desktop->requireDocument().GetKvDatabase()->getLayerTableId().openObject());
    OdDbLayerTableRecordPtr(layers->getAt(OdString(name)).openObject(OdDb::kForWrite))
        ->setColor(OdCmColor::byIndex(color));
}

void CKvDesktopTest::finishPicture()
{
    window().activeView()->toImage();
}

QStringList CKvDesktopTest::said()
{
    QStringList lines;
    for (const QString &line : window().panel().history().split(QLatin1Char('\n'))) {
        if (!line.startsWith(QLatin1String("Command:")) && !line.isEmpty()) {
            lines << line;
        }
    }
    return lines;
}
