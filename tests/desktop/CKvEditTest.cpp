// SPDX-License-Identifier: MIT
#include "CKvEditTest.h"

#include "CKvCommandEdit.h"
#include "CKvCommandPanel.h"
#include "CKvMainWindow.h"
#include "OdError.h"

#include <QTest>
#include <QTimer>

CKvEditTest::CKvEditTest(const char *version)
{
    useVersion(version);
}

void CKvEditTest::useVersion(const char *version)
{
    if (m_desktop->activeDocument()) {
        enter("CLOSE Y");
    }
    CKvDrawingBuilder drawing(version);
    drawing.withDefaults()
        .currentLayer("0")
        .currentDimStyle("Standard")
        .measurement(1)
        .header("LTSCALE", 40, 1.0);
    drawing.layer("WALLS").color(1);
    drawing.lineStyle("FENCE").description("Fence").dashes({ 4, -1 });
    drawing.textStyle("NOTES").font("txt");
    drawing.dimStyle("OFFICE");
    drawing.block("DOOR").line();
    drawing.block("_DOT").line();
    drawing.modelSpace().line("WALLS");
    // A file that is open already would only be shown again.
    const QString file = path((std::string(version) + ".dxf").c_str());
    drawing.saveTo(file);
    m_before = contentOf(file);
    open(file);
}

bool CKvEditTest::has(CKvRecordKind kind, const char *name)
{
    return openTable(*m_desktop->activeDocument(), kind)->has(OdString(name));
}

QByteArray CKvEditTest::saved()
{
    m_desktop->activeDocument()->saveAs(path("out.dxf"));
    return contentOf(path("out.dxf"));
}

std::string CKvEditTest::failureOf(const char *line)
{
    try {
        enter(line);
    } catch (const OdError &error) {
        return error.what();
    }
    return {};
}

void CKvEditTest::enterAndBreakOff(const char *line)
{
    QTimer::singleShot(
        0, &window(), [this] { QTest::keyClick(window().panel().edit(), Qt::Key_Escape); });
    enter(line);
}
