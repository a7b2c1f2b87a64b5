// SPDX-License-Identifier: MIT
#include "CKvTextCodec.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace
{

struct RoundTripCase {
    const char *name;
    const char *version;
    const char *codePage;
};

class TextCodecRoundTrip : public testing::TestWithParam<RoundTripCase>
{
protected:
    static CKvTextCodec codec()
    {
        return CKvTextCodec::forDrawing(GetParam().version, GetParam().codePage);
    }
    // Sixteen numbers a line, so that a failure can be read.
    static std::string unitsOf(const QString &text)
    {
        QStringList units;
        for (const QChar unit : text) {
            units.append(QString::number(unit.unicode(), 16));
        }
        return units.join(QLatin1Char(' ')).toStdString();
    }
};

const RoundTripCase kRoundTripCases[] = {
    { "Utf8", "AC1021", "" },
    { "Ansi874", "AC1018", "ANSI_874" },
    { "Ansi932", "AC1018", "ANSI_932" },
    { "Ansi936", "AC1018", "ANSI_936" },
    { "Ansi949", "AC1018", "ANSI_949" },
    { "Ansi950", "AC1018", "ANSI_950" },
    { "Ansi1250", "AC1018", "ANSI_1250" },
    { "Ansi1251", "AC1018", "ANSI_1251" },
    { "Ansi1252", "AC1018", "ANSI_1252" },
    { "Ansi1253", "AC1018", "ANSI_1253" },
    { "Ansi1254", "AC1018", "ANSI_1254" },
    { "Ansi1255", "AC1018", "ANSI_1255" },
    { "Ansi1256", "AC1018", "ANSI_1256" },
    { "Ansi1257", "AC1018", "ANSI_1257" },
    { "Ansi1258", "AC1018", "ANSI_1258" },
    { "Ansi1361", "AC1018", "ANSI_1361" },
    { "Dos850", "AC1018", "dos850" },
    { "Dos864", "AC1018", "dos864" },
    { "MacRoman", "AC1018", "MAC-ROMAN" },
};

bool isHalfOfAPair(uint codePoint)
{
    return codePoint >= 0xd800 && codePoint <= 0xdfff;
}

QString randomText(std::mt19937 &random)
{
    // What escapes are made of comes often, so that texts nearly or truly look like them.
    static const QString kMarks = QStringLiteral("\\\\\\UUM++00E41593FA5C% \n\u00e4\u65e5\ud55c");
    QString text;
    const int length = int(random() % 24);
    for (int i = 0; i < length; ++i) {
        const uint codePoint = random() % 0x11000;
        if (random() % 4 > 0 || isHalfOfAPair(codePoint)) {
            text += kMarks.at(int(random() % uint(kMarks.size())));
        } else {
            text += QString::fromUcs4(&codePoint, 1);
        }
    }
    return text;
}

} // namespace

TEST_P(TextCodecRoundTrip, EveryCharacterComesBackAloneAndBesideItsNeighbours)
{
    const CKvTextCodec tested = codec();
    QString neighbours;
    for (uint codePoint = 0; codePoint < 0x10000; ++codePoint) {
        if (isHalfOfAPair(codePoint)) {
            continue;
        }
        const QString character = QString::fromUcs4(&codePoint, 1);
        neighbours += character;

        ASSERT_EQ(unitsOf(tested.decode(tested.encode(character))), unitsOf(character));
        if (neighbours.size() == 64) {
            ASSERT_EQ(unitsOf(tested.decode(tested.encode(neighbours))), unitsOf(neighbours));
            neighbours.clear();
        }
    }
}

TEST_P(TextCodecRoundTrip, TextsFullOfEscapesComeBack)
{
    const CKvTextCodec tested = codec();
    std::mt19937 random(20240517);
    for (int i = 0; i < 20000; ++i) {
        const QString text = randomText(random);

        const std::string bytes = tested.encode(text);

        ASSERT_EQ(unitsOf(tested.decode(bytes)), unitsOf(text)) << bytes;
        ASSERT_EQ(bytes.find_first_of(std::string("\n\r\0", 3)), std::string::npos) << bytes;
    }
}

TEST_P(TextCodecRoundTrip, NoBytesAtAllMakeTheReaderFail)
{
    const CKvTextCodec tested = codec();
    std::mt19937 random(7);
    for (int i = 0; i < 20000; ++i) {
        std::string bytes;
        for (uint length = random() % 24; length > 0; --length) {
            bytes += char(random() & 0xff);
        }

        const QString text = tested.decode(bytes);

        // No character needs more than four units, and none vanishes without a trace.
        ASSERT_LE(text.size(), int(bytes.size()) * 4);
        ASSERT_EQ(text.isEmpty(), bytes.empty());
    }
}

INSTANTIATE_TEST_SUITE_P(In,
                         TextCodecRoundTrip,
                         testing::ValuesIn(kRoundTripCases),
                         [](const auto &row) { return std::string(row.param.name); });

TEST(TextCodec, HalvesOfSurrogatePairsComeBackToo)
{
    const QString halves = QString(QChar(0xd83d)) + QLatin1Char('a') + QChar(0xde00);

    EXPECT_EQ(CKvTextCodec().encode(halves), "\\U+D83Da\\U+DE00");
    EXPECT_TRUE(CKvTextCodec().decode(CKvTextCodec().encode(halves)) == halves);
}
