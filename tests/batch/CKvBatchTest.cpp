// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <memory>

namespace
{

/// A process that meets obstacles.
class CKvHinderedProcess : public QProcess
{
public:
    explicit CKvHinderedProcess(const CKvRunObstacles &obstacles)
        : m_obstacles(obstacles)
    {
    }

protected:
    /// Between the fork and the start of the program.
    void setupChildProcess() override
    {
        if (m_obstacles.largestFile >= 0) {
            const rlim_t most = rlim_t(m_obstacles.largestFile);
            const rlimit limit = { most, most };
            setrlimit(RLIMIT_FSIZE, &limit);
            // Else the signal would end the program, where a full disk only refuses.
            std::signal(SIGXFSZ, SIG_IGN);
        }
        int ends[2] = { -1, -1 };
        if (m_obstacles.output == CKvRunObstacles::Output::ReaderGone && pipe(ends) == 0) {
            dup2(ends[1], STDOUT_FILENO);
            ::close(ends[0]);
            ::close(ends[1]);
        }
        constexpr uid_t kNobody = 65534;
        const bool isRestricted = !m_obstacles.isUnprivileged || geteuid() != 0
            || (setgid(kNobody) == 0 && setuid(kNobody) == 0);
        if (!isRestricted) {
            _exit(99);
        }
    }

private:
    CKvRunObstacles m_obstacles;
};

/// QProcess wants one.
void requireApplication()
{
    static int s_count = 1;
    static char s_name[] = "tests_batch";
    static char *s_arguments[] = { s_name, nullptr };
    static const std::unique_ptr<QCoreApplication> s_application(
        QCoreApplication::instance() ? nullptr : new QCoreApplication(s_count, s_arguments));
}

} // namespace

void PrintTo(const CKvBatchRun &run, std::ostream *out)
{
    *out << "status " << run.status << "\n--- output\n"
         << run.output << "--- errors\n"
         << run.errors << "---";
}

CKvBatchRun CKvBatchTest::run(const QStringList &arguments, const QByteArray &input) const
{
    requireApplication();
    CKvHinderedProcess program(m_obstacles);
    if (m_obstacles.output == CKvRunObstacles::Output::FullDisk) {
        program.setStandardOutputFile(QStringLiteral("/dev/full"));
    }
    QStringList environment = QProcess::systemEnvironment().filter(
        QRegularExpression(QStringLiteral("^(?!NO_COLOR=|TERM=)")));
    program.setEnvironment(environment + m_environment);
    program.setWorkingDirectory(m_folder.path());
    program.start(QStringLiteral(KV_BATCH_PROGRAM), arguments);
    program.write(input);
    program.closeWriteChannel();
    CKvBatchRun result;
    if (!program.waitForFinished(120000)) {
        ADD_FAILURE() << "The program does not end: "
                      << arguments.join(QLatin1Char(' ')).toStdString();
        program.kill();
        program.waitForFinished();
        return result;
    }
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    result.status = program.exitCode();
    result.output = program.readAllStandardOutput().toStdString();
    result.errors = program.readAllStandardError().toStdString();
    return result;
}

void CKvBatchTest::setPermissions(const QString &name, QFileDevice::Permissions permissions) const
{
    ASSERT_TRUE(QFile::setPermissions(path(name), permissions)) << path(name).toStdString();
}

bool CKvBatchTest::exists(const QString &name) const
{
    return QFileInfo::exists(path(name));
}

QByteArray CKvBatchTest::bytes(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void CKvBatchTest::write(const QString &name, const QByteArray &content) const
{
    QDir().mkpath(QFileInfo(path(name)).absolutePath());
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path(name).toStdString();
    ASSERT_EQ(file.write(content), content.size());
}

void CKvBatchTest::save(const QString &name, const CKvDrawingBuilder &drawing) const
{
    write(name, drawing.toBytes());
}

std::string CKvBatchTest::files(const QString &folder) const
{
    const QDir root(path(folder));
    QStringList found;
    QDirIterator walk(root.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        found << root.relativeFilePath(walk.next());
    }
    found.sort();
    return found.join(QLatin1Char(' ')).toStdString();
}

CKvDrawingBuilder CKvBatchTest::officeStandards()
{
    CKvDrawingBuilder standards;
    standards.withDefaults();
    standards.layer("WALLS").color(5).lineWeight(50);
    standards.layer("DOORS").color(3);
    return standards;
}

CKvDrawingBuilder CKvBatchTest::cleanDrawing()
{
    return officeStandards();
}

CKvDrawingBuilder CKvBatchTest::redWalls()
{
    CKvDrawingBuilder drawing;
    drawing.withDefaults();
    drawing.layer("WALLS").color(1).lineWeight(50);
    drawing.layer("DOORS").color(3);
    return drawing;
}

nlohmann::ordered_json CKvBatchTest::json(const CKvBatchRun &run)
{
    return nlohmann::ordered_json::parse(run.output);
}

nlohmann::ordered_json CKvBatchTest::firstDrawing(const CKvBatchRun &run)
{
    return json(run).at("drawings").at(0);
}

std::string CKvBatchTest::violations(const CKvBatchRun &run)
{
    std::string lines;
    const auto drawing = firstDrawing(run);
    for (const auto &violation : drawing.at("violations")) {
        lines += violation.at("rule").get<std::string>() + " "
            + violation.at("name").get<std::string>() + "\n";
    }
    return lines;
}
