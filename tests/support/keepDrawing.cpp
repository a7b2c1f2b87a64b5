// SPDX-License-Identifier: MIT
#include "keepDrawing.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

void keepDrawing(const QByteArray &bytes)
{
    const QString folder = qEnvironmentVariable("KV_TEST_KEEP");
    const testing::TestInfo *test = testing::UnitTest::GetInstance()->current_test_info();
    if (folder.isEmpty() || !test) {
        return;
    }
    static const testing::TestInfo *s_test = nullptr;
    static int s_number = 0;
    s_number = test == s_test ? s_number + 1 : 1;
    s_test = test;

    // Names of parameterized tests have slashes.
    QString name = QStringLiteral("%1.%2-%3.dxf")
                       .arg(QString::fromUtf8(test->test_suite_name()),
                            QString::fromUtf8(test->name()),
                            QString::number(s_number));
    name.replace(QLatin1Char('/'), QLatin1Char('_'));
    QDir().mkpath(folder);
    QFile file(QDir(folder).filePath(name));
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    EXPECT_TRUE(isWritten) << "can't keep " << name.toStdString();
}
