// SPDX-License-Identifier: MIT
#include "corpusFiles.h"
#include "damage.h"
#include "outcome.h"

#include <gtest/gtest.h>

#include <iostream>
#include <map>
#include <string>

namespace
{

// Larger ones show nothing that these don't, and take long under the sanitizers.
constexpr int kMostBytes = 60000;

class Damage : public testing::Test
{
protected:
    void SetUp() override
    {
        if (corpusFiles().empty()) {
            GTEST_SKIP() << missingCorpusFolders().toStdString();
        }
    }

    /// Counts an outcome for the table that TearDown prints, and looks for what may never happen.
    void note(const CKvCorpusFile &file, const std::string &damage, const CKvOutcome &outcome)
    {
        EXPECT_EQ(outcome.fault.toStdString(), "") << file.name.toStdString() << ", " << damage;
        if (outcome.isRefused() && file.isAscii()) {
            EXPECT_GT(outcome.line, 0)
                << file.name.toStdString() << ", " << damage << ": " << outcome.error.toStdString();
        }
        const std::string kind = outcome.isRefusedLate ? "refused by the walk"
            : outcome.isRefused()                      ? "refused"
            : outcome.warnings.isEmpty()               ? "loads"
                                                       : "loads with a warning";
        ++m_counts[damage][kind];
    }

    void TearDown() override
    {
        for (const auto &[damage, counts] : m_counts) {
            std::cout << damage << ':';
            for (const auto &[kind, count] : counts) {
                std::cout << "  " << count << ' ' << kind;
            }
            std::cout << '\n';
        }
    }

private:
    std::map<std::string, std::map<std::string, int>> m_counts;
};

struct ChangeCase {
    const char *name;
    QByteArray (*change)(const QByteArray &);
};

class Spelling : public Damage, public testing::WithParamInterface<ChangeCase>
{
};

class Tolerated : public Damage, public testing::WithParamInterface<ChangeCase>
{
};

class Broken : public Damage, public testing::WithParamInterface<ChangeCase>
{
};

std::vector<const CKvCorpusFile *> findSoundAsciiDrawings()
{
    std::vector<const CKvCorpusFile *> sound;
    for (const CKvCorpusFile &file : corpusFiles()) {
        const bool isSmall = file.bytes.size() <= kMostBytes;
        if (isSmall && file.isAscii() && !outcomeOf(file.bytes).isRefused()) {
            sound.push_back(&file);
        }
    }
    return sound;
}

// The drawings that are sound themselves.
const std::vector<const CKvCorpusFile *> &soundAsciiDrawings()
{
    static const std::vector<const CKvCorpusFile *> s_sound = findSoundAsciiDrawings();
    return s_sound;
}

QByteArray longText()
{
    return QByteArray(4000, 'x');
}

const ChangeCase kSpellings[] = {
    { "WithCarriageReturns", &withCarriageReturns },
    { "WithBlanksAroundEveryCode", &withBlanksAroundEveryCode },
    { "WithBareCodes", &withBareCodes },
    { "WithCommentsBeforeEveryObject", &withCommentsBeforeEveryObject },
    { "WithLowerCaseHandles", &withLowerCaseHandles },
    { "WithAByteOrderMark",
      [](const QByteArray &drawing) -> QByteArray { return "\xef\xbb\xbf" + drawing; } },
};

const ChangeCase kTolerated[] = {
    { "WithoutAnEofMark", &withoutEofMark },
    { "WithTooLargeTableCounts",
      [](const QByteArray &drawing) { return withTableCounts(drawing, "30000"); } },
    { "WithNegativeTableCounts",
      [](const QByteArray &drawing) { return withTableCounts(drawing, "-7"); } },
    { "WithBytesBehindTheEnd",
      [](const QByteArray &drawing) -> QByteArray { return drawing + "trash\n"; } },
};

const ChangeCase kBroken[] = {
    { "WithoutSectionEnds", &withoutSectionEnds },
    { "WithoutTableEnds", &withoutTableEnds },
    { "WithObjectsThatHoldThemselves", &withObjectsThatHoldThemselves },
    { "WithOneHandleForAll",
      [](const QByteArray &drawing) { return withValues(drawing, 5, 5, "1F"); } },
    { "WithTheLargestHandleForAll",
      [](const QByteArray &drawing) { return withValues(drawing, 5, 5, "FFFFFFFFFFFFFFFF"); } },
    { "WithHandlesThatAreTooLong",
      [](const QByteArray &drawing) { return withValues(drawing, 5, 5, "123456789ABCDEF01"); } },
    { "WithHandlesThatAreNone",
      [](const QByteArray &drawing) { return withValues(drawing, 5, 5, "none"); } },
    { "WithTheLargestPointers",
      [](const QByteArray &drawing) { return withValues(drawing, 320, 369, "FFFFFFFFFFFFFFFF"); } },
    { "WithIntegersBeyondAllNumbers",
      [](const QByteArray &drawing) {
          return withValues(drawing, 60, 99, "99999999999999999999999");
      } },
    { "WithTheSmallestIntegers",
      [](const QByteArray &drawing) {
          return withValues(drawing, 60, 99, "-9223372036854775808");
      } },
    { "WithRealsBeyondAllNumbers",
      [](const QByteArray &drawing) { return withValues(drawing, 40, 59, "1e999"); } },
    { "WithRealsThatAreNoNumbers",
      [](const QByteArray &drawing) { return withValues(drawing, 40, 59, "nan"); } },
    { "WithEmptyNumbers",
      [](const QByteArray &drawing) { return withValues(drawing, 40, 99, ""); } },
    { "WithEmptyNames", [](const QByteArray &drawing) { return withValues(drawing, 3, 9, ""); } },
    { "WithLongNames",
      [](const QByteArray &drawing) { return withValues(drawing, 8, 8, longText()); } },
    { "WithNamesOfBackslashes",
      [](const QByteArray &drawing) { return withValues(drawing, 3, 8, "\\U+D800\\M+\\U+"); } },
    { "WithNamesInNoEncoding",
      [](const QByteArray &drawing) { return withValues(drawing, 3, 8, "\xff\x80\xc3"); } },
    { "WithBracesThatDontClose",
      [](const QByteArray &drawing) {
          return withValues(drawing, 102, 102, "{ACAD_XDICTIONARY");
      } },
    { "WithExtendedDataOfNoApplication",
      [](const QByteArray &drawing) { return withValues(drawing, 1001, 1001, ""); } },
    { "WithNegativeCodes",
      [](const QByteArray &drawing) {
          return withEachTag(drawing, [](const CKvRawTag &tag, std::vector<CKvRawTag> &written) {
              const bool isMeant = tag.code.trimmed() == "330";
              written.push_back({ isMeant ? QByteArray("-5") : tag.code, tag.value });
          });
      } },
    { "WithCodesBeyondAllNumbers",
      [](const QByteArray &drawing) {
          return withEachTag(drawing, [](const CKvRawTag &tag, std::vector<CKvRawTag> &written) {
              const bool isMeant = tag.code.trimmed() == "330";
              written.push_back({ isMeant ? QByteArray("99999999999999") : tag.code, tag.value });
          });
      } },
    { "WithCarriageReturnsOnly",
      [](const QByteArray &drawing) {
          return QByteArray(drawing).replace("\r\n", "\n").replace('\n', '\r');
      } },
    { "WithZeroBytesForLineFeeds",
      [](const QByteArray &drawing) { return QByteArray(drawing).replace('\n', '\0'); } },
    { "TwiceInOneFile",
      [](const QByteArray &drawing) -> QByteArray { return withoutEofMark(drawing) + drawing; } },
};

} // namespace

TEST_P(Spelling, LeavesTheDrawingWhatItWas)
{
    for (const CKvCorpusFile *file : soundAsciiDrawings()) {
        const CKvWalkResult before = outcomeOf(file->bytes).walk;

        const CKvOutcome outcome = outcomeOf(GetParam().change(file->bytes));

        note(*file, GetParam().name, outcome);
        EXPECT_EQ(outcome.error.toStdString(), "") << file->name.toStdString();
        EXPECT_EQ(outcome.walk.records, before.records) << file->name.toStdString();
        EXPECT_EQ(outcome.walk.dictionaries, before.dictionaries) << file->name.toStdString();
        EXPECT_EQ(outcome.walk.xrecords, before.xrecords) << file->name.toStdString();
        EXPECT_EQ(outcome.walk.entities, before.entities) << file->name.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Another, Spelling, testing::ValuesIn(kSpellings), [](const auto &row) {
    return std::string(row.param.name);
});

TEST_P(Tolerated, LoadsWithAWarning)
{
    for (const CKvCorpusFile *file : soundAsciiDrawings()) {
        const QByteArray damaged = GetParam().change(file->bytes);
        if (damaged == file->bytes) {
            continue;
        }

        const CKvOutcome outcome = outcomeOf(damaged);

        note(*file, GetParam().name, outcome);
        EXPECT_EQ(outcome.error.toStdString(), "") << file->name.toStdString();
        EXPECT_FALSE(outcome.warnings.isEmpty()) << file->name.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(ADrawing, Tolerated, testing::ValuesIn(kTolerated), [](const auto &row) {
    return std::string(row.param.name);
});

TEST_P(Broken, IsRefusedWithItsLineOrKeptAsItIs)
{
    for (const CKvCorpusFile *file : soundAsciiDrawings()) {
        const QByteArray damaged = GetParam().change(file->bytes);

        note(*file, GetParam().name, outcomeOf(damaged));
    }
}

TEST_P(Broken, CanBeEditedWhenItLoads)
{
    for (const CKvCorpusFile *file : soundAsciiDrawings()) {
        const QByteArray damaged = GetParam().change(file->bytes);
        const CKvOutcome before = outcomeOf(damaged);

        const CKvOutcome after = outcomeAfterEditing(damaged);

        note(*file, GetParam().name, after);
        EXPECT_EQ(after.isRefused(), before.isRefused())
            << file->name.toStdString() << ": " << after.text().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(ADrawing, Broken, testing::ValuesIn(kBroken), [](const auto &row) {
    return std::string(row.param.name);
});

TEST_F(Damage, ATruncatedDrawingIsRefusedOrLoadsWithAWarning)
{
    for (const CKvCorpusFile *file : soundAsciiDrawings()) {
        const int end = file->bytes.lastIndexOf("EOF");
        for (int part = 7; part < 1000; part += 61) {
            const QByteArray damaged = truncated(file->bytes, part);
            if (damaged.trimmed().isEmpty()) {
                continue;
            }

            const CKvOutcome outcome = outcomeOf(damaged);

            note(*file, "truncated", outcome);
            EXPECT_TRUE(outcome.isRefused() || !outcome.warnings.isEmpty() || damaged.size() > end)
                << file->name.toStdString() << " up to byte " << damaged.size();
        }
    }
}

TEST_F(Damage, AMissingLineIsRefusedOrLoadsWithAWarning)
{
    for (const CKvCorpusFile *file : soundAsciiDrawings()) {
        for (int part = 13; part < 1000; part += 89) {
            const CKvOutcome outcome = outcomeOf(withoutALine(file->bytes, part));

            note(*file, "without a line", outcome);
            EXPECT_TRUE(outcome.isRefused() || !outcome.warnings.isEmpty())
                << file->name.toStdString() << ", part " << part;
        }
    }
}

TEST_F(Damage, TextInPlaceOfAGroupCodeIsRefusedWithItsLine)
{
    for (const CKvCorpusFile *file : soundAsciiDrawings()) {
        for (int part = 29; part < 950; part += 97) {
            const QByteArray damaged = withTextForACode(file->bytes, part);
            const qint64 line = 1 + damaged.left(damaged.indexOf("\ncode\n") + 1).count('\n');

            const CKvOutcome outcome = outcomeOf(damaged);

            note(*file, "text for a code", outcome);
            EXPECT_TRUE(outcome.isRefused() || !outcome.warnings.isEmpty())
                << file->name.toStdString() << ", line " << line;
            if (outcome.isRefused()) {
                EXPECT_EQ(outcome.line, line) << file->name.toStdString();
            }
        }
    }
}

TEST_F(Damage, BytesThatChangedByChanceNeverBreakTheReader)
{
    for (const CKvCorpusFile &file : corpusFiles()) {
        if (file.bytes.size() > kMostBytes) {
            continue;
        }
        for (unsigned seed = 1; seed <= 12; ++seed) {
            const QByteArray damaged = withOtherBytes(file.bytes, seed);
            note(file, file.isAscii() ? "other bytes" : "other bytes, binary", outcomeOf(damaged));
            note(file,
                 file.isAscii() ? "other bytes, edited" : "other bytes, binary, edited",
                 outcomeAfterEditing(damaged));
        }
    }
}

TEST_F(Damage, ATruncatedBinaryDrawingIsRefusedOrLoadsWithAWarning)
{
    for (const CKvCorpusFile &file : corpusFiles()) {
        if (file.isAscii()) {
            continue;
        }
        for (int part = 7; part < 1000; part += 61) {
            const CKvOutcome outcome = outcomeOf(truncated(file.bytes, part));

            note(file, "truncated, binary", outcome);
            EXPECT_TRUE(outcome.isRefused() || !outcome.warnings.isEmpty())
                << file.name.toStdString() << ", part " << part;
        }
    }
}
