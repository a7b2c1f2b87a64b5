// SPDX-License-Identifier: MIT
#include "CKvContractClasses.h"
#include "CKvDrawingFile.h"
#include "CKvGatheringPass.h"
#include "CKvLayerPluginImpl.h"
#include "CKvStandaloneServices.h"
#include "CKvStandardsFiles.h"
#include "CKvTestDocument.h"
#include "CKvUtilsBase.h"
#include "CKvVerifyStandards.h"
#include "OdStaticRxObject.h"
#include "clickLabelled.h"
#include "unifiedDiff.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include <gmock/gmock.h>

#include <string>
#include <vector>

using testing::ElementsAre;

namespace
{

QString samplePath(const char *name)
{
    return QStringLiteral(KV_SAMPLES_FOLDER "/") + QString::fromLatin1(name);
}

QByteArray readSample(const char *name)
{
    QFile file(samplePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// The ground floor of a house, checked against its office standard by the layer plug-in.
class LayerSession : public testing::Test
{
protected:
    CKvContractClasses m_classes;
    CKvStandaloneServices m_services;
    QByteArray m_bytes = readSample("floor-plan.dxf");
    CKvTestDocument m_document { { samplePath("floor-plan.dxf"),
                                   samplePath("office-standard.dxf") } };
    OdStaticRxObject<CKvLayerPluginImpl> m_plugin;
    CKvVerifyStandards m_dialog { nullptr };

    OdDbDatabasePtr drawing() const { return OdDbDatabasePtr(m_document.GetKvDatabase()); }

    OdArray<CKvStdsViolation> gather(const OdDbDatabasePtr &drawing)
    {
        CKvStandardsFiles files;
        files.load(*drawing, m_services);
        CKvGatheringRequest request;
        request.drawing = drawing;
        request.standardsNames = files.names();
        request.standardsPaths = files.paths();
        CKvGatheringPass pass;
        pass.run({ CKvStdsPluginsPtr(&m_plugin) }, request);
        OdArray<CKvStdsViolation> list;
        for (const CKvStdsViolation &violation : pass.violations()) {
            list.append(violation);
        }
        return list;
    }
    /// "A-WALL A-GLAZ", with the user behind an ignored one: "A-DEMO(h.brandt)".
    std::string violationNames(const OdDbDatabasePtr &checked)
    {
        std::string text;
        const OdArray<CKvStdsViolation> list = gather(checked);
        for (const CKvStdsViolation &violation : list) {
            text +=
                (text.empty() ? "" : " ") + violation.error->objectName().toQString().toStdString();
            if (violation.ignored) {
                text += '(' + violation.ignoredBy.toQString().toStdString() + ')';
            }
        }
        return text;
    }
    void open()
    {
        m_dialog.setViolations(gather(drawing()));
        m_dialog.show();
        settle();
    }
    static void settle()
    {
        for (int turn = 0; turn < 5; ++turn) {
            QCoreApplication::processEvents();
        }
    }
    void click(const char *button)
    {
        clickLabelled(*m_dialog.findChild<QAbstractButton *>(QString::fromLatin1(button)));
        settle();
    }
    std::string shown() const
    {
        return m_dialog.findChild<QLabel *>(QStringLiteral("ObjectNameLabel"))
            ->text()
            .toStdString();
    }
    std::vector<std::string> preview() const
    {
        const auto *table =
            m_dialog.findChild<QTableWidget *>(QStringLiteral("PreviewChangesTableWidget"));
        std::vector<std::string> rows;
        rows.reserve(std::size_t(table->rowCount()));
        for (int row = 0; row < table->rowCount(); ++row) {
            rows.push_back(table->item(row, 0)->text().toStdString() + ": "
                           + table->item(row, 1)->text().toStdString() + " -> "
                           + table->item(row, 2)->text().toStdString());
        }
        return rows;
    }
    /// The lines that saving the drawing would change, with a sign in front.
    std::vector<std::string> changes() const
    {
        const QByteArray saved = CKvDrawingFile::toBytes(*drawing());
        const QByteArray diff = unifiedDiff({ m_bytes.constData(), std::size_t(m_bytes.size()) },
                                            { saved.constData(), std::size_t(saved.size()) },
                                            QStringLiteral("floor-plan.dxf"));
        std::vector<std::string> lines;
        for (const QByteArray &line : diff.split('\n')) {
            const bool isHead = line.startsWith("---") || line.startsWith("+++");
            if (!isHead && (line.startsWith('-') || line.startsWith('+'))) {
                lines.push_back(line.left(1).toStdString() + line.mid(1).trimmed().toStdString());
            }
        }
        return lines;
    }
};

} // namespace

TEST_F(LayerSession, ItShowsWhatARepairWouldChange)
{
    open();

    EXPECT_EQ(shown(), "A-WALL");
    EXPECT_THAT(preview(), ElementsAre("LineWeight: 0.35 mm -> 0.50 mm"));
}

TEST_F(LayerSession, TwoRepairsChangeTheirLinesInTheFileAndNothingElse)
{
    open();

    click("FixIssueButton");
    click("FixIssueButton");

    EXPECT_EQ(shown(), "A-ROOF-OVHD");
    EXPECT_THAT(changes(), ElementsAre("-35", "+50", "-5", "+4"));
}

TEST_F(LayerSession, WhatWasRepairedAndIgnoredIsFoundSoInTheSavedDrawing)
{
    const std::string before = violationNames(drawing());
    open();

    click("FixIssueButton");
    click("FixIssueButton");
    click("IgnoreViolationCheckBox");
    const OdDbDatabasePtr saved =
        CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing()), m_document.path());

    const std::string user = CKvUtilsBase::getUserName().toQString().toStdString();
    EXPECT_EQ(before,
              "A-WALL A-GLAZ A-ROOF-OVHD A-GRID A-ANNO-DIMS WALLS-OLD Layer1 A-DEMO(h.brandt)");
    EXPECT_EQ(violationNames(saved),
              "A-ROOF-OVHD(" + user + ") A-GRID A-ANNO-DIMS WALLS-OLD Layer1 A-DEMO(h.brandt)");
}

TEST_F(LayerSession, ALayerWithoutAStandardOffersAllOthersAndWaitsForAChoice)
{
    open();
    for (int i = 0; i < 5; ++i) {
        click("NextIssueButton");
    }

    const auto *fixes =
        m_dialog.findChild<QTableWidget *>(QStringLiteral("ReplaceWithTableWidget"));
    const auto *fix = m_dialog.findChild<QPushButton *>(QStringLiteral("FixIssueButton"));
    EXPECT_EQ(shown(), "WALLS-OLD");
    EXPECT_EQ(fixes->rowCount(), 15);
    EXPECT_FALSE(fix->isEnabled());
}

TEST_F(LayerSession, TheListOutlivesTheNextCheckOfThePlugin)
{
    open();
    click("NextIssueButton");

    m_plugin.clear();
    click("IgnoreViolationCheckBox");

    EXPECT_EQ(shown(), "A-GLAZ");
    EXPECT_EQ(m_dialog.findChild<QLabel *>(QStringLiteral("ProblemDescLabel"))->text(),
              QStringLiteral("  Layer properties are non-standard."));
}
