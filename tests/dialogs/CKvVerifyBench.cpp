// SPDX-License-Identifier: MIT
#include "CKvVerifyBench.h"

#include "CKvForeignMemory.h"
#include "CKvTestApplication.h"
#include "OdDbDictionary.h"
#include "OdDbLayerTable.h"
#include "OdDbXrecord.h"
#include "clickLabelled.h"
#include "standardsList.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <utility>

namespace
{

CKvDrawingBuilder withLayers(CKvDrawingBuilder drawing, const QStringList &layers)
{
    for (const QString &layer : layers) {
        drawing.layer(layer);
    }
    return drawing;
}

OdDbObjectId layerId(const OdDbDatabase &database, const QString &name)
{
    const OdDbLayerTablePtr layers(database.getLayerTableId().safeOpenObject(OdDb::kForRead));
    return layers->getAt(OdString(name));
}

CKvStdsFixPtr candidate(const QString &name, const char *file)
{
    CKvStdsFixPtr fix = CKvStdsFix::createObject();
    fix->setName(CKvString(name));
    fix->setStandardsFile(CKvString(file));
    return fix;
}

std::string summaryText(const QDialog &summary)
{
    std::string text;
    for (const char *name : { "num_violations", "num_autoFix", "num_manualFix", "num_Ignored" }) {
        const auto *label = summary.findChild<QLabel *>(QString::fromLatin1(name));
        text += (text.empty() ? "" : ", ") + label->text().toStdString();
    }
    return text;
}

std::string headersText(const QTableWidget &table)
{
    std::string text;
    for (int column = 0; column < table.columnCount(); ++column) {
        const QTableWidgetItem *header = table.horizontalHeaderItem(column);
        text += (column ? " | " : "") + header->text().toStdString();
        if (header->toolTip() != header->text()) {
            text += " (" + header->toolTip().toStdString() + ')';
        }
    }
    return text + '\n';
}

} // namespace

CKvVerifyBench::CKvVerifyBench(const QStringList &layers, CKvDrawingBuilder drawing)
    : m_document(withLayers(std::move(drawing), layers))
    , m_plugin("layers", m_calls)
{
    m_script.answer(QStringLiteral("CKvVerfiyCompleteMessage"), [this](QDialog &summary) {
        m_summaries.push_back(summaryText(summary));
        auto *box = summary.findChild<QDialogButtonBox *>();
        QTest::mouseClick(box->button(QDialogButtonBox::Close), Qt::LeftButton);
    });
    for (const QString &layer : layers) {
        CKvStdsViolation violation;
        violation.error = CKvStdsError::createObject();
        violation.error->setObjectId(layerId(*m_document.GetKvDatabase(), layer));
        violation.error->setObjectType(CKvString("Layer"));
        violation.error->setObjectName(CKvString(layer));
        violation.error->setMessage(CKvString("Layer properties are non-standard."));
        violation.plugin = CKvStdsPluginsPtr(&m_plugin);
        violation.fixes.append(candidate(layer, "/std/office.dxf"));
        violation.fixes.append(candidate(QStringLiteral("OTHER"), "/std/second.dxf"));
        violation.recommendedFix = 0;
        m_violations.append(violation);
    }
}

CKvVerifyBench::~CKvVerifyBench()
{
    m_dialog.reset();
    EXPECT_EQ(CKvTestApplication::instance()->takeFailures(), std::vector<std::string>());
}

void CKvVerifyBench::setCandidates(unsigned index, const QStringList &names, int recommended)
{
    CKvStdsViolation &violation = m_violations[index];
    violation.fixes.clear();
    for (const QString &name : names) {
        violation.fixes.append(candidate(name, "/std/office.dxf"));
    }
    violation.recommendedFix = recommended;
}

void CKvVerifyBench::addStandardsFile(const char *path)
{
    appendToStandardsList(*m_document.GetKvDatabase(), CKvString(path));
}

void CKvVerifyBench::setIgnored(unsigned index, const char *user)
{
    m_violations[index].ignored = true;
    m_violations[index].ignoredBy = CKvString(user);
}

CKvVerifyStandards &CKvVerifyBench::dialog()
{
    if (!m_dialog) {
        m_dialog = std::make_unique<CKvVerifyStandards>(m_host.mainWindow());
        m_dialog->setViolations(m_violations);
    }
    return *m_dialog;
}

void CKvVerifyBench::show()
{
    dialog().show();
    settle();
}

void CKvVerifyBench::settle()
{
    // Whatever an event calls forth is due one turn later.
    for (int turn = 0; turn < 5; ++turn) {
        QCoreApplication::processEvents();
    }
}

void CKvVerifyBench::click(const char *button)
{
    clickLabelled(widget<QAbstractButton>(button));
    settle();
}

void CKvVerifyBench::clickCandidate(int row)
{
    QTableWidget &fixes = table("ReplaceWithTableWidget");
    const QRect cell = fixes.visualItemRect(fixes.item(row, 1));
    QTest::mouseClick(fixes.viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
    settle();
}

void CKvVerifyBench::press(const char *name, Qt::Key key)
{
    QTest::keyClick(&widget<QWidget>(name), key);
    settle();
}

std::string CKvVerifyBench::text(const char *label)
{
    return widget<QLabel>(label).text().toStdString();
}

bool CKvVerifyBench::isOn(const char *name)
{
    return widget<QWidget>(name).isEnabled();
}

std::string CKvVerifyBench::candidates()
{
    QTableWidget &fixes = table("ReplaceWithTableWidget");
    std::string text;
    for (int row = 0; row < fixes.rowCount(); ++row) {
        if (!fixes.item(row, 0)) {
            text += '\n';
            continue;
        }
        text += fixes.item(row, 1)->isSelected() ? ">" : " ";
        text += fixes.item(row, 0)->icon().isNull() ? "  " : "* ";
        text += fixes.item(row, 0)->text().toStdString() + fixes.item(row, 1)->text().toStdString()
            + " | " + fixes.item(row, 2)->text().toStdString() + '\n';
    }
    return text;
}

std::string CKvVerifyBench::preview()
{
    QTableWidget &rows = table("PreviewChangesTableWidget");
    std::string text;
    for (int row = 0; row < rows.rowCount(); ++row) {
        for (int column = 0; column < rows.columnCount(); ++column) {
            if (const QTableWidgetItem *item = rows.item(row, column)) {
                text += (column ? " | " : "") + item->text().toStdString();
            }
        }
        text += '\n';
    }
    return text;
}

std::string CKvVerifyBench::headers()
{
    return headersText(table("ReplaceWithTableWidget"))
        + headersText(table("PreviewChangesTableWidget"));
}

std::vector<std::string> CKvVerifyBench::takeRepairs()
{
    std::vector<std::string> repairs;
    for (const std::string &call : takeCalls()) {
        if (call.find("propertyDifferences") == std::string::npos) {
            repairs.push_back(call);
        }
    }
    return repairs;
}

std::vector<std::string> CKvVerifyBench::takeCalls()
{
    return std::exchange(m_calls, {});
}

std::vector<std::string> CKvVerifyBench::failuresOf(const std::function<void()> &action)
{
    // What is thrown passes through Qt, which loses some memory on that road.
    const CKvForeignMemory lostByQt;
    action();
    return CKvTestApplication::instance()->takeFailures();
}

std::string CKvVerifyBench::stampOf(const char *layer) const
{
    const OdDbObjectId id = layerId(*m_document.GetKvDatabase(), QString::fromLatin1(layer));
    const OdDbObjectPtr object = id.safeOpenObject(OdDb::kForRead);
    if (object->extensionDictionary().isNull()) {
        return "none";
    }
    const OdDbDictionaryPtr extension(object->extensionDictionary().safeOpenObject(OdDb::kForRead));
    const OdDbDictionaryPtr stamp(extension->getAt(OdString("AcStStandard"), OdDb::kForRead));
    const OdDbXrecordPtr record(stamp->getAt(OdString("AcStFlags"), OdDb::kForRead));
    std::string text;
    for (OdResBufPtr buffer = record->rbChain(); buffer; buffer = buffer->next()) {
        text += (text.empty() ? "" : " ") + std::to_string(buffer->restype()) + '='
            + (buffer->restype() == 300 ? buffer->getString().toQString().toStdString()
                                        : std::to_string(buffer->getInt32()));
    }
    return text;
}

QTableWidget &CKvVerifyBench::table(const char *name)
{
    return widget<QTableWidget>(name);
}
