// SPDX-License-Identifier: MIT
#include "readLineTypeFile.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace
{

QString supportFile(const char *name)
{
    return QStringLiteral(KV_SUPPORT_FOLDER "/") + QLatin1String(name);
}

QStringList namesIn(const char *file)
{
    QFile source(supportFile(file));
    EXPECT_TRUE(source.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(source.readAll());
    const QRegularExpression heading(QStringLiteral("^\\*([^,]+),"),
                                     QRegularExpression::MultilineOption);
    QStringList names;
    QRegularExpressionMatchIterator match = heading.globalMatch(text);
    while (match.hasNext()) {
        names.append(match.next().captured(1));
    }
    return names;
}

QStringList expectedNames()
{
    QStringList names;
    for (const char *base :
         { "BORDER", "CENTER", "DASHDOT", "DASHED", "DIVIDE", "DOT", "HIDDEN", "PHANTOM" }) {
        const QString name = QLatin1String(base);
        names << name << name + QStringLiteral("2") << name + QStringLiteral("X2");
    }
    for (int number = 2; number <= 15; ++number) {
        names << QStringLiteral("ACAD_ISO%1W100").arg(number, 2, 10, QLatin1Char('0'));
    }
    return names;
}

double patternLength(const CKvLineTypeDefinition &definition)
{
    double length = 0;
    for (const CKvLineTypeDefinition::Element &element : definition.elements) {
        length += std::abs(element.length);
    }
    return length;
}

} // namespace

TEST(SupportLineTypes, BothFilesHoldTheUsualStylesAndNoOthers)
{
    const std::string expected = expectedNames().join(QLatin1Char(' ')).toStdString();

    EXPECT_EQ(namesIn("mm.lin").join(QLatin1Char(' ')).toStdString(), expected);
    EXPECT_EQ(namesIn("inch.lin").join(QLatin1Char(' ')).toStdString(), expected);
}

TEST(SupportLineTypes, MillimetresAre254TimesTheInchesInEveryElement)
{
    for (const QString &name : expectedNames()) {
        const CKvLineTypeDefinition mm = readLineTypeFile(supportFile("mm.lin"), name);
        const CKvLineTypeDefinition inch = readLineTypeFile(supportFile("inch.lin"), name);

        EXPECT_EQ(mm.description.toStdString(), inch.description.toStdString());
        ASSERT_EQ(mm.elements.size(), inch.elements.size()) << name.toStdString();
        for (std::size_t i = 0; i < mm.elements.size(); ++i) {
            EXPECT_NEAR(mm.elements[i].length, inch.elements[i].length * 25.4, 1e-9)
                << name.toStdString();
        }
    }
}

TEST(SupportLineTypes, HaveTheLengthsThatDrawingsShow)
{
    const auto lengthMm = [](const char *name) {
        return patternLength(readLineTypeFile(supportFile("mm.lin"), QLatin1String(name)));
    };

    EXPECT_NEAR(lengthMm("CENTER"), 50.8, 1e-9);
    EXPECT_NEAR(lengthMm("CENTER2"), 28.575, 1e-9);
    EXPECT_NEAR(lengthMm("DASHED"), 19.05, 1e-9);
    EXPECT_NEAR(lengthMm("HIDDEN2"), 4.7625, 1e-9);
    EXPECT_NEAR(lengthMm("PHANTOMX2"), 127, 1e-9);
    EXPECT_NEAR(lengthMm("BORDER"), 44.45, 1e-9);
    EXPECT_NEAR(lengthMm("DOT"), 6.35, 1e-9);
    EXPECT_NEAR(lengthMm("ACAD_ISO02W100"), 15, 1e-9);
    EXPECT_NEAR(lengthMm("ACAD_ISO04W100"), 30, 1e-9);
}
