// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include <QDir>
#include <QFile>

#include <vector>

namespace
{

/// A folder below tests/golden, as "layers/case-in-words".
std::vector<std::string> caseFolders()
{
    std::vector<std::string> cases;
    const QDir golden(QStringLiteral(KV_GOLDEN_FOLDER));
    for (const QString &category :
         golden.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QDir folder(golden.filePath(category));
        for (const QString &name :
             folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
            cases.push_back(category.toStdString() + '/' + name.toStdString());
        }
    }
    return cases;
}

/// "layers/case-in-words" as LayersCaseInWords.
std::string testName(const ::testing::TestParamInfo<std::string> &info)
{
    std::string name;
    bool isWordBegin = true;
    for (const char character : info.param) {
        if (character == '-' || character == '/') {
            isWordBegin = true;
            continue;
        }
        name += isWordBegin && character >= 'a' && character <= 'z' ? char(character - 'a' + 'A')
                                                                    : character;
        isWordBegin = false;
    }
    return name;
}

/// Each case is checked for the category that its folder stands for, or for all, and, with what
/// fixed.expected.dxf says, repaired: the drawing stays as it is where there is no such file.
class Golden : public CKvBatchTest, public ::testing::WithParamInterface<std::string>
{
protected:
    QDir caseFolder() const
    {
        return QDir(QStringLiteral(KV_GOLDEN_FOLDER "/") + QString::fromStdString(GetParam()));
    }
    /// Empty for all.
    static QString category()
    {
        const QString folder = QString::fromStdString(GetParam()).section(QLatin1Char('/'), 0, 0);
        return folder == QLatin1String("all") ? QString() : folder;
    }
    QByteArray reference(const QString &name) const
    {
        QFile file(caseFolder().filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// Compares with the reference; what differs stays beside it, for update.sh.
    void
    expectReference(const QByteArray &found, const QString &name, const QString &foundName) const
    {
        const QString foundPath = caseFolder().filePath(foundName);
        const QByteArray expected = reference(name);
        EXPECT_EQ(found.toStdString(), expected.toStdString()) << "see " << foundPath.toStdString();
        if (found == expected) {
            QFile::remove(foundPath);
            return;
        }
        QFile file(foundPath);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << foundPath.toStdString();
        file.write(found);
    }
    /// The report without what differs from machine to machine and from version to version.
    QByteArray normalised(const CKvBatchRun &run) const
    {
        QByteArray report = QByteArray::fromStdString(run.output);
        report.replace(path(QString()).toUtf8(), "FOLDER");
        report.replace("\"version\": \"" KV_TEST_VERSION "\"", "\"version\": \"VERSION\"");
        return report;
    }
};

} // namespace

TEST_P(Golden, IsCheckedAndRepairedAsExpected)
{
    ASSERT_FALSE(reference(QStringLiteral("drawing.dxf")).isEmpty());
    for (const QString &name : caseFolder().entryList(QDir::Files)) {
        write(name, reference(name));
    }
    QStringList options { QStringLiteral("drawing.dxf"),
                          QStringLiteral("-s"),
                          QStringLiteral("standards.dxf"),
                          QStringLiteral("-f"),
                          QStringLiteral("json") };
    if (!category().isEmpty()) {
        options << QStringLiteral("--only") << category();
    }
    QStringList fix =
        QStringList { QStringLiteral("fix"), QStringLiteral("-o"), QStringLiteral("fixed") }
        + options;
    if (exists(QStringLiteral("map.csv"))) {
        fix << QStringLiteral("--map") << QStringLiteral("map.csv");
    }

    const CKvBatchRun checked = run(QStringList { QStringLiteral("check") } + options);
    const CKvBatchRun repaired = run(fix);

    EXPECT_LE(checked.status, 1) << ::testing::PrintToString(checked);
    EXPECT_LE(repaired.status, 1) << ::testing::PrintToString(repaired);
    expectReference(
        normalised(checked), QStringLiteral("expected.json"), QStringLiteral("expected.out.json"));
    const QByteArray fixed = bytes(QStringLiteral("fixed/drawing.dxf"));
    if (fixed != reference(QStringLiteral("drawing.dxf"))
        || caseFolder().exists(QStringLiteral("fixed.expected.dxf"))) {
        expectReference(
            fixed, QStringLiteral("fixed.expected.dxf"), QStringLiteral("fixed.out.dxf"));
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, Golden, ::testing::ValuesIn(caseFolders()), testName);

TEST(GoldenCases, AreThere)
{
    EXPECT_FALSE(caseFolders().empty());
}
