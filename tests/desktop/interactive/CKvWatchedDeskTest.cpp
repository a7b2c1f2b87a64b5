// SPDX-License-Identifier: MIT
#include "CKvWatchedDeskTest.h"

#include "CKvCommandEdit.h"
#include "CKvCommandPanel.h"
#include "CKvDrawingFile.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"

#include <QAbstractButton>
#include <QFile>
#include <QTest>
#include <QTimer>

namespace
{

OdDbLayerTableRecordPtr
openLayer(const CKvHostDocument &document, const char *name, OdDb::OpenMode mode)
{
    const OdDbLayerTablePtr layers(document.GetKvDatabase()->getLayerTableId().openObject());
    return OdDbLayerTableRecordPtr(layers->getAt(OdString(name)).openObject(mode));
}

CKvDrawingBuilder standard()
{
    CKvDrawingBuilder drawing;
    drawing.withDefaults().currentLayer("0").currentTextStyle("Standard");
    drawing.layer("WALLS").color(1);
    drawing.dimStyle("OFFICE").group(140, 2.5);
    return drawing;
}

} // namespace

CKvWatchedDeskTest::CKvWatchedDeskTest()
{
    standard().saveTo(path("office.dws"));
    CKvDrawingBuilder plan = standard();
    plan.layer("DOORS").color(2);
    plan.tableRecord("VPORT", "*ACTIVE").handle(QString::number(kViewportHandle, 16));
    plan.block("DOOR").line();
    plan.modelSpace().line("WALLS");
    plan.standardsFiles({ path("office.dws") });
    plan.saveTo(path("plan.dxf"));
    CKvDesktopOptions options;
    options.settingsFile = path("settings.ini");
    options.moduleFile = text(KV_MODULE_FILE);
    m_desk = std::make_unique<CKvDesktop>(options);
    m_desk->window().show();
    m_desk->start();
    m_log = std::make_unique<CKvRoadLog>(session());
    enter(QString(text("OPEN ") + path("plan.dxf")));
    document().GetKvDatabase()->addReactor(m_log.get());
    m_log->clear();
}

CKvWatchedDeskTest::~CKvWatchedDeskTest()
{
    m_log.reset();
}

void CKvWatchedDeskTest::write(const char *name, const QByteArray &bytes) const
{
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray CKvWatchedDeskTest::contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

QByteArray CKvWatchedDeskTest::bytes()
{
    return CKvDrawingFile::toBytes(*document().GetKvDatabase());
}

void CKvWatchedDeskTest::enter(const QString &line)
{
    m_desk->window().panel().enterCommand(line);
}

void CKvWatchedDeskTest::runScript(const QByteArray &lines)
{
    write("script.scr", lines);
    enter(QString(text("LOADSCRIPT ") + path("script.scr")));
}

void CKvWatchedDeskTest::recolor(int color, const char *layer)
{
    openLayer(document(), layer, OdDb::kForWrite)->setColor(OdCmColor::byIndex(color));
}

int CKvWatchedDeskTest::colorOfWalls()
{
    return openLayer(document(), "WALLS", OdDb::kForRead)->color().colorIndex();
}

void CKvWatchedDeskTest::whenAsked(const std::function<void()> &action)
{
    CKvCommandPanel &panel = m_desk->window().panel();
    QObject::connect(&panel, &CKvCommandPanel::askingChanged, &panel, [action](bool isAsking) {
        if (isAsking) {
            QTimer::singleShot(0, action);
        }
    });
}

void CKvWatchedDeskTest::pressEscape()
{
    QTest::keyClick(m_desk->window().panel().edit(), Qt::Key_Escape);
}

void CKvWatchedDeskTest::runPosted()
{
    while (hasPosted()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void CKvWatchedDeskTest::keepObject()
{
    m_user.answer(text("CKvStandardViolationMessage"), [this](QDialog &dialog) {
        m_log->note("message");
        press(dialog, QDialogButtonBox::Ok);
    });
}

void CKvWatchedDeskTest::verifyAndPassOver()
{
    answerVerification("NextIssueButton");
}

void CKvWatchedDeskTest::verifyAndFix()
{
    answerVerification("FixIssueButton");
}

void CKvWatchedDeskTest::answerVerification(const char *button)
{
    m_user.answer(text("CKvStandardViolationMessage"), [this](QDialog &dialog) {
        m_log->note("message");
        click(dialog, "runStdVerification");
        press(dialog, QDialogButtonBox::Ok);
    });
    m_user.answer(text("CKvVerifyStandards"), [this, button](QDialog &dialog) {
        const int before = m_summaries;
        while (m_summaries == before) {
            m_seen.push_back(labelText(dialog, "ObjectTypeLabel") + ' '
                             + labelText(dialog, "ObjectNameLabel"));
            m_log->note("shown " + m_seen.back());
            const bool isOffered =
                dialog.findChild<QAbstractButton *>(QLatin1String(button))->isEnabled();
            click(dialog, isOffered ? button : "NextIssueButton");
        }
        press(dialog, QDialogButtonBox::Close);
    });
    m_user.answer(text("CKvVerfiyCompleteMessage"), [this](QDialog &dialog) {
        ++m_summaries;
        m_log->note("summary " + labelText(dialog, "num_violations"));
        dialog.reject();
    });
}

long CKvWatchedDeskTest::told() const
{
    return m_log->count("message");
}
