// SPDX-License-Identifier: MIT
// Writes a picture of each dialog, light and dark, into the folder that is given.
#include "CKvContractClasses.h"
#include "CKvGatheringPass.h"
#include "CKvLayerPluginImpl.h"
#include "CKvMissingStandardsFileDlg.h"
#include "CKvNoDwgCategoriesSelectedDlg.h"
#include "CKvNoStandardsFileDlg.h"
#include "CKvStandaloneServices.h"
#include "CKvStandardViolationMessage.h"
#include "CKvStandardsFiles.h"
#include "CKvTestDocument.h"
#include "CKvVerfiyCompleteMessage.h"
#include "CKvVerifyStandards.h"
#include "OdStaticRxObject.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPushButton>

#include <cstdio>

namespace
{

QPalette darkPalette()
{
    QPalette palette(QColor(0x2b, 0x2d, 0x31));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
    palette.setColor(QPalette::AlternateBase, QColor(0x2b, 0x2d, 0x31));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(0x26, 0x28, 0x2b));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xca));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role :
         { QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText }) {
        palette.setColor(role, QColor(0xdf, 0xe1, 0xe5));
        palette.setColor(QPalette::Disabled, role, QColor(0x7a, 0x7e, 0x85));
    }
    return palette;
}

class CKvScreenshots
{
public:
    CKvScreenshots(const QString &folder, const QString &suffix)
        : m_folder(folder)
        , m_suffix(suffix)
    {
    }

    void takeAll();
    bool isComplete() const { return m_isComplete; }

private:
    static void settle()
    {
        for (int turn = 0; turn < 5; ++turn) {
            QCoreApplication::processEvents();
        }
    }
    void take(QWidget &window, const char *name);
    void takeVerification();
    template <class Dialog> void takeMessage(const char *name)
    {
        Dialog dialog(nullptr);
        dialog.show();
        take(dialog, name);
    }

    QDir m_folder;
    QString m_suffix;
    bool m_isComplete = true;
};

void CKvScreenshots::take(QWidget &window, const char *name)
{
    settle();
    const QString file = QString::fromLatin1(name) + m_suffix + QStringLiteral(".png");
    if (!window.grab().save(m_folder.filePath(file))) {
        std::fprintf(stderr, "%s can't be written\n", qPrintable(m_folder.filePath(file)));
        m_isComplete = false;
    }
}

/// The ground floor of the samples against its office standard.
void CKvScreenshots::takeVerification()
{
    const CKvTestDocument document({ QStringLiteral(KV_SAMPLES_FOLDER "/floor-plan.dxf"),
                                     QStringLiteral(KV_SAMPLES_FOLDER "/office-standard.dxf") });
    CKvStandardsFiles files;
    files.load(*document.GetKvDatabase(), *GetKvSystemServices());
    OdStaticRxObject<CKvLayerPluginImpl> plugin;
    CKvGatheringRequest request;
    request.drawing = OdDbDatabasePtr(document.GetKvDatabase());
    request.standardsNames = files.names();
    request.standardsPaths = files.paths();
    CKvGatheringPass pass;
    pass.run({ CKvStdsPluginsPtr(&plugin) }, request);
    OdArray<CKvStdsViolation> violations;
    for (const CKvStdsViolation &violation : pass.violations()) {
        violations.append(violation);
    }

    CKvVerifyStandards dialog(nullptr);
    dialog.setViolations(violations);
    dialog.setSkipSummary(true);
    dialog.show();
    settle();
    auto *next = dialog.findChild<QPushButton *>(QStringLiteral("NextIssueButton"));
    for (int i = 0; i < 4; ++i) {
        next->click();
    }
    take(dialog, "verify");
    for (int i = 0; i < 3; ++i) {
        next->click();
    }
    take(dialog, "verify-ignored");
    next->click();
    take(dialog, "verify-between-walks");
}

void CKvScreenshots::takeAll()
{
    takeVerification();
    takeMessage<CKvMissingStandardsFileDlg>("missing-file");
    takeMessage<CKvNoStandardsFileDlg>("no-file");
    takeMessage<CKvNoDwgCategoriesSelectedDlg>("no-categories");
    takeMessage<CKvStandardViolationMessage>("violation-message");
    CKvVerfiyCompleteMessage summary(nullptr);
    summary.setAutoFixCount(0);
    summary.setIgnoredCount(2);
    summary.setViolationCount(8);
    summary.setManualFixCount(5);
    summary.show();
    take(summary, "summary");
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: kv_screenshots FOLDER\n", stderr);
        return 2;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    const CKvContractClasses classes;
    CKvStandaloneServices services;
    services.standardsSettings()->setShowIgnored(true);
    const QString folder = QFile::decodeName(argv[1]);

    CKvScreenshots light(folder, QString());
    light.takeAll();
    QApplication::setPalette(darkPalette());
    CKvScreenshots dark(folder, QStringLiteral("-dark"));
    dark.takeAll();
    return light.isComplete() && dark.isComplete() ? 0 : 1;
}
