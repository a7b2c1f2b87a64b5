// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvUtilsBase.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace
{

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// The samples in a folder of its own, and programs that run on them.
class Road : public testing::Test
{
protected:
    Road()
    {
        for (const char *name : { "floor-plan.dxf", "office-standard.dxf" }) {
            EXPECT_TRUE(
                QFile::copy(text(KV_SAMPLES_FOLDER) + QLatin1Char('/') + text(name), path(name)));
        }
    }
    QString path(const char *name) const { return m_folder.filePath(text(name)); }
    void write(const char *name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    /// @param plan for the verify dialog.
    /// @return what the dialogs showed.
    QStringList drive(const QByteArray &script, const char *plan)
    {
        write("road.scr", script);
        QProcess desktop;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(text("KV_DIALOG_PLAN"), text(plan));
        environment.insert(text("QT_QPA_PLATFORM"), text("offscreen"));
        // That window system keeps its screen for good; the other tests look for leaks.
        environment.insert(text("ASAN_OPTIONS"), text("detect_leaks=0"));
        desktop.setProcessEnvironment(environment);
        desktop.setWorkingDirectory(m_folder.path());
        desktop.start(text(KV_DRIVEN_DESKTOP),
                      { text("--settings"),
                        path("settings.ini"),
                        text("--module"),
                        text(KV_MODULE_FILE),
                        text("--script"),
                        path("road.scr") });
        EXPECT_TRUE(desktop.waitForFinished(90000));
        EXPECT_EQ(desktop.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(desktop.exitCode(), 0) << desktop.readAllStandardError().toStdString();
        return QString::fromUtf8(desktop.readAllStandardOutput())
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    /// "Type name" of each violation as the batch tool reports it, with who ignores it.
    QStringList reported(const char *drawing)
    {
        QProcess tool;
        tool.start(text(KV_BATCH_PROGRAM),
                   { text("check"), text("--format"), text("json"), path(drawing) });
        EXPECT_TRUE(tool.waitForFinished(60000));
        const auto json = nlohmann::json::parse(tool.readAllStandardOutput().toStdString());
        QStringList violations;
        for (const auto &violation : json["drawings"][0]["violations"]) {
            const QString ignoredBy =
                QString::fromStdString(violation["ignoredBy"].get<std::string>());
            violations << QString(
                QString::fromStdString(violation["name"].get<std::string>())
                + (ignoredBy.isEmpty() ? QString() : QString(text(" ignored by ") + ignoredBy)));
        }
        violations.sort();
        return violations;
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(Road, ADrawingIsVerifiedRepairedStampedAndSaved)
{
    const QStringList shown = drive("OPEN floor-plan.dxf\n"
                                    "VERIFYSTANDARDS\n"
                                    "SAVEAS out.dxf\n"
                                    "QUIT\n",
                                    "fix,next,fix,fix,ignore");

    QByteArray saved = contentOf(path("out.dxf"));
    // The stamp bears the name of whoever runs the test.
    saved.replace("\n" + CKvUtilsBase::getUserName().toQString().toUtf8() + "\n", "\nUSER\n");
    const QString golden = text(KV_ROAD_FOLDER) + text("/verified.expected.dxf");
    const bool isSame = QFile::exists(golden) && contentOf(golden) == saved;
    if (!isSame) {
        QFile out(text(KV_ROAD_FOLDER) + text("/verified.out.dxf"));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(saved);
    }
    EXPECT_TRUE(isSame) << "see verified.out.dxf beside the reference";
    EXPECT_TRUE(shown.last().startsWith(text("summary ")))
        << shown.join(QLatin1Char('\n')).toStdString();
    EXPECT_FALSE(shown.filter(text("unexpected")).size() + shown.filter(text("failure")).size())
        << shown.join(QLatin1Char('\n')).toStdString();
    EXPECT_EQ(shown.filter(text(": fix")).size(), 3);
    EXPECT_EQ(shown.filter(text(": ignore")).size(), 1);
}

TEST_F(Road, UndoTakesAWholeVerificationBack)
{
    drive("OPEN floor-plan.dxf\n"
          "VERIFYSTANDARDS\n"
          "UNDO 1\n"
          "SAVEAS out.dxf\n"
          "QUIT\n",
          "fix,fix,fix,ignore");

    EXPECT_EQ(contentOf(path("out.dxf")), contentOf(path("floor-plan.dxf")));
}

TEST_F(Road, TheDesktopShowsTheViolationsThatTheBatchToolReports)
{
    QSettings(path("settings.ini"), QSettings::IniFormat)
        .setValue(text("standards/showIgnored"), true);

    const QRegularExpression violation(text("^[^:]+: (.*): next(.*)$"));
    QStringList shown;
    for (const QString &line : drive("OPEN floor-plan.dxf\nVERIFYSTANDARDS\nQUIT\n", "")) {
        const QRegularExpressionMatch match = violation.match(line);
        if (match.hasMatch()) {
            shown << QString(match.captured(1) + match.captured(2));
        }
    }
    shown.sort();

    EXPECT_EQ(shown.join(QLatin1Char('\n')).toStdString(),
              reported("floor-plan.dxf").join(QLatin1Char('\n')).toStdString());
}

TEST_F(Road, AnEditThatBreaksAStandardIsToldAndVerifiedAlone)
{
    const QStringList shown = drive("OPEN floor-plan.dxf\n"
                                    "LAYER COLOR A-DOOR 5\n",
                                    "quit");

    EXPECT_EQ(
        shown,
        QStringList({ text("Standard violation: the previous operation created an object that "
                           "is not in accordance with standards."),
                      text("Layer: A-DOOR: next"),
                      text("summary 1 0 0 0") }));
}

TEST_F(Road, WithTheVariableOffAnEditIsNotTold)
{
    const QStringList shown = drive("SETVAR STANDARDSVIOLATION 0\n"
                                    "OPEN floor-plan.dxf\n"
                                    "LAYER COLOR A-DOOR 5\n"
                                    "QUIT Y\n",
                                    "");

    EXPECT_EQ(shown, QStringList());
}
