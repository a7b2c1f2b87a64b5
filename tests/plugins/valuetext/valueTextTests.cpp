// SPDX-License-Identifier: MIT
#include "auditText.h"
#include "valueText.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

#include <limits>

namespace
{

std::string plain(const CKvString &text)
{
    return text.toQString().toStdString();
}

/// Translates every text by putting its context in front of it.
class CKvContextTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return QStringLiteral("<%1>").arg(QLatin1String(context)) + QLatin1String(sourceText);
    }
};

OdCmColor colorOf(OdCmColor::Method method)
{
    OdCmColor color;
    color.setMethod(method);
    return color;
}

} // namespace

TEST(IntegerText, ShowsTheNumberWithItsSign)
{
    EXPECT_EQ(plain(integerToText(0)), "0");
    EXPECT_EQ(plain(integerToText(-1)), "-1");
    EXPECT_EQ(plain(integerToText(65535)), "65535");
    EXPECT_EQ(plain(integerToText(std::numeric_limits<std::int32_t>::min())), "-2147483648");
}

TEST(RealText, KeepsOneDigitBehindThePointAndDropsTheZerosBehindIt)
{
    EXPECT_EQ(plain(realToText(0.0)), "0.0");
    EXPECT_EQ(plain(realToText(1.0)), "1.0");
    EXPECT_EQ(plain(realToText(2.5)), "2.5");
    EXPECT_EQ(plain(realToText(0.18)), "0.18");
    EXPECT_EQ(plain(realToText(100.0)), "100.0");
    EXPECT_EQ(plain(realToText(0.0625)), "0.0625");
    EXPECT_EQ(plain(realToText(-2.25)), "-2.25");
}

TEST(RealText, RoundsToFourDecimals)
{
    EXPECT_EQ(plain(realToText(1234.56789)), "1234.5679");
    EXPECT_EQ(plain(realToText(0.00001)), "0.0");
    EXPECT_EQ(plain(realToText(0.18000001)), "0.18");
    EXPECT_EQ(plain(realToText(0.1801)), "0.1801");
}

TEST(RealText, ASmallNegativeNumberKeepsItsSignWhenItRoundsToZero)
{
    EXPECT_EQ(plain(realToText(-0.00001)), "-0.0");
    EXPECT_EQ(plain(realToText(-0.0)), "-0.0");
}

TEST(RealText, AMillionIsTheFirstNumberWithAnExponent)
{
    EXPECT_EQ(plain(realToText(999999.0)), "999999.0");
    EXPECT_EQ(plain(realToText(999999.99999)), "1000000.0");
    EXPECT_EQ(plain(realToText(1000000.0)), "1.0000E+06");
    EXPECT_EQ(plain(realToText(-1234567.0)), "-1.2346E+06");
    EXPECT_EQ(plain(realToText(1e300)), "1.0000E+300");
}

TEST(RealText, WhatIsNoNumberIsToldAsSuch)
{
    EXPECT_EQ(plain(realToText(std::numeric_limits<double>::quiet_NaN())), "NAN");
    EXPECT_EQ(plain(realToText(std::numeric_limits<double>::infinity())), "INF");
}

TEST(BooleanText, IsTrueOrFalse)
{
    EXPECT_EQ(plain(booleanToText(true)), "true");
    EXPECT_EQ(plain(booleanToText(false)), "false");
}

TEST(StringText, IsTheTextItself)
{
    EXPECT_EQ(plain(stringToText(OdString("<> mm"))), "<> mm");
    EXPECT_EQ(plain(stringToText(OdString(" "))), " ");
    EXPECT_EQ(plain(stringToText(u"<> \u00b5m")), "<> \u00b5m");
}

TEST(StringText, AnEmptyTextShowsAsTwoQuotes)
{
    EXPECT_EQ(plain(stringToText(OdString())), "\"\"");
    EXPECT_EQ(plain(stringToText(u"")), "\"\"");
    EXPECT_EQ(plain(stringToText(nullptr)), "\"\"");
}

TEST(ColorText, NamesTheMethodTheIndexOrTheComponents)
{
    EXPECT_EQ(plain(colorToText(OdCmColor())), "ByLayer");
    EXPECT_EQ(plain(colorToText(OdCmColor::byIndex(256))), "ByLayer");
    EXPECT_EQ(plain(colorToText(OdCmColor::byIndex(0))), "ByBlock");
    EXPECT_EQ(plain(colorToText(colorOf(OdCmColor::Method::kForeground))), "Foreground");
    EXPECT_EQ(plain(colorToText(colorOf(OdCmColor::Method::kNone))), "None");
    EXPECT_EQ(plain(colorToText(OdCmColor::byIndex(1))), "red");
    EXPECT_EQ(plain(colorToText(OdCmColor::byIndex(8))), "8");
    EXPECT_EQ(plain(colorToText(OdCmColor::byColor(255, 128, 0, 30))), "ByColor r255:g128:b0");
}

TEST(ColorText, AnUnknownMethodShowsAsQuestionMarks)
{
    EXPECT_EQ(plain(colorToText(colorOf(OdCmColor::Method(99)))), "???");
}

TEST(ColorText, AllButByLayerByBlockAndIndexesIsTranslated)
{
    int argumentCount = 1;
    char program[] = "program";
    char *arguments[] = { program, nullptr };
    QCoreApplication application(argumentCount, arguments);
    CKvContextTranslator translator;
    QCoreApplication::installTranslator(&translator);

    EXPECT_EQ(plain(colorToText(OdCmColor())), "ByLayer");
    EXPECT_EQ(plain(colorToText(OdCmColor::byIndex(0))), "ByBlock");
    EXPECT_EQ(plain(colorToText(OdCmColor::byIndex(1))), "red");
    EXPECT_EQ(plain(colorToText(colorOf(OdCmColor::Method::kForeground))),
              "<CKvQtColorComboBoxBase>Foreground");
    EXPECT_EQ(plain(colorToText(colorOf(OdCmColor::Method::kNone))),
              "<CKvQtColorComboBoxBase>None");
    EXPECT_EQ(plain(colorToText(OdCmColor::byColor(1, 2, 3, 7))),
              "<CKvQtColorComboBoxBase>ByColor r1:g2:b3");
}

TEST(AnnotationTypeText, NamesWhatALeaderPointsTo)
{
    EXPECT_EQ(plain(annotationTypeToText(0)), "kMText");
    EXPECT_EQ(plain(annotationTypeToText(1)), "kFcf");
    EXPECT_EQ(plain(annotationTypeToText(2)), "kBlockRef");
    EXPECT_EQ(plain(annotationTypeToText(3)), "kNoAnno");
    EXPECT_EQ(plain(annotationTypeToText(4)), "???");
    EXPECT_EQ(plain(annotationTypeToText(-1)), "???");
}

TEST(RgbText, NamesTheThreeBytes)
{
    EXPECT_EQ(plain(rgbToText(0, 255, 7)), "r0:g255:b7");
}
